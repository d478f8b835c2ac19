#include "screens/ApplicationPages.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>

#include "screens/FormBuilder.h"
#include "screens/MemoField.h"
#include "screens/Theme.h"

namespace norlaplan {

/// A frame of a page: its place, its title and its controls. Frames of one row share its width.
struct ApplicationPages::FrameLayout {
    int tab, row;
    const char* name;
    const char* title;
    std::vector<std::string> controls;
    int columns = 1;
};

namespace {

constexpr int kNumberLetters = 16;
constexpr int kLongMemo = 12, kShortMemo = 2;

/// Numbers without a unit of their own; like those with one they are short.
constexpr const char* kPlainNumbers[] = {"Text10", "Text18", "Text21", "Text22"};
/// Texts that may have several lines.
constexpr const char* kMemos[] = {"Text8", "Text17", "Text31", "Text50", "Text51"};
/// So many options stand below each other.
constexpr std::size_t kOptionsOfAColumn = 6;

template <typename Names>
bool isOneOf(const Names& names, const std::string& name) {
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

const ApplicationGroup& groupOf(const ApplicationField& field) {
    const auto groups = applicationGroups();
    return *std::find_if(groups.begin(), groups.end(),
                         [&](const ApplicationGroup& group) { return group.value == field.own; });
}

}  // namespace

const std::vector<ApplicationPages::FrameLayout>& ApplicationPages::layout() {
    static const std::vector<FrameLayout> frames = {
        {1, 0, "Frame1", "CONTACT", {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7"}, 2},
        {1, 1, "Frame2", "APPLICATION", {"Text8", "Text9", "Text10"}},
        {1, 2, "Frame3", "TYPE", {"Option1"}},
        {1, 3, "Frame4", "USAGE", {"Option6"}},
        {2, 0, "Frame5", "STATIC LOADS, MAXIMUM", {"Text11", "Text12", "Text13"}},
        {2, 0, "Frame6", "DYNAMIC LOADS, AVERAGE", {"Text14", "Text15", "Text16"}},
        {2, 1, "Frame7", "SHOCK", {"Check1", "Text17"}},
        {2, 2, "Frame8", "SAFETY", {"Text18", "Option10"}},
        {3, 0, "Frame9", "SPEED", {"Text19", "Text20"}},
        {4, 0, "Frame10", "WILL THE BEARING OSCILLATE?", {"Option12"}},
        {4, 1, "Frame11", "OSCILLATION", {"Text21", "Text22"}},
        {5, 0, "Frame12", "PRECISION CLASS", {"Option14"}},
        {5, 1, "Frame13", "PERMISSIBLE ECCENTRICITY", {"Text23", "Text24"}},
        {5, 1, "Frame14", "PERMISSIBLE FACE RUN-OUT", {"Text25", "Text26"}},
        {5, 2, "Frame15", "PERMISSIBLE LOOSENESS", {"Text27", "Text28"}},
        {6, 0, "Frame16", "LIFE", {"Text29", "Text30", "Text31"}},
        {7, 0, "Frame17", "TEMPERATURE", {"Text32", "Text33", "Text34", "Text35"}},
        {8, 0, "Frame18", "LUBRICATION", {"Text36", "Text37"}},
        {9, 0, "Frame19", "PREFERRED SIZE", {"Text38", "Text39", "Text40"}},
        {9, 0, "Frame20", "ENVELOPE SIZE", {"Text41", "Text42", "Text43"}},
        {9, 1, "Frame21", "BEARING TYPE", {"Text44"}},
        {9, 2, "Frame22", "BEARING AXIS", {"Option21"}},
        {9, 2, "Frame23", "ROTATING RACE RELATIVE TO LOAD", {"Option23"}},
        {10, 0, "Frame24", "MATERIAL", {"Text45", "Text46"}},
        {11, 0, "Frame25", "SPECIAL REQUIREMENTS", {"Text47", "Text48", "Text49", "Text50"}},
        {12, 0, "Frame26", "REMARKS", {"Text51"}},
    };
    return frames;
}

QString ApplicationText::text() const {
    if (const auto* const line = qobject_cast<const QLineEdit*>(box)) return line->text();
    return static_cast<const MemoField*>(box)->toPlainText();
}

void ApplicationText::setText(const QString& text) const {
    if (auto* const line = qobject_cast<QLineEdit*>(box)) {
        line->setText(text);
        line->setCursorPosition(0);
    } else {
        static_cast<MemoField*>(box)->setPlainText(text);
    }
}

QString unitText(FieldUnit unit, const UnitMode& units) {
    switch (unit) {
        case FieldUnit::Length:
            return QString::fromStdString(units.lengthUnit);
        case FieldUnit::Load:
            return QString::fromStdString(units.loadUnitWord);
        case FieldUnit::Moment:
            return QString::fromStdString(units.momentUnitWord);
        case FieldUnit::Temperature:
            return QString::fromStdString(units.tempUnit);
        case FieldUnit::Rpm:
            return QStringLiteral("RPM");
        case FieldUnit::Hours:
            return QStringLiteral("hours");
        case FieldUnit::None:
            break;
    }
    return {};
}

ApplicationPages::ApplicationPages() {
    QHBoxLayout* row = nullptr;
    int tab = 0, rowNumber = 0;
    for (const FrameLayout& description : layout()) {
        QWidget*& page = pages_[description.tab];
        if (page == nullptr) {
            page = new QWidget;
            theme::spaced(new QVBoxLayout(page), theme::kFrameMargin);
        }
        if (tab != description.tab || rowNumber != description.row) {
            row = theme::spaced(new QHBoxLayout, 0);
            static_cast<QVBoxLayout*>(page->layout())->addLayout(row);
        }
        tab = description.tab;
        rowNumber = description.row;
        makeFrame(description, *row);
    }
    for (const auto& [number, page] : pages_) {
        // A page of one long text is filled by it.
        if (number != kApplicationTabs) static_cast<QVBoxLayout*>(page->layout())->addStretch(1);
    }
    alignLabels();
}

QWidget& ApplicationPages::text(const char* control) const {
    const auto found = std::find_if(texts_.begin(), texts_.end(), [control](const ApplicationText& text) {
        return std::string(text.field->control) == control;
    });
    return *found->box;
}

void ApplicationPages::makeFrame(const FrameLayout& description, QHBoxLayout& row) {
    QGroupBox* const frame = build::frame(description.name, description.title);
    frames_[description.name] = frame;
    auto* const grid = theme::spaced(new QGridLayout(frame), theme::kFrameMargin);
    const auto rows =
        (static_cast<int>(description.controls.size()) + description.columns - 1) / description.columns;
    int place = 0;
    for (const std::string& control : description.controls) {
        addControl(*frame, *grid, control, place % rows, place / rows * 4);
        ++place;
    }
    row.addWidget(frame, 1);
}

void ApplicationPages::addControl(QGroupBox& frame, QGridLayout& grid, const std::string& control, int row,
                                  int column) {
    const ApplicationField& field = applicationField(control);
    if (field.isText()) {
        addText(grid, field, row, column);
    } else if (control == "Check1") {
        shock_ = new QCheckBox(field.label);
        shock_->setObjectName(QString::fromUtf8(field.control));
        shock_->setAccessibleName(shock_->text());
        // As wide as its words, like the options.
        shock_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
        grid.addWidget(shock_, row, 0, 1, 4);
        order_.push_back(shock_);
    } else {
        addChoice(frame, grid, groupOf(field), row);
    }
}

void ApplicationPages::addText(QGridLayout& grid, const ApplicationField& field, int row, int column) {
    const std::string control = field.control;
    const bool memo = isOneOf(kMemos, control);
    const bool number = field.unit != FieldUnit::None || isOneOf(kPlainNumbers, control);
    const bool whole = control == "Text51";
    QWidget* box = nullptr;
    if (memo) {
        box = new MemoField(field.control, field.tip, whole ? kLongMemo : kShortMemo);
        if (!whole) box->setMaximumHeight(box->minimumHeight());
    } else {
        QLineEdit* const line = build::edit(field.control, field.tip);
        // A text that was read from a file is never cut.
        line->setMaxLength(std::numeric_limits<int>::max() / 2);
        if (number)
            line->setMaximumWidth(line->fontMetrics().horizontalAdvance(QLatin1Char('0')) * kNumberLetters);
        box = line;
    }
    QLabel* const label = build::label(("Label" + control.substr(4)).c_str(), field.label);
    build::buddy(*label, *box);
    label->setVisible(!whole);
    labels_[field.tab].push_back(label);
    grid.addWidget(label, row, column, memo ? Qt::AlignTop : Qt::AlignVCenter);
    QLabel* unit = nullptr;
    if (number) {
        unit = build::label(("Unit" + control.substr(4)).c_str());
        grid.addWidget(box, row, column + 1);
        grid.addWidget(unit, row, column + 2);
        grid.setColumnStretch(column + 1, 2);
        grid.setColumnStretch(column + 3, 1);
    } else {
        grid.addWidget(box, row, column + 1, 1, 3);
        grid.setColumnStretch(column + 3, 1);
    }
    texts_.push_back({&field, box, unit});
    order_.push_back(box);
}

void ApplicationPages::addChoice(QGroupBox& frame, QGridLayout& grid, const ApplicationGroup& group,
                                 int row) {
    auto* const buttons = new QButtonGroup(&frame);
    const bool below = group.options.size() > kOptionsOfAColumn;
    auto* const options = new QBoxLayout(below ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    options->setSpacing(below ? theme::kGap / 2 : theme::kWideGap);
    for (const ApplicationOption& option : group.options) {
        QRadioButton* const made = build::option(option.control, option.caption);
        buttons->addButton(made, static_cast<int>(buttons->buttons().size()));
        options->addWidget(made);
        order_.push_back(made);
    }
    // In a frame of several things the group says itself what it asks.
    if (frame.title() != group.question && row > 0) options->addWidget(build::label("", group.question));
    options->addStretch();
    grid.addLayout(options, row, 0, 1, 4);
    choices_.push_back({&group, buttons});
}

void ApplicationPages::alignLabels() const {
    for (const auto& [tab, labels] : labels_) {
        int width = 0;
        for (const QLabel* const label : labels)
            width = std::max(width, label->sizeHint().width());
        for (QLabel* const label : labels)
            label->setMinimumWidth(width);
    }
}

}  // namespace norlaplan

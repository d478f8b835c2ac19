#include "screens/FormBuilder.h"

#include <QGridLayout>
#include <QPainter>
#include <QRegularExpression>
#include <QStyleOptionButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "screens/Accelerators.h"
#include "screens/EntryLabel.h"
#include "screens/NumberField.h"
#include "screens/Picture.h"
#include "screens/Theme.h"

namespace norlaplan::build {
namespace {

constexpr QSize kStylePicture(240, 160);
constexpr int kFieldDigits = 20;

/// A button that is drawn with the letter that presses it underlined, and without the filling blanks with
/// which some captions were once broken into lines. Its text stays the stated caption.
template <typename Base, typename Option>
class Marked : public Base {
  public:
    using Base::Base;

    QSize sizeHint() const override {
        const QFontMetrics metrics = this->fontMetrics();
        const auto width = [&](const QString& text) {
            return metrics.size(Qt::TextShowMnemonic, text).width();
        };
        return Base::sizeHint() - QSize(width(this->text()) - width(this->text().simplified()), 0);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void initStyleOption(Option* option) const override {
        Base::initStyleOption(option);
        const QString keys = this->shortcut().toString();
        const QChar letter = keys.startsWith(QLatin1String("Alt+")) ? keys.back() : QChar();
        option->text = accelerators::marked(this->text().simplified(), letter);
    }
};

using Button = Marked<QPushButton, QStyleOptionButton>;
using Option = Marked<QRadioButton, QStyleOptionButton>;

/// A button that keeps the lines into which its caption was broken by runs of blanks.
class LinedButton : public Button {
  public:
    using Button::Button;

    QSize sizeHint() const override {
        const QFontMetrics metrics = fontMetrics();
        const QSize lines = metrics.size(Qt::TextShowMnemonic, lined());
        return Button::sizeHint() + lines - metrics.size(Qt::TextShowMnemonic, text().simplified());
    }

  protected:
    void initStyleOption(QStyleOptionButton* option) const override {
        Button::initStyleOption(option);
        option->text = lined();
    }

  private:
    QString lined() const {
        static const QRegularExpression filling(QStringLiteral(" {3,}"));
        return QString(text()).replace(filling, QStringLiteral("\n"));
    }
};

/// The chosen one of several pictures has a strong frame and a tick.
class PictureButton : public Marked<QToolButton, QStyleOptionToolButton> {
  protected:
    void paintEvent(QPaintEvent* event) override {
        Marked::paintEvent(event);
        if (!isChecked()) return;
        QPainter painter(this);
        constexpr int kFrame = 4, kTick = 28;
        painter.setPen(QPen(theme::accent(), kFrame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(rect().adjusted(kFrame / 2, kFrame / 2, -kFrame / 2, -kFrame / 2));
        theme::drawTick(painter, QRectF(width() - kTick - 2 * kFrame, 2 * kFrame, kTick, kTick));
    }
};

template <typename Control>
Control* named(Control* control, const char* name, const QString& tip, const QString& spoken) {
    control->setObjectName(QString::fromUtf8(name));
    control->setToolTip(tip);
    if (!spoken.isEmpty()) control->setAccessibleName(spoken);
    if (!tip.isEmpty()) control->setAccessibleDescription(tip);
    return control;
}

}  // namespace

QString spokenCaption(const QString& caption) {
    QString spoken = caption;
    for (const char mark : {'&', '<', '>'})
        spoken.remove(QLatin1Char(mark));
    return spoken.simplified();
}

QPushButton* button(const char* name, const QString& caption, const QString& tip) {
    return named<QPushButton>(new Button(caption), name, tip, spokenCaption(caption));
}

QPushButton* linedButton(const char* name, const QString& caption, const QString& tip) {
    return named<QPushButton>(new LinedButton(caption), name, tip, spokenCaption(caption));
}

QRadioButton* option(const char* name, const QString& caption, const QString& tip) {
    QRadioButton* const control = named<QRadioButton>(new Option(caption), name, tip, spokenCaption(caption));
    // As wide as its words: only they and the mark take a click.
    control->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    return control;
}

QLabel* label(const char* name, const QString& caption) {
    return named<QLabel>(new EntryLabel(caption), name, {}, {});
}

QLabel* heading(const char* name, const QString& caption) {
    QLabel* const control = label(name, caption);
    theme::makeHeading(*control);
    return control;
}

QGroupBox* frame(const char* name, const QString& caption) {
    return named(new QGroupBox(caption), name, {}, spokenCaption(caption));
}

QLineEdit* edit(const char* name, const QString& tip, const QString& spoken) {
    QLineEdit* const control = named<QLineEdit>(new PlainEdit, name, tip, spoken);
    control->setTextMargins(4, 0, 4, 0);
    return control;
}

QComboBox* choice(const char* name, const QString& tip, const QString& spoken) {
    return named(new QComboBox, name, tip, spoken);
}

void buddy(QLabel& label, QWidget& field) {
    label.setBuddy(&field);
    field.setAccessibleName(spokenCaption(label.text()));
}

QLabel* valueLabel(const char* name) {
    QLabel* const made = label(name);
    made->setFont(theme::valueFont());
    made->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return made;
}

void makeBold(QLabel& label) {
    QFont font = label.font();
    font.setBold(true);
    label.setFont(font);
}

void keepRoom(QWidget& widget, bool kept) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(kept);
    widget.setSizePolicy(policy);
}

QGroupBox* labelFrame(const char* name, const QString& caption, std::initializer_list<QLabel*> labels,
                      const QString& tip) {
    QGroupBox* const made = frame(name, caption);
    made->setToolTip(tip);
    auto* const column = theme::spaced(new QVBoxLayout(made), theme::kFrameMargin);
    for (QLabel* const label : labels)
        column->addWidget(label);
    column->addStretch();
    return made;
}

QVBoxLayout& columnOf(QGroupBox& frame) {
    return static_cast<QVBoxLayout&>(*frame.layout());
}

QToolButton* pictureButton(const char* name, const QString& caption, const QString& tip,
                           const QPixmap& picture) {
    QToolButton* const made = named<QToolButton>(new PictureButton, name, tip, spokenCaption(caption));
    made->setText(caption);
    made->setIcon(picture);
    made->setIconSize(kStylePicture);
    made->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    made->setCheckable(true);
    made->setFocusPolicy(Qt::StrongFocus);
    made->setPalette(theme::paper());
    made->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return made;
}

void layOutEntry(QVBoxLayout& page, Picture& picture, std::initializer_list<EntryRow> rows) {
    auto* const grid = theme::spaced(new QGridLayout, 0);
    int row = 0;
    for (const auto& [label, field] : rows) {
        buddy(*label, *field);
        // A number is short: the field stands by its label, and both under the middle of the picture.
        field->setFixedWidth(field->fontMetrics().horizontalAdvance(QString(kFieldDigits, QLatin1Char('0'))));
        grid->addWidget(label, row, 1);
        grid->addWidget(field, row, 2);
        ++row;
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(3, 1);
    page.addWidget(&picture, 1);
    page.addLayout(grid);
}

}  // namespace norlaplan::build

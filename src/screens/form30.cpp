#include "screens/form30.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

#include "screens/ContactView.h"
#include "screens/FormBuilder.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr const char* kWidestText = "Use Left and Right Arrow to move diagram";

QByteArray numbered(const char* kind, int number) {
    return QByteArray(kind) + QByteArray::number(number);
}

/// Of the row that is drawn: blue on white, whatever the desktop's colours.
QPalette chosenColours() {
    QPalette colours = theme::paper();
    for (const auto role : {QPalette::WindowText, QPalette::Text})
        colours.setColor(role, Qt::blue);
    return colours;
}

}  // namespace

form30::form30(Screens& screens) : Form(screens, forms::kContactStress, "Compressive Stress for") {
    rows_ = {makeRow(1), makeRow(2)};
    picture_ = new ContactView("Picture1", "Section of the inner ring at the heaviest loaded ball");
    for (const int row : {1, 2}) {
        on(rows_[row == 2].option, &QRadioButton::clicked, "Display row " + std::to_string(row),
           [this, row] { picture_->change(choose(row)); });
    }
    layOut();
    takePageKeys();
    setFooter({.previous = button("Command2", "Return", "Return to Load Life Screen", [this] { closed(); }),
               .main = button("Command1", "Redraw", "Refresh screen after data changes",
                              [this] { picture_->redraw(); })});
}

form30::RowGroup form30::makeRow(int row) {
    RowGroup made{};
    for (std::size_t i = 0; i < made.lines.size(); ++i) {
        const int number = static_cast<int>(i) + 1 + (row == 2 ? 5 : 0);
        made.lines[i] = build::label(numbered("Label", number).constData());
        made.lines[i]->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    const auto& lines = made.lines;
    made.frame = build::labelFrame(numbered("Frame", row).constData(),
                                   QStringLiteral("Contact Stress Row %1").arg(row),
                                   {lines[0], lines[1], lines[2], lines[3], lines[4]});
    made.frame->setAutoFillBackground(true);
    made.option = build::option(numbered("Option", row).constData(), QStringLiteral("Row %1").arg(row),
                                QStringLiteral("Display row %1").arg(row));
    return made;
}

QGroupBox* form30::instructionFrame() {
    QGroupBox* const frame = build::labelFrame(
        "Frame3", "Instructions",
        {build::label("Label11", "Use Up and Down Arrow to move diagram"),
         build::label("Label12", kWidestText),
         build::label("Label13", "Use 'Page-Up' and 'Page Down' to Enlarge or Shrink diagram")});
    for (QLabel* const line : frame->findChildren<QLabel*>())
        line->setWordWrap(true);
    return frame;
}

QLayout* form30::noteFields() {
    auto* const row = theme::spaced(new QHBoxLayout, 0);
    QLabel* const caption = build::label("Label14", "Notes");
    row->addWidget(caption);
    for (int i = 1; i <= 4; ++i) {
        QLineEdit* const field = build::edit(numbered("Text", i).constData(),
                                             "Room for a number of your own; nothing is computed from it",
                                             QStringLiteral("Note %1").arg(i));
        field->setMinimumWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("00.000")));
        if (i <= 2) on(field, &QLineEdit::textChanged, "Redraw", [this] { picture_->redraw(); });
        if (i == 1) caption->setBuddy(field);
        row->addWidget(field, 1);
    }
    return row;
}

void form30::layOut() {
    auto* const options = theme::spaced(new QHBoxLayout, 0);
    options->addWidget(build::label("Label15", "Display"));
    // As wide as the instructions want to be: the rest of the window is the drawing's.
    auto* const side = new QWidget;
    side->setFixedWidth(fontMetrics().horizontalAdvance(QLatin1String(kWidestText)) +
                        3 * theme::kFrameMargin);
    auto* const texts = theme::spaced(new QVBoxLayout(side), 0);
    texts->addLayout(options);
    for (const RowGroup& row : rows_) {
        options->addWidget(row.option);
        texts->addWidget(row.frame);
    }
    options->addStretch();
    texts->addWidget(instructionFrame());
    texts->addLayout(noteFields());
    texts->addStretch();

    auto* const drawing = theme::spaced(new QVBoxLayout, 0);
    drawing->addWidget(build::label("Label16", "Simulated Display of heaviest loaded ball for chosen row"));
    drawing->addWidget(picture_, 1);
    overrun_ = build::label("Warning1", "The ellipse runs over the edge of the groove by the length shown.");
    build::makeBold(*overrun_);
    overrun_->setWordWrap(true);
    build::keepRoom(*overrun_);
    drawing->addWidget(overrun_);
    auto* const across = theme::spaced(new QHBoxLayout, 0);
    across->addWidget(side);
    across->addLayout(drawing, 1);
    page().addLayout(across);
}

void form30::takePageKeys() {
    for (const auto& [key, pressed] :
         {std::pair{Qt::Key_PageUp, ViewKey::PageUp}, std::pair{Qt::Key_PageDown, ViewKey::PageDown}}) {
        on(new QShortcut(key, this), &QShortcut::activated, "Zoom",
           [this, pressed = pressed] { picture_->press(pressed); });
    }
}

void form30::opened() {
    setWindowTitle(QString::fromStdString("Compressive Stress for " + state().bearing.partNumber));
    picture_->open(choose(1));
    picture_->setFocus();
}

ContactSection form30::choose(int row) {
    const ContactCheck check = checkContact(state(), row);
    showCheck(check);
    const ContactSection section = contactSection(state().bearing, check);
    warnOfOverrun(section);
    return section;
}

void form30::warnOfOverrun(const ContactSection& section) {
    theme::makeWarning(*overrun_);
    overrun_->setVisible(section.overruns());
}

void form30::showCheck(const ContactCheck& check) {
    for (const int row : {1, 2}) {
        const std::size_t i = row == 2 ? 1 : 0;
        const RowGroup& group = rows_[i];
        const bool chosen = row == check.row;
        const auto lines = check.rows[i].lines();
        for (std::size_t line = 0; line < lines.size(); ++line)
            group.lines[line]->setText(QString::fromStdString(lines[line]));
        group.frame->setTitle(QString::fromStdString(check.groupCaption(row)));
        group.frame->setPalette(chosen ? chosenColours() : QPalette());
        group.option->setEnabled(check.canChoose(row));
        group.option->setChecked(chosen);
    }
}

}  // namespace norlaplan

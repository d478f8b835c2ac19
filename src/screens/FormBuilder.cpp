#include "screens/FormBuilder.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QStyleOptionButton>

#include "screens/Theme.h"

namespace norlaplan::build {
namespace {

/// What a caption says without its accelerator marks and filling blanks.
QString spokenCaption(QString caption) {
    return caption.remove(QLatin1Char('&')).simplified();
}

/// A button that doesn't paint the filling blanks with which some captions were once broken into lines.
class Button : public QPushButton {
  public:
    using QPushButton::QPushButton;

  protected:
    void initStyleOption(QStyleOptionButton* option) const override {
        QPushButton::initStyleOption(option);
        option->text = text().simplified();
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

QPushButton* button(const char* name, const QString& caption, const QString& tip) {
    return named<QPushButton>(new Button(caption), name, tip, spokenCaption(caption));
}

QRadioButton* option(const char* name, const QString& caption, const QString& tip) {
    return named(new QRadioButton(caption), name, tip, spokenCaption(caption));
}

QCheckBox* check(const char* name, const QString& caption, const QString& tip) {
    return named(new QCheckBox(caption), name, tip, spokenCaption(caption));
}

QLabel* label(const char* name, const QString& caption) {
    return named(new QLabel(caption), name, {}, {});
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
    QLineEdit* const control = named(new QLineEdit, name, tip, spoken);
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

QLabel* valueRow(QGridLayout& grid, int row, const char* labelName, const QString& caption,
                 const char* valueName) {
    QLabel* const value = label(valueName);
    value->setFont(theme::valueFont());
    value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QLabel* const what = label(labelName, caption);
    buddy(*what, *value);
    grid.addWidget(what, row, 0);
    grid.addWidget(value, row, 1);
    return value;
}

QLineEdit* entryRow(QGridLayout& grid, int row, const char* labelName, const QString& caption,
                    const char* fieldName, const QString& tip, const char* unitName, const QString& unit) {
    QLineEdit* const field = edit(fieldName, tip);
    QLabel* const what = label(labelName, caption);
    buddy(*what, *field);
    grid.addWidget(what, row, 0);
    grid.addWidget(field, row, 1);
    grid.addWidget(label(unitName, unit), row, 2);
    return field;
}

void layOutEntry(QWidget& form, const EntryPage& page) {
    auto* const buttons = theme::spaced(new QHBoxLayout, 0);
    buttons->addWidget(page.mainMenu);
    buttons->addStretch();
    buttons->addWidget(page.previous);
    buttons->addWidget(page.proceed);
    auto* const column = theme::spaced(new QVBoxLayout(&form));
    column->addWidget(page.picture, 1);
    column->addLayout(page.fields);
    column->addLayout(buttons);
    QWidget::setTabOrder(page.lastField, page.proceed);
    QWidget::setTabOrder(page.proceed, page.previous);
    QWidget::setTabOrder(page.previous, page.mainMenu);
}

}  // namespace norlaplan::build

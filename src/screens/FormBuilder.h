#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

class QGridLayout;

/// One call for each control: name, caption with its accelerator ("&Save"), tip, and what a screen reader
/// says. The caller places the control in a layout, which takes it over.
namespace norlaplan::build {

QPushButton* button(const char* name, const QString& caption, const QString& tip = {});
QRadioButton* option(const char* name, const QString& caption, const QString& tip = {});
QCheckBox* check(const char* name, const QString& caption, const QString& tip = {});
QLabel* label(const char* name, const QString& caption = {});
QLabel* heading(const char* name, const QString& caption);
QGroupBox* frame(const char* name, const QString& caption);
/// `spoken` is the accessible name; with a label as buddy (below) it may be left out.
QLineEdit* edit(const char* name, const QString& tip = {}, const QString& spoken = {});
QComboBox* choice(const char* name, const QString& tip = {}, const QString& spoken = {});

/// The label leads to the field: accelerator, screen reader.
void buddy(QLabel& label, QWidget& field);

/// A row of a grid: what it is on the left, the value on the right in figures that line up, selectable.
/// Gives the value's label, named `valueName`.
QLabel* valueRow(QGridLayout& grid, int row, const char* labelName, const QString& caption,
                 const char* valueName);

/// A row of a grid: label, field (its buddy) and unit.
QLineEdit* entryRow(QGridLayout& grid, int row, const char* labelName, const QString& caption,
                    const char* fieldName, const QString& tip, const char* unitName, const QString& unit);

/// The controls of a screen that asks for values under a picture.
struct EntryPage {
    QWidget* picture;
    QGridLayout* fields;
    QWidget* lastField;
    QPushButton *proceed, *previous, *mainMenu;
};

/// Lays such a screen out: picture, fields, buttons; tabs go on from the last field to proceed, previous,
/// main menu.
void layOutEntry(QWidget& form, const EntryPage& page);

}  // namespace norlaplan::build

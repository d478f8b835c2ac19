#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

class QGridLayout;
class QToolButton;
class QVBoxLayout;

namespace norlaplan {
class Picture;
}  // namespace norlaplan

/// One call for each control: name, caption with its accelerator ("&Save"), tip, and what a screen reader
/// says. The caller places the control in a layout, which takes it over.
namespace norlaplan::build {

/// What a caption says without its accelerator marks, arrows and filling blanks.
QString spokenCaption(const QString& caption);

QPushButton* button(const char* name, const QString& caption, const QString& tip = {});
/// A button in several lines: its caption is broken where it has three blanks or more.
QPushButton* linedButton(const char* name, const QString& caption, const QString& tip = {});
QRadioButton* option(const char* name, const QString& caption, const QString& tip = {});
QLabel* label(const char* name, const QString& caption = {});
QLabel* heading(const char* name, const QString& caption);
QGroupBox* frame(const char* name, const QString& caption);
/// `spoken` is the accessible name; with a label as buddy (below) it may be left out.
QLineEdit* edit(const char* name, const QString& tip = {}, const QString& spoken = {});
QComboBox* choice(const char* name, const QString& tip = {}, const QString& spoken = {});

/// The label leads to the field: accelerator, screen reader.
void buddy(QLabel& label, QWidget& field);

/// A label for a value: in figures that line up, selectable by mouse and keyboard.
QLabel* valueLabel(const char* name);

void makeBold(QLabel& label);

/// What is hidden leaves its place free, so that nothing around it moves, or no longer does.
void keepRoom(QWidget& widget, bool kept = true);

/// A frame with labels under each other.
QGroupBox* labelFrame(const char* name, const QString& caption, std::initializer_list<QLabel*> labels,
                      const QString& tip = {});

/// The layout of a frame made above, to add more.
QVBoxLayout& columnOf(QGroupBox& frame);

/// A picture that is chosen by a click, with its name under it.
QToolButton* pictureButton(const char* name, const QString& caption, const QString& tip,
                           const QPixmap& picture);

/// A row of a page that asks for values: the label that says what, and the field.
struct EntryRow {
    QLabel* label;
    QLineEdit* field;
};

/// A page that asks for values under a picture.
void layOutEntry(QVBoxLayout& page, Picture& picture, std::initializer_list<EntryRow> rows);

}  // namespace norlaplan::build

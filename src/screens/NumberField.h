#pragma once

#include <QLineEdit>
#include <functional>
#include <string>

namespace norlaplan {

/// Whether a key is a letter with Alt held, which presses a button and types nothing.
bool isLetterWithAlt(const QKeyEvent& event);

/// A field that leaves Alt with a letter to whatever that presses, in place of typing the letter.
class PlainEdit : public QLineEdit {
  public:
    using QLineEdit::QLineEdit;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// A field for one number: its keys are digits, sign, point, comma and exponent. What stands in it goes to a
/// text of the state at every change.
class NumberField : public PlainEdit {
  public:
    NumberField(const char* name, const QString& tip, std::string& text);

    /// Shows the text of the state again.
    void refresh();
    bool shows(const std::string& text) const { return &text == &text_; }  ///< whether it is that very text

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    std::string& text_;
};

/// Moves the focus to the field and selects what stands in it.
void askAgain(QLineEdit& field);

/// Enter in `field` moves on to `next`.
void enterMovesTo(QLineEdit& field, std::function<QWidget*()> next);

}  // namespace norlaplan

#pragma once

#include <QLineEdit>
#include <functional>
#include <string>

namespace norlaplan {

/// A field for one number: its keys are digits, sign, point, comma and exponent. What stands in it goes to a
/// text of the state at every change.
class NumberField : public QLineEdit {
  public:
    NumberField(const char* name, const QString& tip, std::string& text);

    /// Shows the text of the state again.
    void refresh();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    std::string& text_;
};

/// Enter in `field` moves on to `next`.
void enterMovesTo(QLineEdit& field, std::function<QWidget*()> next);

}  // namespace norlaplan

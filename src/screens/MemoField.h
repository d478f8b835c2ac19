#pragma once

#include <QPlainTextEdit>

namespace norlaplan {

/// A field for a text of several lines, this many of them in view. Tab leaves it, and Alt with a letter goes
/// to whatever that presses.
class MemoField : public QPlainTextEdit {
  public:
    MemoField(const char* name, const QString& tip, int lines);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace norlaplan

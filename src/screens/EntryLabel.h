#pragma once

#include <QLabel>

class QShortcut;

namespace norlaplan {

/// The caption of a field: Alt with its underlined letter goes to the field that is its buddy. Its text stays
/// the stated caption.
class EntryLabel : public QLabel {
  public:
    using QLabel::QLabel;

    /// A null character takes the letter away.
    void setLetter(QChar letter);
    QChar letter() const { return letter_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void goToField();

    QChar letter_;
    QShortcut* shortcut_ = nullptr;
};

}  // namespace norlaplan

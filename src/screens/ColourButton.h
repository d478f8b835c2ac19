#pragma once

#include <QAbstractButton>

#include "state/Canvas.h"

namespace norlaplan {

/// A square in a colour; a click is to change it.
class ColourButton : public QAbstractButton {
  public:
    /// `tip` says what has the colour, to a screen reader as well.
    ColourButton(const char* name, const QString& tip);

    void showColour(Colour colour);
    Colour colour() const { return colour_; }

    QSize sizeHint() const override { return {28, 28}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    Colour colour_ = colours::kBlack;
};

}  // namespace norlaplan

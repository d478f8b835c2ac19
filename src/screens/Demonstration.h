#pragma once

#include <QFrame>
#include <array>
#include <cstddef>

#include "state/ProgramFolder.h"

class QTimer;

namespace norlaplan {

class Picture;

/// The demonstration of axial play: thirteen pictures in its frame, one at a time, each for a tenth of a
/// second. All else goes on while it plays.
class Demonstration : public QFrame {
  public:
    /// The pictures are called "Image1" to "Image13", the timer that turns them "Timer1".
    explicit Demonstration(const char* name);

    /// Shows the frame and plays from the first picture, `\bkground\C1.BMP`; at the end the frame hides.
    void play(const ProgramFolder& folder);
    void stop();

  protected:
    /// It doesn't go on behind a screen that was left.
    void hideEvent(QHideEvent* event) override;

  private:
    void showNext();

    std::array<Picture*, 13> images_{};
    QTimer* timer_;
    std::size_t step_ = 0;  ///< pictures shown so far
};

}  // namespace norlaplan

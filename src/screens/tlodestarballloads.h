#pragma once

#include <vector>

#include "loaddist/BallLoadGraph.h"
#include "screens/Form.h"

class QGroupBox;
class QLabel;
class QLayout;
class QScrollBar;

namespace norlaplan {

class BallLoadPicture;
class ColourButton;

/// The ball loads of the last solve as spikes on the ball circle, which the user turns, tilts, scales and
/// colours.
class tlodestarballloads : public Form {
  public:
    explicit tlodestarballloads(Screens& screens);

    void opened() override;

  private:
    /// One colour of the drawing and the square that shows it.
    struct Swatch {
        ColourButton* button;
        Colour BallLoadColours::*colour;
    };

    void makeScrolls();
    QGroupBox* colourFrame();
    QLayout* scrollColumn(QLabel& caption, QScrollBar& bar);
    void layOut();

    /// A bar has been moved: its value goes to `to`, and the graph is drawn anew.
    void moved(Single BallLoadView::*to, int value);
    void pickColour(const Swatch& swatch);
    void refresh();
    /// Draws; false where the view can't be drawn.
    bool draw();
    void showScrolls();
    void tell(const std::optional<ShownBall>& ball);
    void print();

    BallLoadView view_;
    BallLoadPicture* picture_;
    QScrollBar *yaw_, *pitch_, *radius_;
    std::vector<Swatch> swatches_;
    QLabel* readout_;
};

}  // namespace norlaplan

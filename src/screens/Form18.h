#pragma once

#include "fits/PlayGraph.h"
#include "screens/Form.h"

class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace norlaplan {

class Demonstration;
class GraphView;

/// Axial play: how far the rings of the bearing in hand move along the axis and tilt, against its clearance.
class Form18 : public Form {
  public:
    explicit Form18(Screens& screens);

    void opened() override;

  private:
    QWidget* graphs();
    QWidget* choices();
    void makeButtons();
    void nameScrollBar();

    void showGraph(PlayGraph which);
    void showComments(bool shown);
    PlayGraph graphOnShow() const;
    void print();
    void save();

    GraphView *play_, *tilt_;
    QLabel* readout_;
    QRadioButton *playOption_, *tiltOption_;
    Demonstration* demonstration_;
    QGroupBox* comments_;
    QPushButton* commentButton_;
};

}  // namespace norlaplan

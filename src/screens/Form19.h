#pragma once

#include <array>

#include "documents/Document.h"
#include "screens/Form.h"

class QGroupBox;
class QLabel;
class QPushButton;

namespace norlaplan {

class Picture;

/// Load-life calculation: what the entered loads do to the current bearing.
class Form19 : public Form {
  public:
    explicit Form19(Screens& screens);

    void opened() override;
    void cameBack() override;
    void closed() override;

  protected:
    /// Unlike the close button, Escape only leaves: the screen before comes back.
    void escaped() override;

  private:
    QGroupBox* sizeFrame();
    QGroupBox* loadFrame();
    QGroupBox* styleFrame();
    QGroupBox* resultFrame();
    QGroupBox* commentFrame();
    void makeButtons();
    void layOut();

    void showOptions();
    void showInputs();
    void showStyle();
    void showResults();
    void showWarnings();
    void clearResults();
    void calculate();
    /// Whether the results are those of the bearing and loads in hand, solved again where they aren't.
    bool lifeInHand();
    /// The solve was given up or unstable: the load screen comes back with its corrected loads.
    void leaveUnsolved();

    void goToPrevious();
    void goToMainMenu();
    Document document() const;
    void print();
    void save();

    QLabel *bore_, *od_, *height_;
    QLabel *radial_, *axial_, *moment_, *speed_;
    QGroupBox* styleGroup_;
    Picture *stylePicture_, *loadSketch_;
    QLabel *life_, *hours_, *safety_, *torque_;
    QLabel* verdict_;
    std::array<QLabel*, 2> warnings_;  ///< each hidden until there is one to show
    QPushButton *save_, *ballPlot_, *lubeFilm_, *contactStress_, *analysis_;
};

}  // namespace norlaplan

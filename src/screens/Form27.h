#pragma once

#include <vector>

#include "loaddist/LubeFilm.h"
#include "screens/Form.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace norlaplan {

/// Lube film check: the film under the heaviest loaded ball of the last solve, and what it does to the life.
class Form27 : public Form {
  public:
    explicit Form27(Screens& screens);

    void opened() override;

  private:
    QGroupBox* bearingFrame();
    QGroupBox* lubricantFrame();
    QGroupBox* unitFrame();
    QGroupBox* densityFrame();
    QGroupBox* resultFrame();
    void layOut();

    ViscosityUnit unit() const;
    void takeDensity(double specificGravity);
    void unmarkDensities();
    /// What was computed stands for what is entered: a change takes it off the screen.
    void hideResults();
    void calculate();
    void showResults(const FilmResult& result);

    std::vector<QLabel*> bearing_;
    QLineEdit *specificGravity_, *viscosity_;
    QRadioButton *ssu_, *centistokes_;
    std::vector<QRadioButton*> densities_;
    QGroupBox* results_;
    QLabel *maxBallLoad_, *innerSpeed_, *outerSpeed_;
    QLabel *film_, *lambda_, *lifeFactor_, *minimumViscosity_;
    QLabel *comment_, *noUnit_;
};

}  // namespace norlaplan

#pragma once

#include "screens/Form.h"

class QLabel;
class QPushButton;

namespace norlaplan {

class NumberField;
class Picture;

/// Bearing load input: the load case, for a known bearing or for the search.
class Form14 : public Form {
  public:
    explicit Form14(Screens& screens);

    void opened() override;
    void closed() override;

  private:
    void refresh();
    /// Reads the fields; false when a message was shown and the screen stays.
    bool enter();
    void proceed();
    void goToPrevious();
    void goToMainMenu();

    QLabel *radialLabel_, *axialLabel_, *momentLabel_, *speedLabel_;
    NumberField *radial_, *axial_, *moment_, *speed_;
    Picture* picture_;
    QPushButton *proceed_, *previous_, *mainMenu_;
};

}  // namespace norlaplan

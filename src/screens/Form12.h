#pragma once

#include <array>

#include "screens/Form.h"

class QLabel;
class QPushButton;

namespace norlaplan {

class NumberField;
class Picture;

/// Bearing size selection: the envelope that a bearing must fit.
class Form12 : public Form {
  public:
    explicit Form12(Screens& screens);

    void opened() override;

  private:
    void goToPrevious();
    void proceed();
    void refresh();

    std::array<QLabel*, 4> labels_{};
    NumberField *minBore_, *maxOd_, *minHeight_, *maxHeight_;
    Picture* picture_;
    QPushButton *previous_, *proceed_, *mainMenu_;
};

}  // namespace norlaplan

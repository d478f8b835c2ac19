#pragma once

#include "screens/Form.h"

class QRadioButton;

namespace norlaplan {

/// Choice of the units of measurement.
class Form6 : public Form {
  public:
    explicit Form6(Screens& screens);

    void opened() override;

  private:
    void accept();

    QRadioButton *us_, *metric_;
};

}  // namespace norlaplan

#pragma once

#include "screens/Form.h"

class QPushButton;
class QRadioButton;

namespace norlaplan {

/// List sort options.
class Form13 : public Form {
  public:
    explicit Form13(Screens& screens);

    void opened() override;

  private:
    void process();

    QRadioButton *bore_, *od_, *life_, *availability_;
    QRadioButton *ascending_, *descending_;
    QPushButton* process_;
};

}  // namespace norlaplan

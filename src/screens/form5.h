#pragma once

#include "screens/Form.h"

namespace norlaplan {

class OfficeNote;

/// What stands in this program's window while the office program shows the training.
class form5 : public Form {
  public:
    explicit form5(Screens& screens);

    void opened() override;

  private:
    OfficeNote* note_;
    QPushButton* menu_;
};

}  // namespace norlaplan

#pragma once

#include "screens/Form.h"

namespace norlaplan {

/// The About box.
class Form4 : public Form {
  public:
    explicit Form4(Screens& screens);

    void opened() override;

  private:
    QPushButton* close_;
};

}  // namespace norlaplan

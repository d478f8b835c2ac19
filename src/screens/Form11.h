#pragma once

#include <array>

#include "screens/Form.h"

class QLineEdit;

namespace norlaplan {

/// User information: the eight texts about the user, kept from one run to the next.
class Form11 : public Form {
  public:
    explicit Form11(Screens& screens);

    void opened() override;
    void closed() override { saveAndLeave(); }

  private:
    void saveAndLeave();

    std::array<QLineEdit*, 8> fields_{};
};

}  // namespace norlaplan

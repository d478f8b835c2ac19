#pragma once

#include <array>

#include "screens/Form.h"
#include "state/SearchRecords.h"

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

    struct Column {
        QRadioButton* option;
        SortColumn sort;
    };

    std::array<Column, 4> columns_;
    QRadioButton *ascending_, *descending_;
    QPushButton* process_;
};

}  // namespace norlaplan

#pragma once

#include "screens/Form.h"

class QLabel;

namespace norlaplan {

class BallGrid;

/// What the last solve found of every ball of both rows.
class lodestarform : public Form {
  public:
    explicit lodestarform(Screens& screens);

    void opened() override;

  private:
    QLabel* bearing_;
    BallGrid *firstRow_, *secondRow_;
    int shownSolve_ = -1;
};

}  // namespace norlaplan

#pragma once

#include "screens/Form.h"

class QLabel;
class QPushButton;

namespace norlaplan {

class GraphView;

/// Preload torque: the starting torque of the bearing in hand against its preload.
class Form23 : public Form {
  public:
    explicit Form23(Screens& screens);

    void opened() override;
    void cameBack() override { opened(); }

  private:
    void print();
    void save();

    GraphView* picture_;
    QLabel* readout_;
    QPushButton* save_;
};

}  // namespace norlaplan

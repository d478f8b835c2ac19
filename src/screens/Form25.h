#pragma once

#include "deflection/GraphFields.h"
#include "screens/Form.h"

class QComboBox;
class QGroupBox;

namespace norlaplan {

class NumberField;

/// Graph adjustment: the axes of the deflection graph as the user wants them.
class Form25 : public Form {
  public:
    explicit Form25(Screens& screens);

    void opened() override;

  private:
    QGroupBox* axisFrame(const char* name, const char* caption, NumberField& maximum, NumberField& major,
                         const char* formatCaption, QComboBox& format);
    void redrawGraphs();

    GraphFields fields_;  ///< what is typed, until it is taken
    NumberField *xMax_, *xMajor_, *yMax_, *yMajor_;
    QComboBox *xFormat_, *yFormat_;
};

}  // namespace norlaplan

#pragma once

#include <array>

#include "screens/Form.h"

class QComboBox;
class QGroupBox;
class QLabel;

namespace norlaplan {

class GraphView;
class NumberField;

/// Modified fitups: the shaft and housing for a range of temperature.
class Form31 : public Form {
  public:
    explicit Form31(Screens& screens);

    void opened() override;

  private:
    /// A part that has a material: the list, the field of its coefficient and the coefficient's unit.
    struct Part {
        QComboBox* material;
        NumberField* expansion;
        QLabel* unit;
    };

    QGroupBox* temperatureFrame();
    /// `labels` are the names of those of list and field.
    QGroupBox* partFrame(const char* name, const QString& caption, const Part& part,
                         std::array<const char*, 2> labels);
    Part makePart(const char* list, const char* field, const char* unit, const QString& spoken,
                  std::string& text);
    void layOut();
    void makeButtons();

    /// Puts the coefficient of the chosen material into its field.
    void takeMaterial(const Part& part);
    void refreshFields();
    /// Reads the fields and shows the sizes; false when a message was shown instead.
    bool compute();
    void showResults();
    void draw();
    /// As `draw`, without a fault where there is nothing to draw.
    void drawIfPossible();
    void calculate();
    void print();
    void save();

    NumberField *high_, *low_;
    QLabel *highUnit_, *lowUnit_;
    Part shaft_, housing_;
    QLabel *shaftLine_, *housingLine_, *comment_;
    GraphView* picture_;
};

}  // namespace norlaplan

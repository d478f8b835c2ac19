#pragma once

#include <array>
#include <vector>

#include "deflection/DeflectionTexts.h"
#include "screens/Form.h"
#include "state/DeflectionResult.h"

class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace norlaplan {

class GraphPicture;
class NumberField;

/// Deflection of the current bearing under preload: spring rates, relief loads, constants and curves.
class Form24 : public Form {
  public:
    explicit Form24(Screens& screens);

    void opened() override;
    void closed() override;

  protected:
    /// Unless the option for them is on, the constants lie beneath the window's lower end.
    QSize sizeFor(const QSize& room) const override;

  private:
    /// A value of the result, with the label before and the unit behind it.
    struct Value {
        QLineEdit* field;
        QLabel* unit;
    };
    struct Curve {
        DeflectionLoad load;
        GraphPicture* picture;
        QLabel* end;  ///< says where the curve ends
    };

    QGroupBox* entryFrame();
    QGroupBox* rateFrame();
    QGroupBox* curveFrame();
    QGroupBox* constantFrame();
    QLabel* addEntry(QGridLayout& grid, int row, const char* caption, NumberField& field);
    void addRates(QGridLayout& grid, int row, const char* load, const Value& rate, const Value& relief);
    void addConstant(QGridLayout& grid, int row, int column, const char* caption, const Value& value);
    Curve addCurve(QGridLayout& grid, int column, DeflectionLoad load, const char* picture, const char* name);
    void makeButtons();

    void showFields();
    void showUnits();
    void showPreloads();
    void showStyle();
    void showResults();
    void showConstants(const DeflectionTexts& texts);
    void showCurve(const Curve& curve);
    /// What the results are for, in a sentence.
    QString resultsFor() const;

    void choosePreload(int row);
    void calculate();
    void openGraph(DeflectionLoad load);
    void print();
    void goToMainMenu();

    QGroupBox *entries_, *constants_;
    NumberField *preload_, *maxRadial_, *maxAxial_, *maxMoment_;
    QComboBox *preloads_, *axialPoints_;
    std::array<QLabel*, 4> entryUnits_;
    Value radialRate_, radialRelief_, axialRate_, axialRelief_, momentRate_, momentRelief_;
    Value radialConstant_, momentConstant1_, momentConstant2_, initialTilt_, initialAngle_;
    QLabel* resultsFor_;
    std::vector<Curve> curves_;
    QPushButton* print_;
    std::vector<QWidget*> notRadial_;  ///< what a radial contact bearing doesn't have
    std::vector<QWidget*> fourPoint_;  ///< what a four-point bearing alone has
};

}  // namespace norlaplan

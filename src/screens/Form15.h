#pragma once

#include "catalogue/Subroutines.h"
#include "screens/Form.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QStandardItemModel;

namespace norlaplan {

class HitTable;
class Picture;

/// Life calculation results: the list of bearings that fit, and the one that is chosen.
class Form15 : public Form {
  public:
    explicit Form15(Screens& screens);

    void opened() override;
    void cameBack() override;

  private:
    QGroupBox* requirementsFrame();
    QGroupBox* loadsFrame();
    QGroupBox* styleFrame();
    QGroupBox* resultsFrame();
    QGroupBox* chosenFrame();
    void layOut();
    void connectChoice();

    /// Shows the rows anew after a sort; false when there was none.
    bool takeSortedList();
    void search();
    void showRequirements();
    /// Fills the list from the rows and chooses one of them, counted from 1; the lines of freshly computed
    /// ones carry their over-speed marks.
    void fillList(bool fresh, int entry);
    void choose(int index);
    void keepLow();
    DecodeEnd decodeChosen();

    void goToMainMenu();
    void goToPrevious();
    void sort();
    /// Sorts by the column whose head was clicked: upward, by a second click downward.
    void sortByHead(int column);
    void showDataSheet();
    void print();
    void save();

    QLabel *minBore_, *maxOd_, *minHeight_, *maxHeight_;
    QLabel *radial_, *axial_, *moment_, *speed_;
    QGroupBox *styleGroup_, *chosenGroup_;
    Picture* picture_;
    QLabel* listHead_;
    QComboBox* list_;
    HitTable* table_;
    QStandardItemModel* rows_;
    QLabel *chosenBore_, *chosenOd_, *chosenHeight_, *hint_, *warning_;
    QPushButton* shortCut_;
};

}  // namespace norlaplan

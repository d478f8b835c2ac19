#pragma once

#include <QButtonGroup>
#include <vector>

#include "loaddist/AnalysisEntry.h"
#include "loaddist/AnalysisNumbers.h"
#include "loaddist/ShowAnalysisResults.h"
#include "screens/Form.h"

class QComboBox;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace norlaplan {

struct EntrySpec;
struct ResultSpec;

/// The load distribution analysis: what the last solve was given and what it found. An entry is stored and
/// starts no solve; what a solve wrote stays until the next one.
class DataForm : public Form {
  public:
    explicit DataForm(Screens& screens);

    void opened() override;

  private:
    struct NumberEntry {
        const AnalysisNumber* number;
        QLineEdit* field;
        double shown = 0.0;  ///< the value whose text stands in the field
    };
    struct TextEntry {
        const AnalysisText* text;
        QLineEdit* field;
    };

    QGroupBox* customerFrame();
    QGroupBox* bearingFrame();
    QGroupBox* loadFrame();
    QGroupBox* materialFrame(const char* name, const QString& caption, QComboBox*& list);
    QGroupBox* frictionFrame();
    QGroupBox* unitFrame();
    QGroupBox* lifeFrame();
    QGroupBox* staticFrame();
    QGroupBox* deflectionFrame();
    QGroupBox* checkFrame();
    void layOut();
    void makeButtons();
    void connectEntries();

    QGridLayout* entryGrid(QGroupBox& frame);
    QLineEdit* addEntry(QGridLayout& grid, const EntrySpec& spec);
    QLineEdit* entryField(const EntrySpec& spec, const char* control, const char* unit);
    void addChoices(QGridLayout& grid, const char* caption, QButtonGroup& group,
                    std::initializer_list<QRadioButton*> options);
    QLineEdit* resultField(const char* control, const QString& spoken);
    QLabel* addResults(QGridLayout& grid, const ResultSpec& spec);

    /// Shows what the last solve was given and found.
    void fill();
    /// Shows the numbers that have changed; `given` as it was entered, the others as they were worked out.
    void showNumbers(const AnalysisNumber* given);
    void showTexts();
    void showStyle();
    void showResults();
    void store(NumberEntry& entry);
    void store(TextEntry& entry);
    void chooseListed(AnalysisBody body, int row);

    std::vector<NumberEntry> numbers_;
    std::vector<TextEntry> texts_;
    std::vector<QLineEdit*> entries_, results_;  ///< in the order of the Tab key
    std::vector<QWidget*> pairOnly_;
    QButtonGroup styles_, spacingSigns_, units_;
    QComboBox *ballList_ = nullptr, *raceList_ = nullptr;
    QLabel *meanLoads_, *maxBallLoad_, *stress_, *ellipse_, *radial_, *axial_, *tilt_;
    std::vector<QWidget*> afterSolve_;  ///< hidden until there are results
    int shownSolve_ = -1;
};

}  // namespace norlaplan

#include "screens/DataForm.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <map>

#include "numbers/Text.h"
#include "screens/FormBuilder.h"
#include "screens/NumberField.h"
#include "screens/Screens.h"

namespace norlaplan {
namespace {

constexpr std::array<char, 3> kStyles = {'X', 'B', 'F'};
enum Units { kEnglish, kMetric };
enum Sign { kPositive, kNegative };

bool isPair(const SolverState& solver) {
    return solver.StyleIsB || solver.StyleIsF;
}

/// Enter leads from field to field and from the last one back to the first, past those that are out of use.
void enterRunsThrough(const std::vector<QLineEdit*>& fields) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        enterMovesTo(*fields[i], [fields, i]() -> QWidget* {
            std::size_t next = i;
            do {
                next = (next + 1) % fields.size();
            } while (!fields[next]->isEnabled());
            return fields[next];
        });
    }
}

}  // namespace

DataForm::DataForm(Screens& screens) : Form(screens, forms::kAnalysis, "Lodestar stripped down") {
    layOut();
    makeButtons();
    connectEntries();
}

void DataForm::makeButtons() {
    QPushButton* const more = button("Command1", "More", "Show the data of every ball",
                                     [this] { screens().showInstead(*this, forms::kBallResults); });
    QPushButton* const close =
        button("Command3", "CLose", "Return to the load-life calculation", [this] { closed(); });
    setFooter({.previous = close, .others = {more}});
}

void DataForm::connectEntries() {
    for (NumberEntry& entry : numbers_) {
        on(entry.field, &QLineEdit::editingFinished, entry.field->accessibleName().toStdString(),
           [this, &entry] { store(entry); });
    }
    for (TextEntry& entry : texts_) {
        on(entry.field, &QLineEdit::editingFinished, entry.field->accessibleName().toStdString(),
           [this, &entry] { store(entry); });
    }
    enterRunsThrough(entries_);
    const auto listed = [this](QComboBox* list, AnalysisBody body) {
        connect(list, &QComboBox::activated, this, [this, list, body](int row) {
            run(list->accessibleName().toStdString(), [this, body, row] { chooseListed(body, row); });
        });
    };
    listed(ballList_, AnalysisBody::Ball);
    listed(raceList_, AnalysisBody::Race);
    connect(&units_, &QButtonGroup::idClicked, this,
            [this] { run("Output units", [this] { showResults(); }); });
    connect(&styles_, &QButtonGroup::idClicked, this, [this](int id) {
        run("Style", [this, id] {
            chooseStyle(state().solver, kStyles[static_cast<std::size_t>(id)]);
            showNumbers(nullptr);
            showStyle();
        });
    });
    connect(&spacingSigns_, &QButtonGroup::idClicked, this, [this](int id) {
        run("Centerline Spacing", [this, id] {
            state().analysis.spacingNegative = id == kNegative;
            editCenterlineSpacing(state().solver, state().solver.CenterlineSpacing, id == kNegative);
            showNumbers(nullptr);
        });
    });
}

void DataForm::opened() {
    // Of the same solve stands what the user left, and what a side check has changed since.
    if (shownSolve_ != state().solver.solveNumber)
        fill();
    else
        showNumbers(nullptr);
    entries_.front()->setFocus();
}

void DataForm::fill() {
    const SolverState& solver = state().solver;
    for (NumberEntry& entry : numbers_) {
        // The clearance of a pair is worked out by the solver from its contact angle.
        const bool workedOut = isPair(solver) && entry.field->objectName() == QStringLiteral("Text43");
        entry.field->setText(
            QString::fromStdString(analysisText(*entry.number, state(), entry.number->given && !workedOut)));
        entry.shown = entry.number->value(state());
    }
    units_.button(kEnglish)->setChecked(true);
    showTexts();
    showStyle();
    showResults();
    shownSolve_ = solver.solveNumber;
}

void DataForm::showNumbers(const AnalysisNumber* given) {
    for (NumberEntry& entry : numbers_) {
        const double value = entry.number->value(state());
        if (entry.number != given && value == entry.shown) continue;
        entry.field->setText(
            QString::fromStdString(analysisText(*entry.number, state(), entry.number == given)));
        entry.shown = value;
    }
}

void DataForm::showTexts() {
    const AnalysisNotes& notes = state().analysis;
    for (TextEntry& entry : texts_)
        entry.field->setText(QString::fromStdString(notes.*entry.text->text));
    ballList_->setCurrentIndex(materialRow(notes.ballMaterial));
    raceList_->setCurrentIndex(materialRow(notes.raceMaterial));
}

void DataForm::showStyle() {
    const SolverState& solver = state().solver;
    // A radial bearing has none of the three, and a group that excludes would keep one.
    styles_.setExclusive(false);
    const std::array<bool, 3> is = {solver.StyleIsX, solver.StyleIsB, solver.StyleIsF};
    for (std::size_t i = 0; i < is.size(); ++i)
        styles_.button(static_cast<int>(i))->setChecked(is[i]);
    styles_.setExclusive(true);
    spacingSigns_.button(state().analysis.spacingNegative ? kNegative : kPositive)->setChecked(true);
    for (QWidget* const widget : pairOnly_)
        widget->setEnabled(isPair(solver));
}

void DataForm::showResults() {
    const bool metric = units_.checkedId() == kMetric;
    const AnalysisUnits units = metric ? AnalysisUnits::Metric : AnalysisUnits::English;
    const AnalysisCaptions captions = analysisCaptions(units);
    meanLoads_->setText(captions.meanLoads);
    maxBallLoad_->setText(captions.maxBallLoad);
    stress_->setText(captions.stress);
    ellipse_->setText(captions.ellipse);
    radial_->setText(captions.radial);
    axial_->setText(captions.axial);
    tilt_->setText(captions.tilt);
    const SolverState& solver = state().solver;
    std::map<QString, QString> texts;
    if (solver.converged) {
        const AnalysisResults results = ShowAnalysisResults(solver, units);
        for (const auto* const fields : {&results.fields, &results.checks}) {
            for (const AnalysisField& field : *fields)
                texts[field.control] = QString::fromStdString(field.text);
        }
    }
    for (QLineEdit* const field : results_) {
        field->setText(texts[field->objectName()]);
        field->setCursorPosition(0);
    }
    for (QWidget* const widget : afterSolve_)
        widget->setVisible(solver.converged);
}

void DataForm::store(NumberEntry& entry) {
    if (!entry.field->isModified()) return;
    entry.field->setModified(false);
    try {
        entry.number->store(state(), leadingNumber(entry.field->text().toStdString()));
    } catch (...) {
        showNumbers(entry.number);
        throw;
    }
    showNumbers(entry.number);
}

void DataForm::store(TextEntry& entry) {
    if (!entry.field->isModified()) return;
    entry.field->setModified(false);
    state().analysis.*entry.text->text = entry.field->text().toStdString();
    showTexts();
}

void DataForm::chooseListed(AnalysisBody body, int row) {
    chooseMaterial(state(), body, row);
    showNumbers(nullptr);
    showTexts();
}

}  // namespace norlaplan

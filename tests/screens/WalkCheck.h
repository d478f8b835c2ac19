#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <cmath>
#include <optional>

#include "deflection/Deflection.h"
#include "deflection/DeflectionTexts.h"
#include "screens/Afresh.h"
#include "screens/Program.h"
#include "state/StyleTable.h"

namespace norlaplan::testing {

/// Compares what the form in front shows, and what was printed or saved from it, with the same decoded,
/// solved and searched afresh. It follows the sizes that were taken on the size screen by itself.
class WalkCheck {
  public:
    WalkCheck(Program& program, Afresh& afresh) : program_(program), afresh_(afresh) {}

    /// Before a step: what the step may print or save starts empty.
    void before() {
        wasInFront_ = program_.inFront();
        program_.printer.documents.clear();
        program_.printer.canvas = {};
        std::error_code ignored;
        std::filesystem::remove(program_.files.path() / "saved.rtf", ignored);
        program_.messages.shown.clear();
        program_.messages.asked.clear();
    }

    /// After it: what is wrong, or an empty text.
    std::string after() {
        wrong_.clear();
        const std::string form = program_.inFront();
        if (wasInFront_ == "Form12" && form == "Form14") takeSizes();
        expectTrue("the entry screen leads to a search", wasInFront_ != "Form9" || form != "Form15");
        checkLoads();
        if (form == "Form3") checkMenu();
        if (form == "Form14") checkLoadScreen();
        if (form == "Form15") checkResults();
        if (form == "Form17") checkSheet();
        if (form == "Form19") checkLife();
        if (form == "Form24") checkDeflection();
        checkDocuments();
        return wrong_;
    }

  private:
    ProgramState& state() const { return program_.state; }
    const std::string& units() const { return state().unitSystem; }

    void expect(const std::string& what, const std::string& shown, const std::string& fresh) {
        if (shown != fresh && wrong_.empty())
            wrong_ = what + ": shown \"" + shown + "\", afresh \"" + fresh + "\"";
    }
    void expectTrue(const std::string& what, bool holds) {
        if (!holds && wrong_.empty()) wrong_ = what;
    }
    std::string label(const std::string& form, const char* name) {
        const auto& found = program_.control<QLabel>(form, name);
        return found.isVisible() ? found.text().toStdString() : "";
    }

    const Afresh::Bearing& fresh(const std::string& number) {
        return afresh_.bearing(number, state().bearing.zSeparatorChoice, units());
    }
    const FreshLife& freshLife(const std::string& number) {
        return afresh_.life(number, state().bearing.zSeparatorChoice, units(), state().loads);
    }

    /// What shows as a load is what is calculated with.
    void checkLoads() {
        const LoadCase& loads = state().loads;
        const UnitMode& mode = state().units;
        const auto same = [&](const char* what, Single pounds, Single shown, double factor) {
            expect(what, plainText(pounds), plainText(Single(shown * factor)));
        };
        same("radial load", loads.radialLoad, loads.radialLoadDisplay, mode.forceFactor);
        same("axial load", loads.axialLoad, loads.axialLoadDisplay, mode.forceFactor);
        same("moment", loads.momentLoad, loads.momentLoadDisplay, mode.momentFactor);
    }

    void checkMenu() {
        const std::string number = label(forms::kMainMenu, "Label3");
        expect("bearing in hand", number, state().bearing.partNumber);
        if (!number.empty())
            expectTrue("the menu shows " + number + ", which doesn't decode", fresh(number).decoded);
    }

    void checkLoadScreen() {
        const std::string caption = program_.screens.form(forms::kLoads).windowTitle().toStdString();
        const std::string& number = state().bearing.partNumber;
        if (state().knownBearingLoadInput) {
            const StyleRow* const style = styleByLetter(fresh(number).state.bearing.styleLetter);
            expectTrue("loads for " + number + " without a style", style != nullptr);
            if (style == nullptr) return;
            expect("caption", caption,
                   std::string("BEARING LOAD INPUT FOR ") + style->caption + " " + number);
            expectTrue("axial load of a radial bearing",
                       (std::string(style->styleLetter) == "C") !=
                           program_.control<QLineEdit>(forms::kLoads, "Text2").isVisible());
        } else {
            expect("caption", caption.substr(0, 23 + state().style.searchStyleCaption.size()),
                   "BEARING LOAD INPUT FOR " + state().style.searchStyleCaption);
        }
    }

    void takeSizes() {
        const auto field = [&](const char* name) {
            return Single(
                *wholeNumberText(program_.control<QLineEdit>(forms::kSizes, name).text().toStdString()));
        };
        const double factor = state().units.lengthFactor;
        sizes_.minBore = field("Text1") / factor;
        sizes_.maxOd = field("Text2") / factor;
        sizes_.minHeight = field("Text3") / factor;
        sizes_.maxHeight = field("Text4") / factor;
    }

    void checkResults() {
        const SearchCriteria& shown = state().criteria;
        const double factor = state().units.lengthFactor;
        const auto near = [&](Single display, Single inches) {
            return std::fabs(display / factor - inches) <= 0.0015 + inches * 1e-6;
        };
        expectTrue("sizes shown are not those that were taken",
                   near(shown.minBoreDisplay, sizes_.minBore) && near(shown.maxOdDisplay, sizes_.maxOd) &&
                       near(shown.minHeightDisplay, sizes_.minHeight) &&
                       near(shown.maxHeightDisplay, sizes_.maxHeight));
        const std::string unit = " " + state().units.lengthUnit;
        expect("minimum bore", label(forms::kResults, "Label1"),
               "MINIMUM BORE   = " + plainText(shown.minBoreDisplay) + unit);
        expect("radial load", label(forms::kResults, "Label5"),
               "RADIAL = " + plainText(state().loads.radialLoadDisplay) + " " + state().units.loadUnit);
        sizes_.maxHeightDisplay = shown.maxHeightDisplay;
        auto rows = state().search.rows;
        auto expected = afresh_.search(state().style, sizes_, units(), state().loads);
        expect("rows", std::to_string(rows.size()), std::to_string(expected.size()));
        if (!wrong_.empty()) return;
        if (state().loads.speed == 0.0) {
            // With no speed the hours are those that a row before had.
            for (SearchHit& hit : rows)
                hit.l10Hours = "0";
        }
        sortByText(rows);
        sortByText(expected);
        for (std::size_t i = 0; i < rows.size(); ++i)
            expect("row " + std::to_string(i), textOf(rows[i]), textOf(expected[i]));
        checkChosenRow();
    }

    static std::string textOf(const SearchHit& hit) {
        return hit.name + "|" + hit.speedLimit + "|" + hit.l10Revolutions + "|" + hit.l10Hours + "|" +
               hit.boreText + "|" + hit.odText + "|" + hit.heightText + "|" + trimmed(hit.stock);
    }
    static void sortByText(std::vector<SearchHit>& rows) {
        std::sort(rows.begin(), rows.end(),
                  [](const SearchHit& a, const SearchHit& b) { return textOf(a) < textOf(b); });
    }

    void checkChosenRow() {
        const int chosen = program_.control<QComboBox>(forms::kResults, "Combo1").currentIndex();
        if (chosen < 0 || state().search.rows.empty()) return;
        const SearchHit& hit = state().search.rows.at(static_cast<std::size_t>(chosen));
        const std::string unit = " " + state().units.lengthUnit;
        expect("chosen bearing", program_.control<QGroupBox>(forms::kResults, "Frame5").title().toStdString(),
               hit.name);
        expect("chosen bore", label(forms::kResults, "Label11"), "Bore = " + hit.boreText + unit);
        expect("chosen height", label(forms::kResults, "Label13"), "Height = " + hit.heightText + unit);
    }

    void checkSheet() {
        const std::string& number = state().bearing.partNumber;
        expectTrue("the sheet of " + number + ", which doesn't decode", fresh(number).decoded);
        const std::string records = program_.files.read("CONDENSED.DAT");
        expectTrue("the sheet is not that of " + number, records == fresh(number).sheet.records);
    }

    void checkLife() {
        const std::string title = program_.screens.form(forms::kLife).windowTitle().toStdString();
        const std::string head = "LOAD-LIFE CALCULATION FOR ";
        const std::string number = title.substr(std::min(title.size(), head.size()));
        expect("number of the life", number, state().bearing.partNumber);
        const FreshLife& life = freshLife(number);
        expectTrue("a life of " + number + ", which has none", life.solved);
        if (!wrong_.empty()) return;
        const std::string what = number + " ";
        expect(what + "bore", label(forms::kLife, "Label1"), life.bore);
        expect(what + "O.D.", label(forms::kLife, "Label2"), life.outsideDiameter);
        expect(what + "height", label(forms::kLife, "Label3"), life.height);
        expect(what + "radial load", label(forms::kLife, "Label4"), life.radial);
        expect(what + "axial load", label(forms::kLife, "Label5"), life.axial);
        expect(what + "moment", label(forms::kLife, "Label6"), life.moment);
        expect(what + "speed", label(forms::kLife, "Label7"), life.speed);
        expect(what + "life", label(forms::kLife, "Label8"), life.life);
        expect(what + "hours", label(forms::kLife, "Label9"), life.hours);
        expect(what + "safety", label(forms::kLife, "Label10"), life.safety);
        expect(what + "torque", label(forms::kLife, "Label13"), life.torque);
        expect(what + "verdict", label(forms::kLife, "Label11"), life.verdict);
    }

    void checkDeflection() {
        const auto field = [&](const char* name) {
            return program_.control<QLineEdit>(forms::kDeflection, name).text().toStdString();
        };
        const std::string& number = state().bearing.partNumber;
        expect("bearing of the deflection",
               program_.control<QGroupBox>(forms::kDeflection, "Frame1").title().toStdString(),
               "PRELOAD AND MAXIMUM LOADS OF " + number);
        const DeflectionResult& shown = state().deflection;
        DeflectionTexts texts;
        if (!shown.partNumber.empty()) {
            RecordingMessages messages;
            const BearingSpec& bearing = fresh(number).state.bearing;
            texts =
                deflectionTexts(computeDeflection(bearing, shown.input, Patience(messages)), state().units);
        }
        expect(number + " radial rate", field("Text8"), texts.radialSpringRate);
        expect(number + " axial relief load", field("Text11"), texts.axialReliefLoad);
        expect(number + " moment relief load", field("Text13"), texts.momentReliefLoad);
        expect(number + " radial constant", field("Text2"), texts.radialConstant);
        expect(number + " moment constant", field("Text5"), texts.momentConstant2);
        expect(number + " initial angle", field("Text7"), texts.initialAngle);
    }

    void checkDocuments() {
        const std::string saved = program_.files.read("saved.rtf");
        if (!saved.empty()) checkText("saved", saved);
        if (program_.printer.documents.empty()) return;
        std::string printed;
        for (const RecordingCanvas::Text& text : program_.printer.canvas.texts)
            printed += text.text + "\n";
        checkText("printed", printed);
    }

    void checkText(const std::string& how, const std::string& text) {
        const auto has = [&](const std::string& wanted) {
            expectTrue(how + " by " + wasInFront_ + " lacks " + wanted,
                       text.find(wanted) != std::string::npos);
        };
        const std::string& number = state().bearing.partNumber;
        if (wasInFront_ == "Form19") {
            const FreshLife& life = freshLife(number);
            expectTrue(how + " life of " + number + ", which has none", life.solved);
            if (!life.solved) return;
            for (const std::string& part : {number, life.l10, life.staticSafety, life.verdict})
                has(part);
        } else if (wasInFront_ == "Form17") {
            expectTrue(how + " sheet of " + number + ", which doesn't decode", fresh(number).decoded);
            has(number);
        } else if (wasInFront_ == "Form15") {
            has(state().style.searchStyleCaption);
            for (const SearchHit& hit : state().search.rows)
                has(hit.name.substr(0, 6));
        }
    }

    Program& program_;
    Afresh& afresh_;
    SearchCriteria sizes_;
    std::string wasInFront_, wrong_;
};

}  // namespace norlaplan::testing

#include "catalogue/CatalogueLookup.h"

#include "catalogue/CatalogueTable.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr int kColumns = 10;

std::string coatingTable(const std::string& precisionCode) {
    const bool fine = precisionCode == "4" || precisionCode == "6";
    return "CLS" + (fine ? precisionCode : std::string("0")) + "N.csv";
}

}  // namespace

bool lookUpCrossSection(const ProgramFolder& folder, BearingSpec& bearing) {
    CatalogueTable table =
        OpenTable(folder, plainText(bearing.crossSectionCode) + "-" + bearing.familyCode + ".csv");
    table.NextFields(bearing.filletRadius);
    table.skipFields(kColumns - 1);
    table.NextFields(bearing.height);
    table.skipFields(kColumns - 1);
    while (!table.AtEnd()) {
        std::string name;
        Single bore;
        table.NextFields(name, bearing.stockCode, bore, bearing.outsideDiameter, bearing.referenceDiameter1,
                         bearing.referenceDiameter2, bearing.referenceDiameter3, bearing.mass,
                         bearing.speedIndex, bearing.ballCount);
        if (bore == bearing.bore) return true;
    }
    return false;
}

bool lookUpPrecision(const ProgramFolder& folder, BearingSpec& bearing) {
    CatalogueTable table = OpenTable(folder, "CLS" + bearing.precisionCode + ".csv");
    table.skipFields(kColumns);
    while (!table.AtEnd()) {
        Single bore;
        table.NextFields(bore, bearing.boreTolerance, bearing.odTolerance, bearing.innerRadialRunout,
                         bearing.innerAxialRunout, bearing.outerRadialRunout, bearing.outerAxialRunout,
                         bearing.stdClearanceLow, bearing.stdClearanceHigh, bearing.widthTolerance);
        if (bore == bearing.bore) return true;
    }
    return false;
}

bool lookUpSeparator(const ProgramFolder& folder, BearingSpec& bearing) {
    CatalogueTable table = OpenTable(folder, bearing.familyCode == "A" ? "ASEPARATOR.CSV" : "XSEPARATOR.CSV");
    while (!table.AtEnd()) {
        std::string code;
        table.NextFields(code, bearing.separatorText, bearing.separatorOverlay);
        if (code == bearing.separatorCode) return true;
    }
    return false;
}

bool lookUpFit(const ProgramFolder& folder, BearingSpec& bearing) {
    CatalogueTable table = OpenTable(folder, "Fitnumber.doc");
    while (!table.AtEnd()) {
        std::string letter;
        table.NextFields(letter, bearing.fitLow, bearing.fitHigh, bearing.clearanceKind);
        if (letter == bearing.fitLetter) return true;
    }
    return false;
}

std::optional<Coating> lookUpCoating(const ProgramFolder& folder, const BearingSpec& bearing) {
    CatalogueTable table = OpenTable(folder, coatingTable(bearing.precisionCode));
    table.skipFields(5);
    while (!table.AtEnd()) {
        Single bore;
        Coating coating;
        table.NextFields(bore, coating.boreAddition, coating.boreToleranceBase, coating.odAddition,
                         coating.odToleranceBase);
        if (bore == bearing.bore) return coating;
    }
    return std::nullopt;
}

}  // namespace norlaplan

#include "catalogue/CatalogueLookup.h"

#include <cstddef>
#include <vector>

#include "catalogue/CatalogueTable.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr int kColumns = 10;

/// Notes what is no number in the rows that a lookup by bore reads.
class BoreFaults {
  public:
    BoreFaults(CatalogueTable& table, TableFaults& faults) : table_(table), faults_(faults) {
        faults_.add(table_.takeFaults());
    }
    ~BoreFaults() { faults_.add(keys_); }
    BoreFaults(const BoreFaults&) = delete;
    BoreFaults& operator=(const BoreFaults&) = delete;

    /// Reads the key of a row.
    void takeKey(Single& bore) {
        const std::size_t before = table_.faults().size();
        table_.NextFields(bore);
        keys_.insert(keys_.end(), table_.faults().begin() + static_cast<std::ptrdiff_t>(before),
                     table_.faults().end());
    }
    /// Whether the row that was read to its end is the wanted one.
    bool ends(bool wanted) {
        const std::vector<TableFault> ofRow = table_.takeFaults();
        if (!wanted) return false;
        keys_ = ofRow;
        return true;
    }

  private:
    CatalogueTable& table_;
    TableFaults& faults_;
    std::vector<TableFault> keys_;
};

std::string coatingTable(const std::string& precisionCode) {
    const bool fine = precisionCode == "4" || precisionCode == "6";
    return "CLS" + (fine ? precisionCode : std::string("0")) + "N.csv";
}

}  // namespace

bool lookUpCrossSection(const CatalogueSource& source, BearingSpec& bearing) {
    CatalogueTable table =
        OpenTable(source.folder, plainText(bearing.crossSectionCode) + "-" + bearing.familyCode + ".csv");
    table.NextFields(bearing.filletRadius);
    table.skipFields(kColumns - 1);
    table.NextFields(bearing.height);
    table.skipFields(kColumns - 1);
    BoreFaults faults(table, source.faults);
    while (!table.AtEnd()) {
        std::string name;
        Single bore;
        table.NextFields(name, bearing.stockCode);
        faults.takeKey(bore);
        table.NextFields(bearing.outsideDiameter, bearing.referenceDiameter1, bearing.referenceDiameter2,
                         bearing.referenceDiameter3, bearing.mass, bearing.speedIndex, bearing.ballCount);
        if (faults.ends(bore == bearing.bore)) return true;
    }
    return false;
}

bool lookUpPrecision(const CatalogueSource& source, BearingSpec& bearing) {
    CatalogueTable table = OpenTable(source.folder, "CLS" + bearing.precisionCode + ".csv");
    table.skipFields(kColumns);
    BoreFaults faults(table, source.faults);
    while (!table.AtEnd()) {
        Single bore;
        faults.takeKey(bore);
        table.NextFields(bearing.boreTolerance, bearing.odTolerance, bearing.innerRadialRunout,
                         bearing.innerAxialRunout, bearing.outerRadialRunout, bearing.outerAxialRunout,
                         bearing.stdClearanceLow, bearing.stdClearanceHigh, bearing.widthTolerance);
        if (faults.ends(bore == bearing.bore)) return true;
    }
    return false;
}

bool lookUpSeparator(const CatalogueSource& source, BearingSpec& bearing) {
    CatalogueTable table =
        OpenTable(source.folder, bearing.familyCode == "A" ? "ASEPARATOR.CSV" : "XSEPARATOR.CSV");
    while (!table.AtEnd()) {
        std::string code;
        table.NextFields(code, bearing.separatorText, bearing.separatorOverlay);
        if (code == bearing.separatorCode) return true;
    }
    return false;
}

bool lookUpFit(const CatalogueSource& source, BearingSpec& bearing) {
    CatalogueTable table = OpenTable(source.folder, "Fitnumber.doc");
    while (!table.AtEnd()) {
        std::string letter;
        table.NextFields(letter, bearing.fitLow, bearing.fitHigh, bearing.clearanceKind);
        const std::vector<TableFault> ofRow = table.takeFaults();
        if (letter != bearing.fitLetter) continue;
        source.faults.add(ofRow);
        return true;
    }
    return false;
}

std::optional<Coating> lookUpCoating(const CatalogueSource& source, const BearingSpec& bearing) {
    CatalogueTable table = OpenTable(source.folder, coatingTable(bearing.precisionCode));
    table.skipFields(5);
    BoreFaults faults(table, source.faults);
    while (!table.AtEnd()) {
        Single bore;
        Coating coating;
        faults.takeKey(bore);
        table.NextFields(coating.boreAddition, coating.boreToleranceBase, coating.odAddition,
                         coating.odToleranceBase);
        if (faults.ends(bore == bearing.bore)) return coating;
    }
    return std::nullopt;
}

}  // namespace norlaplan

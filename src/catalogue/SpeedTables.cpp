#include "catalogue/SpeedTables.h"

#include <string>

#include "catalogue/CatalogueTable.h"

namespace norlaplan {
namespace {

void readBlock(CatalogueTable& table, std::string& key, SpeedBlock& block) {
    table.NextFields(key);
    table.skipFields(23);
    table.NextFields(block);
}

const char* tableName(const std::string& styleLetter) {
    if (styleLetter == "X") return "SPEEDX.CSV";
    return styleLetter == "C" ? "SPEEDC.CSV" : "SPEEDA.CSV";
}

}  // namespace

std::optional<SpeedLine> findSpeedLine(const ProgramFolder& folder, const BearingSpec& bearing) {
    CatalogueTable table(folder, tableName(bearing.styleLetter));
    SpeedLine line;
    while (!table.AtEnd()) {
        std::string key;
        // Of the two keys of a four-point line the second one counts.
        if (bearing.styleLetter == "X") readBlock(table, key, line.thrust);
        readBlock(table, key, line.other);
        if (key == bearing.separatorCode) return line;
    }
    return std::nullopt;
}

}  // namespace norlaplan

#include "catalogue/SpeedTables.h"

#include <algorithm>
#include <array>
#include <string>
#include <tuple>

namespace norlaplan {
namespace {

template <typename Number>
std::string readBlock(CatalogueTable& table, SpeedBlock& block) {
    std::string key;
    table.NextFields(key);
    table.skipFields(23);
    std::array<Number, std::tuple_size_v<SpeedBlock>> numbers;
    table.NextFields(numbers);
    std::copy(numbers.begin(), numbers.end(), block.begin());
    return key;
}

const char* tableName(const std::string& styleLetter) {
    if (styleLetter == "X") return "SPEEDX.CSV";
    return styleLetter == "C" ? "SPEEDC.CSV" : "SPEEDA.CSV";
}

}  // namespace

std::string readSpeedLine(CatalogueTable& table, const std::string& styleLetter, SpeedLine& line) {
    if (styleLetter != "X") return readBlock<Single>(table, line.other);
    readBlock<double>(table, line.thrust);
    return readBlock<double>(table, line.other);
}

std::optional<SpeedLine> findSpeedLine(const CatalogueSource& source, const BearingSpec& bearing) {
    CatalogueTable table(source.folder, tableName(bearing.styleLetter));
    SpeedLine line;
    while (!table.AtEnd()) {
        const std::string key = readSpeedLine(table, bearing.styleLetter, line);
        const std::vector<TableFault> ofLine = table.takeFaults();
        if (key != bearing.separatorCode) continue;
        source.faults.add(ofLine);
        return line;
    }
    return std::nullopt;
}

}  // namespace norlaplan

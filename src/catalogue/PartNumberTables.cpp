#include "catalogue/PartNumberTables.h"

#include "catalogue/CatalogueLookup.h"

namespace norlaplan {

Fault readCrossSection(const ProgramFolder& folder, BearingSpec& bearing) {
    if (lookUpCrossSection(folder, bearing)) return std::nullopt;
    return Message{"Retry Data Entry", "Bore size not found"};
}

Fault readPrecision(const ProgramFolder& folder, BearingSpec& bearing) {
    if (lookUpPrecision(folder, bearing)) return std::nullopt;
    return Message{"Bore data not found", "Error in precision tables"};
}

Fault readSeparator(const ProgramFolder& folder, BearingSpec& bearing) {
    if (bearing.separatorCode == "Z" && bearing.zSeparatorChoice.empty())
        return Message{"Missing Data", "Please specify which Z separator"};
    bearing.separatorCode += bearing.zSeparatorChoice;
    if (lookUpSeparator(folder, bearing)) return std::nullopt;
    return Message{"WRONG SEPARATOR CODE", "SEPARATOR NOT PERMITTED FOR THIS BEARING"};
}

Fault readFit(const ProgramFolder& folder, BearingSpec& bearing) {
    if (bearing.fitLetter == kNoFit || lookUpFit(folder, bearing)) return std::nullopt;
    return Message{"Please correct Part Number", "Unavailable fitup", Icon::Critical};
}

}  // namespace norlaplan

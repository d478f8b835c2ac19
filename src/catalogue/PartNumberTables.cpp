#include "catalogue/PartNumberTables.h"

#include "catalogue/CatalogueLookup.h"

namespace norlaplan {

Fault readCrossSection(const CatalogueSource& source, BearingSpec& bearing) {
    if (lookUpCrossSection(source, bearing)) return std::nullopt;
    return Message{"Retry Data Entry", "Bore size not found"};
}

Fault readPrecision(const CatalogueSource& source, BearingSpec& bearing) {
    if (lookUpPrecision(source, bearing)) return std::nullopt;
    return Message{"Bore data not found", "Error in precision tables"};
}

Fault readSeparator(const CatalogueSource& source, BearingSpec& bearing) {
    if (bearing.separatorCode == "Z" && bearing.zSeparatorChoice.empty())
        return Message{"Missing Data", "Please specify which Z separator"};
    bearing.separatorCode += bearing.zSeparatorChoice;
    if (lookUpSeparator(source, bearing)) return std::nullopt;
    return Message{"WRONG SEPARATOR CODE", "SEPARATOR NOT PERMITTED FOR THIS BEARING"};
}

Fault readFit(const CatalogueSource& source, BearingSpec& bearing) {
    if (bearing.fitLetter == kNoFit || lookUpFit(source, bearing)) return std::nullopt;
    return Message{"Please correct Part Number", "Unavailable fitup", Icon::Critical};
}

}  // namespace norlaplan

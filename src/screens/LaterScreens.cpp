#include "screens/LaterScreens.h"

#include <map>

namespace norlaplan {

Message notInThisVersion(const std::string& name) {
    static const std::map<std::string, std::string> kPlainNames = {
        {"Form4", "The About box"},
        {"Form7", "The page of this product line"},
        {"Form11", "The user information screen"},
        {"Form12", "The size screen"},
        {"Form13", "The sort screen"},
        {"Form14", "The load screen"},
        {"Form15", "The list of search results"},
        {"Form16", "The style screen"},
        {"Form18", "The axial play screen"},
        {"Form19", "The load-life screen"},
        {"Form22", "The help index"},
        {"Form23", "The preload torque screen"},
        {"Form24", "The deflection screen"},
        {"Form29", "The picture browser"},
        {"Form31", "The thermal fits screen"},
        {"Form10", "The application form"},
        {"Form28", "The fax cover page"},
        {"Training", "The bearing training"},
        {"Mail", "Sending by mail"},
        {"Export", "The export file"},
    };
    const auto found = kPlainNames.find(name);
    const std::string what = found == kPlainNames.end() ? "This screen" : found->second;
    return {"Norlaplan MM", what + " is not part of this version of the program.", Icon::Information};
}

}  // namespace norlaplan

#include "cli/Reports.h"

#include "cli/LoadedBearing.h"
#include "documents/DataSheet.h"
#include "documents/LoadLifeReport.h"
#include "documents/SearchReport.h"

namespace norlaplan::cli {
namespace {

Document dataSheet(Session& session, const Arguments& arguments) {
    session.decode(arguments.number);
    return dataSheetDocument(session.state().bearing.partNumber, session.sheet().records,
                             [&session] { return session.sheet().rtf; });
}

Document life(Session& session, const Arguments& arguments) {
    calculateLife(session, arguments.number, arguments.loads);
    return loadLifeDocument(session.state(), session.folder(), session.clock());
}

Document list(Session& session, const Arguments& arguments) {
    runSearch(session, arguments.search, arguments.loads);
    return searchDocument(session.state(), session.clock());
}

constexpr Report kDataSheet{"datasheet", "The data sheet as a file", kNumber, &dataSheet};

constexpr Report kReports[] = {
    {"life", "The load-life report", kNumber | kLoads, &life},
    {"search", "The list of a search", kSearch | kLoads, &list},
};

}  // namespace

const Report& dataSheetReport() {
    return kDataSheet;
}

std::span<const Report> reports() {
    return kReports;
}

}  // namespace norlaplan::cli

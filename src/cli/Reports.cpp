#include "cli/Reports.h"

#include <memory>

#include "cli/CommandError.h"
#include "cli/LoadedBearing.h"
#include "deflection/AxisRule.h"
#include "deflection/DeflectionReport.h"
#include "documents/DataSheet.h"
#include "documents/LoadLifeReport.h"
#include "documents/SearchReport.h"
#include "fits/PlayReport.h"
#include "fits/ThermalFitsReport.h"
#include "fits/TorqueReport.h"
#include "loaddist/BallLoadGraph.h"
#include "loaddist/ContactDrawing.h"

namespace norlaplan::cli {
namespace {

Document dataSheet(Session& session, const Arguments& arguments) {
    session.decode(arguments.number);
    const auto sheet = std::make_shared<const SheetFiles>(session.sheet());
    return dataSheetDocument(session.state().bearing.partNumber, sheet->records,
                             [sheet] { return sheet->rtf; });
}

Document life(Session& session, const Arguments& arguments) {
    calculateLife(session, arguments.number, arguments.loads);
    return loadLifeDocument(session.state(), session.folder(), session.clock());
}

Document list(Session& session, const Arguments& arguments) {
    runSearch(session, arguments.search, arguments.loads);
    return searchDocument(session.state(), session.clock());
}

Document ballLoads(Session& session, const Arguments& arguments) {
    calculateLife(session, arguments.number, arguments.loads);
    const ProgramState& state = session.state();
    return ballLoadsDocument(state, openingView(state.solver), session.clock());
}

Document contact(Session& session, const Arguments& arguments) {
    calculateLife(session, arguments.number, arguments.loads);
    return contactDocument(session.state(), checkContact(session.state(), arguments.row), session.clock());
}

DeflectionLoad loadOf(const std::string& graph) {
    if (graph == kAxialGraph) return DeflectionLoad::Axial;
    return graph == kMomentGraph ? DeflectionLoad::Moment : DeflectionLoad::Radial;
}

Document deflection(Session& session, const Arguments& arguments) {
    const DeflectionLoad load = loadOf(arguments.deflection.graph);
    calculateDeflection(session, arguments.number, arguments.deflection);
    const ProgramState& state = session.state();
    if (!hasCurve(state.deflection, load)) {
        throw CommandError(ErrorKind::Message, "Deflection Graph",
                           state.deflection.partNumber + " has no curve of " + arguments.deflection.graph +
                               " deflection: a radial contact bearing carries radial loads only");
    }
    const DeflectionGraphData data = deflectionGraphData(state.deflection, load, state.units);
    GraphSettings settings;
    applyAxisRule(settings, data.dataMaxX, data.dataMaxY);
    return deflectionDocument(data, settings, state.user.userName, session.clock());
}

Document torque(Session& session, const Arguments& arguments) {
    calculateTorque(session, arguments.number);
    return torqueDocument(session.state(), session.clock());
}

Document play(Session& session, const Arguments& arguments) {
    calculatePlay(session, arguments.number);
    return playDocument(session.state(), PlayGraph::AxialPlay, session.clock());
}

Document tilt(Session& session, const Arguments& arguments) {
    calculatePlay(session, arguments.number);
    return playDocument(session.state(), PlayGraph::Tilt, session.clock());
}

Document fits(Session& session, const Arguments& arguments) {
    calculateFits(session, arguments.number, arguments.fits);
    return thermalFitsDocument(session.state(), session.clock());
}

constexpr OutputKinds kAll = OutputKinds::RtfAndPictures;

constexpr Report kDataSheet{"datasheet", "The data sheet as a file", kNumber, kAll, &dataSheet};

constexpr Report kReports[] = {
    {"life", "The load-life report", kNumber | kLoads, kAll, &life},
    {"search", "The list of a search", kSearch | kLoads, kAll, &list},
    {"ballloads", "The loads of all balls around the bearing", kNumber | kLoads, OutputKinds::Pictures,
     &ballLoads},
    {"contact", "Stress and contact ellipse of the heaviest loaded ball", kNumber | kLoads | kRow,
     OutputKinds::Pictures, &contact},
    {"deflection", "The graph of a deflection curve", kNumber | kDeflection, kAll, &deflection},
    {"torque", "The graph of starting torque against preload", kNumber, kAll, &torque},
    {"play", "The graph of axial play against clearance", kNumber, kAll, &play},
    {"tilt", "The graph of tilt against clearance", kNumber, kAll, &tilt},
    {"fits", "Shaft and housing sizes for a range of temperature", kNumber | kFits, kAll, &fits},
};

}  // namespace

const Report& dataSheetReport() {
    return kDataSheet;
}

std::span<const Report> reports() {
    return kReports;
}

}  // namespace norlaplan::cli

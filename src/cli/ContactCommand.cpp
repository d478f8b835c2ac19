#include "cli/Commands.h"
#include "cli/LoadedBearing.h"
#include "loaddist/ContactSection.h"
#include "numbers/FormatNumber.h"

namespace norlaplan::cli {

CommandResult contactCommand(Session& session, const PartNumberOption& number, const LoadOptions& loads,
                             int row) {
    calculateLife(session, number, loads);
    const ProgramState& state = session.state();
    const ContactCheck check = checkContact(state, row);
    const ContactRow& shown = check.chosen();
    const double land = contactSection(state.bearing, check).land();
    Json json;
    json["row"] = check.row;
    json["ball"] = toJson(shown.ball);
    json["load"] = toJson(shown.load);
    json["stress"] = toJson(shown.stress);
    json["majorAxis"] = toJson(Single(2.0 * shown.major));
    json["minorAxis"] = toJson(Single(2.0 * shown.minor));
    json["contactAngle"] = shown.angle;
    json["land"] = toJson(land);
    std::string text =
        "Compressive Stress for " + state.bearing.partNumber + "\n" + check.groupCaption(check.row) + "\n";
    for (const std::string& line : shown.lines())
        text += line + "\n";
    return {json, text + "Land = " + FormatNumber(land, "0.000") + " in.\n"};
}

}  // namespace norlaplan::cli

#include <vector>

#include "cli/Commands.h"
#include "cli/LoadedBearing.h"
#include "loaddist/LubeFilm.h"

namespace norlaplan::cli {
namespace {

Json filmJson(const FilmResult& result) {
    Json json;
    json["maxBallLoad"] = toJson(result.maxBallLoad);
    json["film"] = toJson(result.film);
    json["lambda"] = toJson(result.lambda);
    json["lifeFactor"] = toJson(result.lifeFactor);
    json["minimumViscosity"] = toJson(result.minimumViscosity);
    json["comment"] = result.comment;
    json["stress"] = toJson(result.stress);
    json["ellipticity"] = toJson(result.ellipticity);
    return json;
}

std::string filmText(const ProgramState& state, const FilmResult& result) {
    std::string text = state.bearing.partNumber + "\n";
    const FilmTexts texts = filmTexts(result, state.units);
    std::vector<std::string> lines = filmBearingLines(state);
    for (const std::string& line :
         {texts.maxBallLoad, texts.innerSpeed, texts.outerSpeed, std::string(), texts.film, texts.lambda,
          texts.lifeFactor, texts.minimumViscosity, texts.comment}) {
        lines.push_back(line);
    }
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

}  // namespace

CommandResult filmCommand(Session& session, const PartNumberOption& number, const LoadOptions& loads,
                          const FilmOptions& options) {
    calculateLife(session, number, loads);
    const Lubricant lubricant{options.specificGravity, options.viscosity,
                              options.unit == "SSU" ? ViscosityUnit::Ssu : ViscosityUnit::Centistokes};
    const FilmResult result = computeLubeFilm(session.state(), lubricant, session.messages());
    return {filmJson(result), filmText(session.state(), result)};
}

}  // namespace norlaplan::cli

#include <vector>

#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/TextTable.h"
#include "deflection/Deflection.h"
#include "deflection/DeflectionFieldEntry.h"
#include "deflection/DeflectionTexts.h"
#include "numbers/FormatNumber.h"
#include "state/MenuConditions.h"

namespace norlaplan::cli {
namespace {

using Row = std::vector<std::string>;

template <typename Number>
Json optionalJson(const std::optional<Number>& value) {
    return value ? toJson(*value) : Json(nullptr);
}

Json curveJson(const std::vector<CurvePoint>& curve) {
    if (curve.empty()) return nullptr;
    Json points = Json::array();
    for (const CurvePoint& point : curve)
        points.push_back({toJson(point.load), toJson(point.deflection)});
    return points;
}

Json deflectionJson(const DeflectionResult& result, const DeflectionTexts& texts) {
    Json json;
    json["radialSpringRate"] = optionalJson(result.radialSpringRate);
    json["radialReliefLoad"] = optionalJson(result.radialReliefLoad);
    json["axialSpringRate"] = optionalJson(result.axialSpringRate);
    json["axialReliefLoad"] = optionalJson(result.axialReliefLoad);
    json["momentSpringRate"] = optionalJson(result.momentSpringRate);
    json["momentReliefLoad"] = optionalJson(result.momentReliefLoad);
    json["radialConstant"] = optionalJson(result.radialConstant);
    json["momentConstant1"] = optionalJson(result.momentConstant1);
    json["momentConstant2"] = optionalJson(result.momentConstant2);
    json["initialTilt"] = optionalJson(result.initialTilt);
    json["initialAngle"] = texts.initialAngle.empty() ? Json(nullptr) : toJson(texts.initialAngle);
    json["curveOffset"] = toJson(result.curveOffset);
    json["axialPoints"] = texts.axialPoints.empty() ? Json(nullptr) : Json(texts.axialPoints);
    json["radialCurve"] = curveJson(result.radialCurve);
    json["axialCurve"] = curveJson(result.axialCurve);
    json["momentCurve"] = curveJson(result.momentCurve);
    return json;
}

/// A column for each load that the style carries.
std::string constantsTable(const DeflectionResult& result, const DeflectionTexts& texts,
                           const UnitMode& units) {
    const std::string linear = " (" + units.loadUnit + ", " + units.lengthUnit + ")";
    std::vector<Row> rows = {{"", "Radial" + linear}};
    if (result.input.preload != 0.0) {
        rows.push_back({"Spring rate", texts.radialSpringRate});
        rows.push_back({"Relief load", texts.radialReliefLoad});
    }
    rows.push_back({"Deflection constant", texts.radialConstant});
    if (result.axialPoints.empty()) return textTable(rows, true);
    rows[0].insert(rows[0].end(), {"Axial" + linear, "Moment (" + units.momentUnit + ", radians)"});
    if (result.input.preload != 0.0) {
        rows[1].insert(rows[1].end(), {texts.axialSpringRate, texts.momentSpringRate});
        rows[2].insert(rows[2].end(), {texts.axialReliefLoad, texts.momentReliefLoad});
    }
    rows.back().insert(rows.back().end(), {"", texts.momentConstant1});
    rows.push_back({"Linear constant", "", "", texts.momentConstant2});
    if (result.initialTilt) rows.push_back({"Initial tilt", "", "", texts.initialTilt});
    if (result.initialAngle) rows.push_back({"Initial angle (degrees)", "", "", texts.initialAngle});
    return textTable(rows, true);
}

/// Appends a curve's columns in display units.
void addColumns(std::vector<Row>& rows, const std::vector<CurvePoint>& curve, const Row& heads,
                double loadFactor, double deflectionFactor) {
    if (curve.empty()) return;
    rows[0].insert(rows[0].end(), heads.begin(), heads.end());
    for (std::size_t i = 0; i < curve.size(); ++i) {
        rows[i + 1].push_back(FormatNumber(curve[i].load / loadFactor, "#,##0.0"));
        rows[i + 1].push_back(FormatNumber(curve[i].deflection * deflectionFactor, "0.000000"));
    }
}

std::string curvesTable(const DeflectionResult& result, const UnitMode& units) {
    std::vector<Row> rows(result.radialCurve.size() + 1);
    const std::string deflection = "Deflection (" + units.lengthUnit + ")";
    addColumns(rows, result.radialCurve, {"Radial (" + units.loadUnit + ")", deflection}, units.forceFactor,
               units.lengthFactor);
    addColumns(rows, result.axialCurve, {"Axial (" + units.loadUnit + ")", deflection}, units.forceFactor,
               units.lengthFactor);
    addColumns(rows, result.momentCurve, {"Moment (" + units.momentUnit + ")", "Tilt (radians)"},
               units.momentFactor, 1.0);
    return textTable(rows, true);
}

std::string deflectionText(const DeflectionResult& result, const DeflectionTexts& texts,
                           const UnitMode& units) {
    std::string text = result.partNumber + (isPreloadAxial(result.styleLetter) ? ", axial" : ", diametral") +
                       " preload " + FormatNumber(result.input.preload * units.lengthFactor, "0.000000") +
                       " " + units.lengthUnit + "\n\n" + constantsTable(result, texts, units);
    if (!texts.axialPoints.empty()) {
        text += "\nNon-linear axial deflection\nLoad    Angle    Deflection\n";
        for (const std::string& row : texts.axialPoints)
            text += row + "\n";
    }
    return text + "\n" + curvesTable(result, units);
}

}  // namespace

void calculateDeflection(Session& session, const PartNumberOption& number, const DeflectionOptions& options) {
    session.decode(number);
    ProgramState& state = session.state();
    refuse(loadableBearingRefusal(state));
    DeflectionEntry entry = proposedDeflectionEntry(state.bearing, state.units);
    entry.preload = options.preload;
    entry.maxRadialLoad = options.maxRadial.value_or(entry.maxRadialLoad);
    entry.maxAxialLoad = options.maxAxial.value_or(entry.maxAxialLoad);
    entry.maxMomentLoad = options.maxMoment.value_or(entry.maxMomentLoad);
    state.deflection =
        computeDeflection(state.bearing, deflectionInput(entry, state.units), Patience(session.messages()));
}

CommandResult deflectionCommand(Session& session, const PartNumberOption& number,
                                const DeflectionOptions& options) {
    calculateDeflection(session, number, options);
    const ProgramState& state = session.state();
    const DeflectionTexts texts = deflectionTexts(state.deflection, state.units);
    return {deflectionJson(state.deflection, texts), deflectionText(state.deflection, texts, state.units)};
}

}  // namespace norlaplan::cli

#include <algorithm>
#include <vector>

#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/TextTable.h"
#include "deflection/Deflection.h"
#include "deflection/DeflectionFieldEntry.h"
#include "deflection/DeflectionTexts.h"
#include "numbers/FormatNumber.h"
#include "state/DeflectionValues.h"
#include "state/MenuConditions.h"

namespace norlaplan::cli {
namespace {

Json curveJson(const std::vector<CurvePoint>& curve) {
    return curve.empty() ? Json(nullptr) : rowsJson(curve, &CurvePoint::load, &CurvePoint::deflection);
}

Json deflectionJson(const DeflectionResult& result, const DeflectionTexts& texts) {
    Json json;
    visitDeflection(result, [&](const char* name, const auto& value) {
        json[name] = jsonOrNull(value ? &*value : nullptr);
    });
    json["initialAngle"] = jsonOrNull(texts.initialAngle.empty() ? nullptr : &texts.initialAngle);
    json["curveOffset"] = toJson(result.curveOffset);
    json["axialPoints"] = texts.axialPoints.empty() ? Json(nullptr) : Json(texts.axialPoints);
    json["radialCurve"] = curveJson(result.radialCurve);
    json["axialCurve"] = curveJson(result.axialCurve);
    json["momentCurve"] = curveJson(result.momentCurve);
    return json;
}

/// A column for each load that the style carries, and a row for what there is of any of them.
std::string constantsTable(const DeflectionResult& result, const DeflectionTexts& texts,
                           const UnitMode& units) {
    const std::string linear = " (" + units.loadUnit + ", " + units.lengthUnit + ")";
    TextRows rows = {{"", "Radial" + linear, "Axial" + linear, "Moment (" + units.momentUnit + ", radians)"},
                     {"Spring rate", texts.radialSpringRate, texts.axialSpringRate, texts.momentSpringRate},
                     {"Relief load", texts.radialReliefLoad, texts.axialReliefLoad, texts.momentReliefLoad},
                     {"Deflection constant", texts.radialConstant, "", texts.momentConstant1},
                     {"Linear constant", "", "", texts.momentConstant2},
                     {"Initial tilt", "", "", texts.initialTilt},
                     {"Initial angle (degrees)", "", "", texts.initialAngle}};
    if (result.axialPoints.empty()) {
        for (TextRow& row : rows)
            row.resize(2);
    }
    std::erase_if(rows, [](const TextRow& row) {
        return std::all_of(row.begin() + 1, row.end(), [](const std::string& cell) { return cell.empty(); });
    });
    return textTable(rows, true);
}

/// Appends a curve's columns in display units.
void addColumns(TextRows& rows, const std::vector<CurvePoint>& curve, const TextRow& heads, double loadFactor,
                double deflectionFactor) {
    if (curve.empty()) return;
    rows[0].insert(rows[0].end(), heads.begin(), heads.end());
    for (std::size_t i = 0; i < curve.size(); ++i) {
        rows[i + 1].push_back(FormatNumber(curve[i].load / loadFactor, "#,##0.0"));
        rows[i + 1].push_back(FormatNumber(curve[i].deflection * deflectionFactor, "0.000000"));
    }
}

std::string curvesTable(const DeflectionResult& result, const UnitMode& units) {
    TextRows rows(result.radialCurve.size() + 1);
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

#pragma once

#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "capacity/LoadLife.h"
#include "catalogue/Subroutines.h"
#include "numbers/FormatNumber.h"
#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "search/SearchEngine.h"
#include "state/LoadEntry.h"
#include "support/Folders.h"
#include "support/RecordingPorts.h"
#include "support/SearchCases.h"

namespace norlaplan::testing {

/// What the load-life screen has to show of one bearing under one load case.
struct FreshLife {
    bool solved = false;
    std::string bore, outsideDiameter, height, radial, axial, moment, speed;
    std::string life, hours, safety, torque, verdict;
    std::string l10, staticSafety;
};

/// Decodes, solves and searches from nothing, in a state of its own and on the catalogue as it is shipped:
/// what a program says that has done nothing before.
class Afresh {
  public:
    struct Bearing {
        bool decoded = false;
        ProgramState state;
        SheetFiles sheet;
    };

    const Bearing& bearing(const std::string& number, const std::string& zChoice, const std::string& units) {
        const auto [place, isNew] = bearings_.try_emplace({number, zChoice, units});
        Bearing& fresh = place->second;
        if (!isNew) return fresh;
        fresh.state = start(units);
        fresh.state.bearing.zSeparatorChoice = zChoice;
        RecordingMessages messages = patient();
        MemorySheets sheets;
        FixedClock clock;
        DecodeServices services{folder_, messages, clock, &sheets};
        std::string decoded = number;
        // A number that the decoder has to put right was not a decoded one.
        fresh.decoded =
            DecodePartNumber(fresh.state, decoded, services).end == DecodeEnd::Decoded && decoded == number;
        if (fresh.decoded) fresh.sheet = sheets.stored.back();
        return fresh;
    }

    /// Of the loads, what was entered counts; pounds are made here.
    const FreshLife& life(const std::string& number, const std::string& zChoice, const std::string& units,
                          const LoadCase& loads) {
        const auto [place, isNew] = lives_.try_emplace({number, zChoice, units, keyOf(loads)});
        if (isNew) place->second = solve(bearing(number, zChoice, units), loads);
        return place->second;
    }

    const std::vector<SearchHit>& search(const BearingStyle& style, const SearchCriteria& sizes,
                                         const std::string& units, const LoadCase& loads) {
        const std::vector<float> key = {sizes.minBore.stored(), sizes.maxOd.stored(),
                                        sizes.minHeight.stored(), sizes.maxHeight.stored(),
                                        sizes.maxHeightDisplay.stored()};
        const auto [place, isNew] =
            searches_.try_emplace({style.searchStyleCaption, units, key, keyOf(loads)});
        if (!isNew) return place->second;
        ProgramState state = start(units);
        state.style = style;
        state.criteria = sizes;
        enter(state, loads);
        RecordingMessages messages;
        NeverStops watch;
        try {
            RunBearingSearch(state, folder_, messages, watch);
        } catch (const RuntimeError&) {
        }
        return place->second = state.search.rows;
    }

  private:
    static ProgramState start(const std::string& units) {
        ProgramState state;
        state.unitSystem = units;
        ApplyUnitSystem(units, state.units);
        return state;
    }
    static RecordingMessages patient() {
        RecordingMessages messages;
        messages.answers.assign(5, Answer::Yes);
        return messages;
    }
    static void enter(ProgramState& state, const LoadCase& loads) {
        state.loads.radialLoadDisplay = loads.radialLoadDisplay;
        state.loads.axialLoadDisplay = loads.axialLoadDisplay;
        state.loads.momentLoadDisplay = loads.momentLoadDisplay;
        state.loads.speed = loads.speed;
        convertLoads(state);
    }
    static std::vector<float> keyOf(const LoadCase& loads) {
        return {loads.radialLoadDisplay.stored(), loads.axialLoadDisplay.stored(),
                loads.momentLoadDisplay.stored(), loads.speed.stored()};
    }

    static FreshLife solve(const Bearing& fresh, const LoadCase& loads) {
        FreshLife texts;
        if (!fresh.decoded) return texts;
        ProgramState state = fresh.state;
        enter(state, loads);
        RecordingMessages messages = patient();
        try {
            texts.solved = computeLoadLife(state, messages);
        } catch (const RuntimeError&) {
        }
        if (!texts.solved) return texts;
        const UnitMode& units = state.units;
        const auto length = [&](const char* name, double inches) {
            return name + FormatNumber(inches * units.lengthFactor, units.lengthPicture) + " " +
                   units.lengthUnit;
        };
        const auto load = [&](const char* name, double value, const std::string& unit) {
            return name + FormatNumber(value, units.loadPicture) + " " + unit;
        };
        texts.bore = length("BORE       = ", state.bearing.bore);
        texts.outsideDiameter = length("O. D.      = ", state.bearing.outsideDiameter);
        texts.height = length("HEIGHT     = ", state.bearing.height);
        texts.radial = load("RADIAL = ", state.loads.radialLoadDisplay, units.loadUnitWord);
        texts.axial = load("AXIAL  = ", state.loads.axialLoadDisplay, units.loadUnitWord);
        texts.moment = load("MOMENT = ", state.loads.momentLoadDisplay, units.momentUnitWord);
        texts.l10 = plainText(state.life.l10Revolutions);
        texts.life = "L10 LIFE = " + texts.l10 + " REVOLUTIONS";
        texts.staticSafety = plainText(state.life.staticSafetyFactor);
        texts.safety = "STATIC SAFETY FACTOR = " + texts.staticSafety;
        texts.torque = torqueLine(state);
        if (loads.speed == 0.0) return texts;
        texts.speed = "SPEED =  " + plainText(loads.speed) + " RPM";
        texts.hours = "L10 LIFE = " + plainText(state.life.l10Hours) + " HOURS";
        texts.verdict = state.life.speedVerdict;
        return texts;
    }

    ProgramFolder folder_{programFolder()};
    std::map<std::tuple<std::string, std::string, std::string>, Bearing> bearings_;
    std::map<std::tuple<std::string, std::string, std::string, std::vector<float>>, FreshLife> lives_;
    std::map<std::tuple<std::string, std::string, std::vector<float>, std::vector<float>>,
             std::vector<SearchHit>>
        searches_;
};

}  // namespace norlaplan::testing

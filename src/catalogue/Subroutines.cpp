#include "catalogue/Subroutines.h"

#include "catalogue/CodeTexts.h"
#include "catalogue/DerivedData.h"
#include "catalogue/FitRangeText.h"
#include "catalogue/PartNumberChecks.h"
#include "catalogue/PartNumberTables.h"
#include "catalogue/SectionConstants.h"
#include "documents/DataSheet.h"
#include "numbers/RuntimeError.h"
#include "state/Patience.h"

namespace norlaplan {
namespace {

/// Whatever the table says, a bearing is told as limited: availability is settled with the maker.
void setAvailability(BearingSpec& bearing) {
    bearing.stockCode = 2;
    bearing.limitedFlag = "Y";
    bearing.availabilityText = "   LIMITED AVAILABILITY, PLEASE CONTACT VARDEN";
}

void setMaterial(BearingSpec& bearing) {
    bearing.materialText = materialTextOf(bearing.materialCode);
    bearing.bearingExpansion = bearing.materialCode == "K" ? 7.0e-6 : 5.6e-6;
}

void decode(ProgramState& state, std::string& number, DecodeServices& services, TableFaults& faults) {
    const CatalogueSource source{services.folder, faults};
    BearingSpec& bearing = state.bearing;
    state.decoded.takeOff();
    checkPartNumber(number, bearing, services.messages);
    bearing.partNumber = number;
    refuseFor(readCrossSection(source, bearing));
    refuseFor(readPrecision(source, bearing));
    refuseFor(readSeparator(source, bearing));
    setAvailability(bearing);
    setMaterial(bearing);
    setSectionConstants(bearing, state.units);
    bearing.styleText = styleTextOf(bearing.styleLetter);
    bearing.precisionText = precisionTextOf(bearing.precisionCode);
    refuseFor(readFit(source, bearing));
    bearing.fitRangeText = fitRangeTextOf(bearing, state.units);
    deriveBearingData(state, source, services.messages);
    if (services.sheets == nullptr) {
        checkDataSheet(bearing, services.folder);
    } else {
        services.sheets->store(makeDataSheet(state, services.folder, services.clock));
    }
    state.decoded.set(bearing, state.units.system);
}

/// Tells why a run has ended. Without its number the mix of two bearings that is left is never read.
void giveUp(ProgramState& state, MessagePort& messages, const Message& message) {
    messages.show(message);
    state.bearing.partNumber.clear();
}

DecodeResult backToEntry(ProgramState& state, MessagePort& messages, const Message& message) {
    giveUp(state, messages, message);
    return {DecodeEnd::BackToEntry, false, std::nullopt};
}

DecodeResult fail(ProgramState& state, MessagePort& messages, const RuntimeError& error) {
    if (error.number() == fault::kFileNotFound) {
        DecodeResult result =
            backToEntry(state, messages,
                        {"Please recheck validity of part number", "Unexpected error in part-number entry"});
        result.failed = true;
        result.faultNumber = error.number();
        return result;
    }
    giveUp(state, messages, {"Please contact Varden with " + std::to_string(error.number()), error.what()});
    return {DecodeEnd::Stopped, true, error.number()};
}

}  // namespace

DecodeResult DecodePartNumber(ProgramState& state, std::string& number, DecodeServices& services) {
    // What is wrong in the tables is told before a refusal, which it may explain.
    TableFaults faults;
    try {
        decode(state, number, services, faults);
        faults.tell(services.messages);
        return {};
    } catch (const Refusal& refusal) {
        faults.tell(services.messages);
        return backToEntry(state, services.messages, refusal.message);
    } catch (const RuntimeError& error) {
        faults.tell(services.messages);
        return fail(state, services.messages, error);
    } catch (const NotConverging& error) {
        faults.tell(services.messages);
        giveUp(state, services.messages, {NotConverging::title(), error.what()});
        return {DecodeEnd::Stopped, true, std::nullopt};
    }
}

}  // namespace norlaplan

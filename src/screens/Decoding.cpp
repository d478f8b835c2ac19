#include "screens/Decoding.h"

#include "screens/BusyPointer.h"
#include "screens/Form9.h"

namespace norlaplan {

DecodeEnd decodeBearing(Screens& screens, std::string number) {
    const Services& services = screens.services();
    DecodeServices decode{services.folder, services.messages, services.clock, &services.sheets};
    const BusyPointer busy;
    const DecodeEnd end = DecodePartNumber(services.state, number, decode).end;
    if (end == DecodeEnd::BackToEntry) {
        // Nothing but the menu stands behind the entry screen: what was open worked on a bearing that is
        // gone.
        screens.showAlone(forms::kMainMenu);
        screens.formAs<Form9>(forms::kPartNumber).startAgain();
    }
    return end;
}

bool bearingInHand(Screens& screens) {
    const ProgramState& state = screens.services().state;
    if (state.decoded.holds(state.bearing, state.units.system)) return true;
    const DecodeEnd end = decodeBearing(screens, state.bearing.partNumber);
    if (end == DecodeEnd::Stopped) screens.showAlone(forms::kMainMenu);
    return end == DecodeEnd::Decoded;
}

}  // namespace norlaplan

#include "screens/Decoding.h"

#include "screens/BusyPointer.h"
#include "screens/Form9.h"

namespace norlaplan {

DecodeEnd decodeCurrentBearing(Screens& screens) {
    const Services& services = screens.services();
    DecodeServices decode{services.folder, services.messages, services.clock, services.sheets};
    const BusyPointer busy;
    const DecodeEnd end = DecodePartNumber(services.state, services.state.bearing.partNumber, decode).end;
    if (end == DecodeEnd::BackToEntry) screens.formAs<Form9>(forms::kPartNumber).startAgain();
    return end;
}

}  // namespace norlaplan

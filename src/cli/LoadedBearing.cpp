#include "cli/LoadedBearing.h"

#include "cli/CommandError.h"
#include "state/MenuConditions.h"

namespace norlaplan::cli {

void calculateLife(Session& session, const PartNumberOption& number, const LoadOptions& loads) {
    session.decode(number);
    calculateLifeOfDecoded(session, loads);
}

void calculateLifeOfDecoded(Session& session, const LoadOptions& loads, BallAngles angles) {
    // As on the menu: the load screen opens only for a bearing that can be loaded.
    refuse(loadableBearingRefusal(session.state()));
    session.enter(loads);
    refuse(lifeRefusal(session.state()));
    if (!computeLoadLife(session.state(), session.messages(), angles)) session.failWithLastMessage();
    for (const std::string& warning : session.state().life.warnings)
        session.messages().show({"Load Life Calculation", warning});
}

}  // namespace norlaplan::cli

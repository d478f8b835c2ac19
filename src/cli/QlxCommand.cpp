#include "cli/Commands.h"
#include "cli/LoadedBearing.h"
#include "documents/ExportFile.h"
#include "state/WholeFile.h"

namespace norlaplan::cli {

CommandResult qlxCommand(Session& session, const PartNumberOption& number, const LoadOptions& loads,
                         const std::string& output) {
    const bool loaded =
        loads.radial != 0.0 || loads.axial != 0.0 || loads.moment != 0.0 || loads.speed != 0.0;
    if (loaded)
        calculateLife(session, number, loads);
    else
        session.decode(number);
    writeWholeFile(output, qlxText(session.state()));
    if (exportEndsEarly(session.state())) session.messages().show({"Create QLX file", kExportEndsEarly});
    return {{{"file", output}}, output + "\n"};
}

}  // namespace norlaplan::cli

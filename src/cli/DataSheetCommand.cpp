#include "cli/Commands.h"
#include "cli/OutputFile.h"
#include "documents/SheetRecords.h"

namespace norlaplan::cli {

CommandResult dataSheetCommand(Session& session, const PartNumberOption& number,
                               const std::filesystem::path& output) {
    session.decode(number);
    writeDocument({[&] { return session.sheet().rtf; },
                   [&](Canvas& canvas) { paintSheet(session.sheet().records, canvas); }},
                  output);
    return fileResult(output);
}

}  // namespace norlaplan::cli

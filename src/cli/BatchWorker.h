#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/BatchCases.h"
#include "cli/CommandError.h"
#include "cli/Session.h"

namespace norlaplan::cli {

/// A part number decoded once for all of its cases: the bearing, or why there is none.
struct DecodedPart {
    BearingSpec bearing;
    DecodedMark decoded;
    std::vector<Message> warnings;
    std::optional<CommandError> wrong;
};

/// Works on parts and cases, each as if the program had just been started, so that a result depends neither
/// on the cases before it nor on the worker.
class BatchWorker {
  public:
    explicit BatchWorker(const Session& started);

    DecodedPart decode(const PartNumberOption& number);
    /// Writes the line of the case's results behind the text. False for a case without a result, whose line
    /// tells why.
    bool solve(const Case& row, const DecodedPart& part, std::string& text);

  private:
    void startAfresh();

    Session session_;
    ProgramState started_;
};

/// The head row of the results.
std::string batchHead();

}  // namespace norlaplan::cli

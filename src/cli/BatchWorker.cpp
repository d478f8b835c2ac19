#include "cli/BatchWorker.h"

#include <utility>

#include "cli/LifeFields.h"
#include "cli/LoadedBearing.h"
#include "numbers/Text.h"

namespace norlaplan::cli {
namespace {

std::string csvText(const Single& value) {
    return shortestText(value);
}
std::string csvText(const Int16& value) {
    return plainText(static_cast<int>(value));
}
const std::string& csvText(const std::string& value) {
    return value;
}

std::string joined(const std::vector<Message>& warnings) {
    std::string text;
    for (const Message& warning : warnings)
        text += (text.empty() ? "" : "; ") + warning.title + ": " + warning.prompt;
    return text;
}

/// The case as it was asked for, then the fields of its result, empty where there is none, then what is to be
/// told of it. The part number is that of the result: repaired, as a single call gives it.
void writeLine(std::string& text, const Case& row, const ProgramState& state, const std::string& warnings,
               const std::optional<CommandError>& wrong) {
    CsvLine line(text);
    line.field(wrong ? row.partNumber : state.bearing.partNumber);
    for (const std::string& load : row.texts)
        line.field(load);
    bool first = true;
    visitLife(state, [&](const char*, const auto* value) {
        if (!std::exchange(first, false)) line.field(wrong || value == nullptr ? "" : csvText(*value));
    });
    line.field(warnings);
    line.field(wrong ? wrong->text() : "");
    line.end();
}

}  // namespace

std::string batchHead() {
    std::string text;
    CsvLine line(text);
    line.field(kPartNumberColumn);
    for (const char* const load : kLoadColumns)
        line.field(load);
    const ProgramState state;
    bool first = true;
    visitLife(state, [&](const char* name, const auto*) {
        if (!std::exchange(first, false)) line.field(name);
    });
    line.field("warnings");
    line.field("error");
    line.end();
    return text;
}

BatchWorker::BatchWorker(const Session& started) : session_(started), started_(session_.state()) {}

void BatchWorker::startAfresh() {
    session_.state() = started_;
    session_.messages().set({});
}

DecodedPart BatchWorker::decode(const PartNumberOption& number) {
    startAfresh();
    DecodedPart part;
    try {
        session_.decode(number);
        part.bearing = session_.state().bearing;
        part.decoded = session_.state().decoded;
    } catch (...) {
        part.wrong = currentError();
    }
    part.warnings = session_.messages().messages();
    return part;
}

bool BatchWorker::solve(const Case& row, const DecodedPart& part, std::string& text) {
    startAfresh();
    std::optional<CommandError> wrong = row.wrong ? row.wrong : part.wrong;
    if (!wrong) {
        session_.state().bearing = part.bearing;
        session_.state().decoded = part.decoded;
        session_.messages().set(part.warnings);
        try {
            calculateLifeOfDecoded(session_, row.loads, BallAngles::LeftOut);
        } catch (...) {
            wrong = currentError();
        }
    }
    writeLine(text, row, session_.state(), joined(session_.messages().messages()), wrong);
    return !wrong;
}

}  // namespace norlaplan::cli

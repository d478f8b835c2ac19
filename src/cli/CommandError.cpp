#include "cli/CommandError.h"

#include <new>

#include "numbers/RuntimeError.h"
#include "state/Patience.h"

namespace norlaplan::cli {
namespace {

CommandError asTold(const RuntimeError& error) {
    return {ErrorKind::Runtime, "Run-time error '" + std::to_string(error.number()) + "'", error.what(),
            error.number()};
}

}  // namespace

int CommandError::exitStatus() const {
    switch (kind_) {
        case ErrorKind::Message:
            return 1;
        case ErrorKind::Usage:
            return 2;
        case ErrorKind::Runtime:
            break;
    }
    return 3;
}

Json CommandError::json() const {
    const char* kind = kind_ == ErrorKind::Message ? "message"
                       : kind_ == ErrorKind::Usage ? "usage"
                                                   : "runtime";
    return {{"error",
             {{"kind", kind},
              {"number", number_ ? Json(*number_) : Json(nullptr)},
              {"title", title_},
              {"prompt", prompt_}}}};
}

CommandError currentError() {
    try {
        throw;
    } catch (const CommandError& error) {
        return error;
    } catch (const RuntimeError& error) {
        return asTold(error);
    } catch (const NotConverging& error) {
        return {ErrorKind::Runtime, NotConverging::title(), error.what()};
    } catch (const std::bad_alloc&) {
        return asTold(RuntimeError(fault::kOutOfMemory));
    } catch (const std::exception& error) {
        return {ErrorKind::Runtime, "Unexpected error", error.what()};
    }
}

void refuse(const std::optional<Message>& refusal) {
    if (refusal) throw CommandError(ErrorKind::Message, refusal->title, refusal->prompt);
}

}  // namespace norlaplan::cli

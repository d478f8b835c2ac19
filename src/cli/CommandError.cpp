#include "cli/CommandError.h"

namespace norlaplan::cli {

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

void refuse(const std::optional<Message>& refusal) {
    if (refusal) throw CommandError(ErrorKind::Message, refusal->title, refusal->prompt);
}

}  // namespace norlaplan::cli

#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "numbers/RuntimeError.h"

namespace norlaplan {

namespace fault {
constexpr int kNoOfficeLink = 31024;  ///< the office program is there and can't show the document
}  // namespace fault

/// The desktop's office program, which shows documents that this program has and can't show itself.
class OfficePort {
  public:
    /// Told when a show is over: nothing when it went well.
    using Ended = std::function<void(const std::optional<RuntimeError>& failure)>;

    virtual ~OfficePort() = default;

    /// Starts a slide show and comes back at once. `ended` is called once, later, unless this program ends
    /// first. Errors, at once or told to `ended`: 53 for a missing file, 429 when there is no program for it,
    /// 31024 when the program can't show it.
    virtual void startShow(const std::filesystem::path& show, Ended ended) = 0;

    /// Opens a document in a window of its own, where it stays. Errors as `startShow`, all at once.
    virtual void open(const std::filesystem::path& document) = 0;
};

}  // namespace norlaplan

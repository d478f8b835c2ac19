#pragma once

#include <utility>
#include <vector>

#include "state/FileFault.h"
#include "state/OfficePort.h"

namespace norlaplan::testing {

/// An office program that keeps what it is asked to show and ends a show when the test says so.
class RecordingOffice : public OfficePort {
  public:
    std::vector<std::filesystem::path> shows, documents;
    int fault = 0;  ///< raised instead of showing; 0 for none

    void startShow(const std::filesystem::path& show, Ended ended) override {
        take(shows, show);
        ended_ = std::move(ended);
    }
    void open(const std::filesystem::path& document) override { take(documents, document); }

    bool runs() const { return static_cast<bool>(ended_); }
    void end(const std::optional<RuntimeError>& failure = std::nullopt) {
        std::exchange(ended_, {})(failure);
    }

  private:
    void take(std::vector<std::filesystem::path>& taken, const std::filesystem::path& file) {
        if (!std::filesystem::exists(file)) throw fileFault(norlaplan::fault::kFileNotFound, file);
        if (fault != 0) raise(fault);
        taken.push_back(file);
    }

    Ended ended_;
};

}  // namespace norlaplan::testing

#include <algorithm>
#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "cli/BatchCases.h"
#include "cli/BatchWorker.h"
#include "cli/Commands.h"
#include "cli/InParallel.h"
#include "cli/Interrupts.h"
#include "cli/ProgressBar.h"
#include "state/StagedFile.h"

namespace norlaplan::cli {
namespace {

/// Cases are read, solved and written so many at a time: the memory doesn't grow with their number.
constexpr std::size_t kCasesAtATime = 2048;
/// More decoded parts than this aren't kept; a whole catalogue has fewer in any one fit and precision.
constexpr std::size_t kMostParts = 4096;

class Batch {
  public:
    Batch(const Session& session, const BatchOptions& options)
        : options_(options), cases_(options.cases), results_(options.output) {
        const auto jobs = static_cast<std::size_t>(options.jobs);
        for (std::size_t worker = 0; worker < jobs; ++worker)
            workers_.push_back(std::make_unique<BatchWorker>(session));
        results_.append(batchHead());
    }

    void run() {
        while (readSome()) {
            decodeNewParts();
            solveAll();
            Interrupts::check();
            bar_.show(cases_.partRead(), total_);
        }
        results_.commit();
    }

    std::size_t total() const { return total_; }
    std::size_t failed() const { return failed_; }

  private:
    struct Slot {
        Case row;
        const DecodedPart* part = nullptr;
        std::string line;
        bool solved = false;
    };

    bool readSome() {
        used_ = 0;
        slots_.resize(kCasesAtATime);
        while (used_ < slots_.size() && cases_.next(slots_[used_].row))
            ++used_;
        total_ += used_;
        return used_ > 0;
    }

    void decodeNewParts() {
        if (parts_.size() > kMostParts) parts_.clear();
        std::vector<std::pair<const std::string, DecodedPart>*> fresh;
        for (std::size_t i = 0; i < used_; ++i) {
            const auto [part, isNew] = parts_.try_emplace(slots_[i].row.partNumber);
            slots_[i].part = &part->second;
            if (isNew) fresh.push_back(&*part);
        }
        inParallel(workers_.size(), fresh.size(), [&](std::size_t worker, std::size_t index) {
            auto& [number, part] = *fresh[index];
            part = workers_[worker]->decode({number, options_.zSeparator});
        });
        Interrupts::check();
    }

    void solveAll() {
        inParallel(workers_.size(), used_, [&](std::size_t worker, std::size_t index) {
            Slot& slot = slots_[index];
            slot.line.clear();
            slot.solved = workers_[worker]->solve(slot.row, *slot.part, slot.line);
        });
        Interrupts::check();
        lines_.clear();
        for (std::size_t i = 0; i < used_; ++i) {
            lines_ += slots_[i].line;
            if (!slots_[i].solved) ++failed_;
        }
        results_.append(lines_);
    }

    const BatchOptions& options_;
    CaseReader cases_;
    StagedFile results_;
    ProgressBar bar_;
    std::vector<std::unique_ptr<BatchWorker>> workers_;
    std::map<std::string, DecodedPart> parts_;
    std::vector<Slot> slots_;
    std::string lines_;  ///< of the slots, one behind the other
    std::size_t used_ = 0, total_ = 0, failed_ = 0;
};

}  // namespace

CommandResult batchCommand(Session& session, const BatchOptions& options) {
    const Interrupts interrupts;
    Batch batch(session, options);
    batch.run();
    CommandResult result;
    result.json["cases"] = batch.total();
    result.json["failed"] = batch.failed();
    result.json["file"] = options.output;
    result.text = options.output + ": " + std::to_string(batch.total()) + " cases, " +
                  std::to_string(batch.failed()) + " failed\n";
    return result;
}

}  // namespace norlaplan::cli

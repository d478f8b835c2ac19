#pragma once

#include <cstddef>
#include <functional>

namespace norlaplan::cli {

/// Calls `work(worker, index)` once for each index below `count`, on `workers` threads of which each has its
/// number, from 0. The order is any; the call returns when all is done. What a call throws ends the work and
/// is thrown here. Ctrl+C ends it as well: some calls are then left out.
void inParallel(std::size_t workers, std::size_t count,
                const std::function<void(std::size_t worker, std::size_t index)>& work);

}  // namespace norlaplan::cli

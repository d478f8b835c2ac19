#pragma once

#include <functional>

namespace norlaplan::cli {

/// Runs the work in a process of its own and waits for it. A library that runs out of memory, files or stack
/// ends its process, which then isn't this one. What the work ends in is thrown here as the `CommandError`
/// that it is told as. Errors: 67 and 7 where there is no room for another process, and 7 for one that has
/// gone without a word. To be called as long as the program has one thread.
void inOwnProcess(const std::function<void()>& work);

}  // namespace norlaplan::cli

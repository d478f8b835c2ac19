#include "cli/InParallel.h"

#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

#include "cli/Interrupts.h"

namespace norlaplan::cli {

void inParallel(std::size_t workers, std::size_t count,
                const std::function<void(std::size_t worker, std::size_t index)>& work) {
    std::atomic<std::size_t> next = 0;
    std::mutex failing;
    std::exception_ptr failure;
    const auto run = [&](std::size_t worker) {
        try {
            for (std::size_t index = next++; index < count && !Interrupts::requested(); index = next++)
                work(worker, index);
        } catch (...) {
            next = count;
            const std::lock_guard lock(failing);
            if (!failure) failure = std::current_exception();
        }
    };
    {
        // The calling thread is the first worker, so that one job needs no other thread.
        std::vector<std::jthread> threads;
        for (std::size_t worker = 1; worker < workers && worker < count; ++worker)
            threads.emplace_back(run, worker);
        run(0);
    }
    if (failure) std::rethrow_exception(failure);
}

}  // namespace norlaplan::cli

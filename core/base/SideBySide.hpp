#pragma once
// Runs two independent pieces of work at the same time, the second on a helper thread, and
// waits for both: the big file formats use it to split their work over two cores. When no
// thread can be started, both pieces run here one after the other. An exception thrown by
// either piece is passed on once both have finished (the first piece's wins).

#include <exception>
#include <system_error>
#include <thread>

namespace vantello {

template <typename First, typename Second>
void runSideBySide(First&& first, Second&& second) {
    std::exception_ptr secondFailure;
    auto guardedSecond = [&] {
        try {
            second();
        } catch (...) {
            secondFailure = std::current_exception();
        }
    };
    std::thread helper;
    try {
        helper = std::thread(guardedSecond);
    } catch (const std::system_error&) {
        guardedSecond();
    }
    std::exception_ptr firstFailure;
    try {
        first();
    } catch (...) {
        firstFailure = std::current_exception();
    }
    if (helper.joinable()) helper.join();
    if (firstFailure) std::rethrow_exception(firstFailure);
    if (secondFailure) std::rethrow_exception(secondFailure);
}

// Whether splitting work of `count` items in two is worth a thread.
[[nodiscard]] inline bool worthSplitting(std::size_t count, std::size_t threshold) {
    return count >= threshold && std::thread::hardware_concurrency() > 1;
}

}  // namespace vantello

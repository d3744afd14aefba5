#include "core/base/SuddenTermination.hpp"

#include <atomic>
#include <csignal>

#include <signal.h>
#include <unistd.h>

namespace vantello::SuddenTermination {

namespace {

std::atomic<int> outstanding{0};
std::atomic<int> heldSignal{0};

static_assert(std::atomic<int>::is_always_lock_free, "used inside a signal handler");

// Ends the process the way the signal would have: default disposition, then the signal again.
// Async-signal-safe.
void terminateWith(int signalNumber) {
    struct sigaction standard {};
    standard.sa_handler = SIG_DFL;
    sigemptyset(&standard.sa_mask);
    ::sigaction(signalNumber, &standard, nullptr);
    ::kill(::getpid(), signalNumber);
}

// The request is recorded before the count is read, and enable() reads the request after it
// lowers the count, so whichever of the two comes last carries it out.
void onTerminationRequest(int signalNumber) {
    int expected = 0;
    heldSignal.compare_exchange_strong(expected, signalNumber);
    if (outstanding.load() == 0) terminateWith(heldSignal.load());
}

}  // namespace

void installHandlers() {
    struct sigaction action {};
    action.sa_handler = onTerminationRequest;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int signalNumber : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(signalNumber, &action, nullptr);
}

bool disable() {
    if (heldSignal.load() != 0) return false;
    outstanding.fetch_add(1);
    return true;
}

void enable(bool counted) {
    if (counted && outstanding.fetch_sub(1) == 1) {
        if (const int signalNumber = heldSignal.load()) terminateWith(signalNumber);
    }
}

}  // namespace vantello::SuddenTermination

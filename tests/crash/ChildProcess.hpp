#pragma once
// A real child process whose standard output the test reads line by line, and which the test
// can signal and wait for.

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace vantello::testing {

class ChildProcess {
public:
    // Starts `program` with `arguments`; throws std::runtime_error when it cannot.
    ChildProcess(const std::string& program, const std::vector<std::string>& arguments);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    // Kills and reaps a child still running.
    ~ChildProcess();

    // The next whole line of output, or nothing when none came within `timeout` or the output ended.
    [[nodiscard]] std::optional<std::string> readLine(std::chrono::milliseconds timeout);
    // Every whole line that has arrived so far, without waiting.
    [[nodiscard]] std::vector<std::string> availableLines();

    void signal(int signalNumber) const;
    // Waits for the end; the raw status of waitpid.
    int wait();

private:
    bool fill(std::chrono::milliseconds timeout);

    pid_t pid_ = -1;
    int output_ = -1;
    std::string buffered_;
    bool ended_ = false;
};

}  // namespace vantello::testing

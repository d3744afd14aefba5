#include "crash/ChildProcess.hpp"

#include <cerrno>
#include <csignal>
#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace vantello::testing {

ChildProcess::ChildProcess(const std::string& program, const std::vector<std::string>& arguments) {
    int pipeEnds[2];
    if (::pipe2(pipeEnds, O_CLOEXEC) != 0) throw std::runtime_error("pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipeEnds[1], STDOUT_FILENO);

    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (auto& word : words) argv.push_back(word.data());
    argv.push_back(nullptr);

    const int failure = ::posix_spawn(&pid_, program.c_str(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(pipeEnds[1]);
    output_ = pipeEnds[0];
    if (failure != 0) {
        ::close(output_);
        throw std::runtime_error("cannot start " + program);
    }
}

ChildProcess::~ChildProcess() {
    if (pid_ > 0) {
        ::kill(pid_, SIGKILL);
        wait();
    }
    if (output_ >= 0) ::close(output_);
}

bool ChildProcess::fill(std::chrono::milliseconds timeout) {
    if (ended_) return false;
    pollfd waiting{output_, POLLIN, 0};
    if (::poll(&waiting, 1, static_cast<int>(timeout.count())) <= 0) return false;
    char chunk[4096];
    const ssize_t count = ::read(output_, chunk, sizeof chunk);
    if (count <= 0) {
        ended_ = true;
        return false;
    }
    buffered_.append(chunk, static_cast<std::size_t>(count));
    return true;
}

std::optional<std::string> ChildProcess::readLine(std::chrono::milliseconds timeout) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        if (const auto end = buffered_.find('\n'); end != std::string::npos) {
            std::string line = buffered_.substr(0, end);
            buffered_.erase(0, end + 1);
            return line;
        }
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 || !fill(left)) return std::nullopt;
    }
}

std::vector<std::string> ChildProcess::availableLines() {
    while (fill(std::chrono::milliseconds(0))) {
    }
    std::vector<std::string> lines;
    while (auto line = readLine(std::chrono::milliseconds(0))) lines.push_back(*line);
    return lines;
}

void ChildProcess::signal(int signalNumber) const { ::kill(pid_, signalNumber); }

int ChildProcess::wait() {
    int status = 0;
    while (::waitpid(pid_, &status, 0) < 0 && errno == EINTR) {
    }
    pid_ = -1;
    return status;
}

}  // namespace vantello::testing

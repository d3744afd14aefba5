#pragma once
// A small HTTP server on the loopback interface that answers each path with a canned response,
// for downloads tested for real. It serves one request per connection, one connection at a
// time, on a thread of its own; an empty response leaves the client waiting until the server
// stops. Free of any test framework, so that every suite can use it.

#include <atomic>
#include <map>
#include <string>
#include <thread>
#include <vector>

namespace vantello::testing {

// A whole HTTP/1.1 response: "200 OK" and the body, with any further header lines (each
// ending in "\r\n").
[[nodiscard]] std::string httpResponse(const std::string& status, const std::string& body,
                                       const std::string& headers = "");

class CannedHttpServer {
public:
    // Path → whole response; an unknown path gets a 404. Throws std::runtime_error when it
    // cannot listen.
    explicit CannedHttpServer(std::map<std::string, std::string> routes);
    ~CannedHttpServer();
    CannedHttpServer(const CannedHttpServer&) = delete;
    CannedHttpServer& operator=(const CannedHttpServer&) = delete;

    // "http://127.0.0.1:<port><path>".
    [[nodiscard]] std::string url(const std::string& path) const;

private:
    void serve();

    std::map<std::string, std::string> routes_;
    int listener_ = -1;
    int port_ = 0;
    std::atomic<bool> stop_ = false;
    std::vector<int> silent_;
    std::thread thread_;
};

}  // namespace vantello::testing

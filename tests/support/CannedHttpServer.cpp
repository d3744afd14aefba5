#include "support/CannedHttpServer.hpp"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>
#include <utility>

namespace vantello::testing {

std::string httpResponse(const std::string& status, const std::string& body, const std::string& headers) {
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + std::to_string(body.size()) +
           "\r\nConnection: close\r\n" + headers + "\r\n" + body;
}

CannedHttpServer::CannedHttpServer(std::map<std::string, std::string> routes) : routes_(std::move(routes)) {
    listener_ = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    if (listener_ < 0 || ::bind(listener_, reinterpret_cast<sockaddr*>(&address), length) != 0 ||
        ::listen(listener_, 8) != 0 || ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &length) != 0) {
        if (listener_ >= 0) ::close(listener_);
        throw std::runtime_error("cannot listen on the loopback interface");
    }
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { serve(); });
}

CannedHttpServer::~CannedHttpServer() {
    stop_ = true;
    thread_.join();
    for (int client : silent_) ::close(client);
    ::close(listener_);
}

std::string CannedHttpServer::url(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(port_) + path;
}

void CannedHttpServer::serve() {
    while (!stop_) {
        pollfd waiting{listener_, POLLIN, 0};
        if (::poll(&waiting, 1, 20) <= 0) continue;
        const int client = ::accept(listener_, nullptr, nullptr);
        if (client < 0) continue;
        const timeval patience{2, 0};
        ::setsockopt(client, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        std::string request;
        char buffer[1024];
        ssize_t received = 0;
        while (request.find("\r\n\r\n") == std::string::npos &&
               (received = ::recv(client, buffer, sizeof buffer, 0)) > 0) {
            request.append(buffer, static_cast<std::size_t>(received));
        }
        const auto pathStart = request.find(' ') + 1;
        const auto route = routes_.find(request.substr(pathStart, request.find(' ', pathStart) - pathStart));
        const std::string answer = route != routes_.end() ? route->second : httpResponse("404 Not Found", "");
        if (answer.empty()) {
            silent_.push_back(client);
            continue;
        }
        ::send(client, answer.data(), answer.size(), MSG_NOSIGNAL);
        ::close(client);
    }
}

}  // namespace vantello::testing

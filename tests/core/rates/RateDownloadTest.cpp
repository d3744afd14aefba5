// The download runs for real over HTTP against a small server on the loopback interface that
// answers each path with a canned response.

#include "core/rates/RateDownload.hpp"
#include "core/rates/RateError.hpp"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <thread>
#include <vector>

namespace vantello {
namespace {

std::string response(const std::string& status, const std::string& body, const std::string& headers = "") {
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + std::to_string(body.size()) +
           "\r\nConnection: close\r\n" + headers + "\r\n" + body;
}

// Serves one request per connection, one connection at a time. An empty response leaves the
// client waiting until the server stops.
class CannedServer {
public:
    explicit CannedServer(std::map<std::string, std::string> routes) : routes_(std::move(routes)) {
        listener_ = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        if (::bind(listener_, reinterpret_cast<sockaddr*>(&address), length) != 0 || ::listen(listener_, 8) != 0 ||
            ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &length) != 0) {
            ADD_FAILURE() << "cannot listen on the loopback interface";
        }
        port_ = ntohs(address.sin_port);
        thread_ = std::thread([this] { serve(); });
    }
    ~CannedServer() {
        stop_ = true;
        thread_.join();
        for (int client : silent_) ::close(client);
        ::close(listener_);
    }
    std::string url(const std::string& path) const { return "http://127.0.0.1:" + std::to_string(port_) + path; }

private:
    void serve() {
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
            const std::string answer = route != routes_.end() ? route->second : response("404 Not Found", "");
            if (answer.empty()) {
                silent_.push_back(client);
                continue;
            }
            ::send(client, answer.data(), answer.size(), MSG_NOSIGNAL);
            ::close(client);
        }
    }

    std::map<std::string, std::string> routes_;
    int listener_ = -1;
    int port_ = 0;
    std::atomic<bool> stop_ = false;
    std::vector<int> silent_;
    std::thread thread_;
};

std::string sampleFeed() {
    std::ifstream file(VANTELLO_TEST_DATA_DIR "/rates/eurofxref-sample.xml", std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

class RateDownload : public ::testing::Test {
protected:
    // `where` is a path on the server or a whole address.
    RateSource at(const std::string& where) const {
        RateSource source;
        source.url = where.starts_with("/") ? server.url(where) : where;
        source.totalTimeout = std::chrono::milliseconds(400);
        return source;
    }
    std::optional<RateError> failure(const std::string& where) const {
        try {
            (void)fetchExchangeRates(at(where));
        } catch (const RateError& error) {
            return error;
        }
        return std::nullopt;
    }

    CannedServer server{{
        {"/feed", response("200 OK", sampleFeed(), "Content-Type: text/xml\r\n")},
        {"/moved", response("302 Found", "<html>moved</html>", "Location: /feed\r\n")},
        {"/loop", response("302 Found", "", "Location: /loop\r\n")},
        {"/gone", response("404 Not Found", sampleFeed())},
        {"/busy", response("200 OK", "Service temporarily unavailable, retry later")},
        {"/silent", ""},
    }};
};

TEST_F(RateDownload, ReadsTheFeedDirectlyAndThroughARedirect) {
    const ExchangeRates direct = fetchExchangeRates(at("/feed"));
    EXPECT_EQ(direct.days.size(), 9u);
    EXPECT_EQ(direct.days.at("2024-01-05").at("USD"), *Decimal::fromCanonical("1.0921"));
    EXPECT_EQ(fetchExchangeRates(at("/moved")), direct);
}

TEST_F(RateDownload, ErrorStatusOrAnAnswerWithoutRatesIsAnError) {
    // The 404's body is the feed itself, yet it is no answer.
    EXPECT_EQ(failure("/gone").value().message(), "Il server dei cambi ha risposto con l'errore HTTP 404.");
    EXPECT_EQ(failure("/nowhere").value().code(), RateErrorCode::httpStatus);
    EXPECT_EQ(failure("/busy").value().code(), RateErrorCode::noRates);
}

TEST_F(RateDownload, SilentServerTimesOutWithinTheConfiguredLimit) {
    const auto started = std::chrono::steady_clock::now();
    EXPECT_EQ(failure("/silent").value().code(), RateErrorCode::timedOut);
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(3));
}

TEST_F(RateDownload, EndlessRedirectsClosedPortsAndOtherSchemesAreUnreachable) {
    EXPECT_EQ(failure("/loop").value().code(), RateErrorCode::unreachable);
    EXPECT_EQ(failure("http://127.0.0.1:1/feed").value().code(), RateErrorCode::unreachable);
    EXPECT_EQ(failure("file:///etc/hostname").value().code(), RateErrorCode::unreachable);
}

TEST(RateSource, DefaultsToTheBanksNinetyDayFeed) {
    const RateSource source;
    EXPECT_EQ(source.url, "https://www.ecb.europa.eu/stats/eurofxref/eurofxref-hist-90d.xml");
    EXPECT_EQ(source.connectTimeout, std::chrono::seconds(10));
    EXPECT_EQ(source.totalTimeout, std::chrono::seconds(30));
    EXPECT_EQ(rateUnavailableMessage(),
              "Cambio non disponibile: la BCE pubblica gli ultimi 90 giorni e serve internet. Scrivilo a mano.");
}

}  // namespace
}  // namespace vantello

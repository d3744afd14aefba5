// The download runs for real over HTTP against a small server on the loopback interface that
// answers each path with a canned response.

#include "core/rates/RateDownload.hpp"
#include "core/rates/RateError.hpp"
#include "support/CannedHttpServer.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <optional>
#include <sstream>

namespace vantello {
namespace {

using testing::CannedHttpServer;
using testing::httpResponse;

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

    CannedHttpServer server{{
        {"/feed", httpResponse("200 OK", sampleFeed(), "Content-Type: text/xml\r\n")},
        {"/moved", httpResponse("302 Found", "<html>moved</html>", "Location: /feed\r\n")},
        {"/loop", httpResponse("302 Found", "", "Location: /loop\r\n")},
        {"/gone", httpResponse("404 Not Found", sampleFeed())},
        {"/busy", httpResponse("200 OK", "Service temporarily unavailable, retry later")},
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

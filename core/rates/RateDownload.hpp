#pragma once
// Downloads the European Central Bank's 90-day reference-rate feed over HTTP(S) and parses it
// while it arrives. Blocking: the application calls it from a worker thread and applies the
// result on the main thread. Safe to call from several threads at once.

#include "core/rates/ExchangeRates.hpp"

#include <chrono>
#include <string>
#include <string_view>

namespace vantello {

// The bank's public web server, and where on it the feed lives.
inline constexpr std::string_view ecbFeedHost = "www.ecb.europa.eu";
inline constexpr std::string_view ecbFeedPath = "/stats/eurofxref/eurofxref-hist-90d.xml";

// Where the feed comes from and how long to wait for it.
struct RateSource {
    std::string url = "https://" + std::string(ecbFeedHost) + std::string(ecbFeedPath);
    std::chrono::milliseconds connectTimeout{10'000};
    std::chrono::milliseconds totalTimeout{30'000};  // the whole transfer, redirects included
    int maximumRedirects = 5;
};

// The rates of the feed at `source.url` (http or https only). Throws RateError when the server
// cannot be reached or does not answer in time, answers with a status other than 2xx (after
// following redirects), or sends something that holds no rate.
[[nodiscard]] ExchangeRates fetchExchangeRates(const RateSource& source = {});

}  // namespace vantello

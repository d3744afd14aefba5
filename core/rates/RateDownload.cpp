#include "core/rates/RateDownload.hpp"

#include "core/rates/ECBParser.hpp"
#include "core/rates/RateError.hpp"

#include <curl/curl.h>

#include <memory>

namespace vantello {

namespace {

// libcurl must be initialised once per process before any handle exists, and its own
// initialisation is not thread-safe: a function-local static makes the first caller do it.
CURLcode initialiseCurl() {
    static const CURLcode result = curl_global_init(CURL_GLOBAL_DEFAULT);
    return result;
}

struct Transfer {
    CURL* handle = nullptr;
    ECBParser parser;
    bool malformed = false;
};

std::size_t receive(char* data, std::size_t size, std::size_t count, void* userData) {
    auto& transfer = *static_cast<Transfer*>(userData);
    const std::size_t length = size * count;
    long status = 0;
    curl_easy_getinfo(transfer.handle, CURLINFO_RESPONSE_CODE, &status);
    // The body of an error page or of a redirect is not the feed.
    if (status < 200 || status > 299) return length;
    if (!transfer.parser.feed({data, length})) {
        // Nothing after a fault can be read: stop downloading and keep what came before it.
        transfer.malformed = true;
        return 0;
    }
    return length;
}

}  // namespace

ExchangeRates fetchExchangeRates(const RateSource& source) {
    if (const CURLcode initialised = initialiseCurl(); initialised != CURLE_OK) {
        throw RateError(RateErrorCode::unreachable, 0, curl_easy_strerror(initialised));
    }
    const std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> handle(curl_easy_init(), &curl_easy_cleanup);
    if (!handle) throw RateError(RateErrorCode::unreachable, 0, "curl_easy_init failed");

    Transfer transfer;
    transfer.handle = handle.get();
    char errorText[CURL_ERROR_SIZE] = {};
    CURL* curl = handle.get();
    curl_easy_setopt(curl, CURLOPT_URL, source.url.c_str());
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(curl, CURLOPT_MAXREDIRS, static_cast<long>(source.maximumRedirects));
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(source.connectTimeout.count()));
    curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, static_cast<long>(source.totalTimeout.count()));
    // Signals cannot time out name lookups on a worker thread; they would hit the whole process.
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_ACCEPT_ENCODING, "");
    curl_easy_setopt(curl, CURLOPT_USERAGENT, "Vantello/" VANTELLO_VERSION);
    curl_easy_setopt(curl, CURLOPT_ERRORBUFFER, errorText);
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, &receive);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &transfer);

    const CURLcode result = curl_easy_perform(curl);
    if (result != CURLE_OK && !(result == CURLE_WRITE_ERROR && transfer.malformed)) {
        std::string detail = errorText[0] != '\0' ? errorText : curl_easy_strerror(result);
        const auto code = result == CURLE_OPERATION_TIMEDOUT ? RateErrorCode::timedOut : RateErrorCode::unreachable;
        throw RateError(code, 0, std::move(detail));
    }
    long status = 0;
    curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &status);
    if (status < 200 || status > 299) throw RateError(RateErrorCode::httpStatus, status);

    ExchangeRates rates = transfer.parser.finish();
    if (rates.hasNoRates()) throw RateError(RateErrorCode::noRates);
    return rates;
}

}  // namespace vantello

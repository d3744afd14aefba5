#pragma once
// Reads the European Central Bank's reference-rate XML feed into ExchangeRates while its bytes
// arrive: the feed nests "Cube" elements, one with "time" opening each day and one with
// "currency" and "rate" per rate. Feed chunks as they come, or hand over the whole text.

#include "core/rates/ExchangeRates.hpp"

#include <memory>
#include <string_view>

namespace vantello {

class ECBParser {
public:
    ECBParser();
    ~ECBParser();
    ECBParser(const ECBParser&) = delete;
    ECBParser& operator=(const ECBParser&) = delete;

    // The rates in a whole feed. Malformed XML gives what was read before the fault (possibly
    // nothing); a rate that is not a plain decimal, or a rate met before any day, is skipped.
    [[nodiscard]] static ExchangeRates parse(std::string_view bytes);

    // Parses the next piece of the feed; a chunk may end anywhere, even inside a tag or a
    // multi-byte character. False once the text has turned out malformed: later chunks are
    // ignored and the rates read so far stay.
    bool feed(std::string_view chunk);
    // Tells the parser the feed is complete (which may reveal that it was cut short) and hands
    // over the rates read. Further feeding is ignored.
    [[nodiscard]] ExchangeRates finish();

    [[nodiscard]] bool failed() const;
    [[nodiscard]] const ExchangeRates& rates() const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace vantello

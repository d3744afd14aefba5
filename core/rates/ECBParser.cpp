#include "core/rates/ECBParser.hpp"

#include "core/base/CivilDays.hpp"

#include <expat.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <optional>
#include <string>
#include <utility>

namespace vantello {

namespace {

// Element and attribute names are compared without their prefix, so that a feed that names
// its namespaces ("gesmes:Envelope", "eurofxref:Cube") reads the same as one that does not.
std::string_view localName(const XML_Char* name) {
    const std::string_view whole(name);
    const auto colon = whole.rfind(':');
    return colon == std::string_view::npos ? whole : whole.substr(colon + 1);
}

// A day key as the feed writes it: "YYYY-MM-DD", a real date.
bool isDayKey(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return false;
    int parts[3] = {0, 0, 0};
    int part = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (index == 4 || index == 7) {
            ++part;
            continue;
        }
        if (text[index] < '0' || text[index] > '9') return false;
        parts[part] = parts[part] * 10 + (text[index] - '0');
    }
    return CivilDays::isValidDate(parts[0], parts[1], parts[2]);
}

}  // namespace

struct ECBParser::State {
    XML_Parser parser = nullptr;
    ExchangeRates rates;
    std::optional<std::string> currentDay;
    bool failed = false;
    bool finished = false;

    State() : parser(XML_ParserCreate(nullptr)) {
        if (parser == nullptr) {
            failed = true;
            return;
        }
        XML_SetUserData(parser, this);
        XML_SetStartElementHandler(parser, &State::startElement);
    }
    ~State() {
        if (parser != nullptr) XML_ParserFree(parser);
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    static void XMLCALL startElement(void* userData, const XML_Char* name, const XML_Char** attributes) {
        static_cast<State*>(userData)->cube(name, attributes);
    }

    void cube(const XML_Char* name, const XML_Char** attributes) {
        if (localName(name) != "Cube") return;
        const XML_Char* time = nullptr;
        const XML_Char* currency = nullptr;
        const XML_Char* rate = nullptr;
        for (const XML_Char** attribute = attributes; attribute[0] != nullptr; attribute += 2) {
            const std::string_view key = localName(attribute[0]);
            if (key == "time") time = attribute[1];
            else if (key == "currency") currency = attribute[1];
            else if (key == "rate") rate = attribute[1];
        }
        if (time != nullptr) {
            // An unreadable day must not lend its rates to the day before it.
            currentDay = isDayKey(time) ? std::optional<std::string>(time) : std::nullopt;
        }
        if (currency == nullptr || rate == nullptr || !currentDay) return;
        auto value = Decimal::fromCanonical(rate);
        if (!value || *currency == '\0') return;
        rates.days[*currentDay].insert_or_assign(std::string(currency), std::move(*value));
    }

    bool parse(std::string_view chunk, bool isFinal) {
        if (failed || finished) return !failed;
        // XML_Parse takes an int length; a huge text goes in slices.
        constexpr std::size_t slice = 1 << 24;
        do {
            const std::size_t length = std::min(chunk.size(), slice);
            const bool last = isFinal && length == chunk.size();
            if (XML_Parse(parser, chunk.data(), static_cast<int>(length), last ? 1 : 0) != XML_STATUS_OK) {
                failed = true;
                return false;
            }
            chunk.remove_prefix(length);
        } while (!chunk.empty());
        finished = isFinal;
        return true;
    }
};

ECBParser::ECBParser() : state_(std::make_unique<State>()) {}
ECBParser::~ECBParser() = default;

ExchangeRates ECBParser::parse(std::string_view bytes) {
    ECBParser parser;
    parser.feed(bytes);
    return parser.finish();
}

bool ECBParser::feed(std::string_view chunk) { return state_->parse(chunk, false); }

ExchangeRates ECBParser::finish() {
    state_->parse({}, true);
    state_->finished = true;
    return state_->rates;
}

bool ECBParser::failed() const { return state_->failed; }
const ExchangeRates& ECBParser::rates() const { return state_->rates; }

}  // namespace vantello

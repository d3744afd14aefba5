#include "core/statements/OFXReader.hpp"

#include "core/base/Text.hpp"
#include "core/statements/StatementRecord.hpp"

#include <algorithm>
#include <cctype>
#include <string>

namespace vantello {

namespace {

std::string decodedEntities(std::string_view text) {
    static constexpr std::pair<std::string_view, char> entities[] = {
        {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}, {"&nbsp;", ' '}};
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '&') {
            const auto entity = std::find_if(std::begin(entities), std::end(entities),
                                             [&](const auto& pair) { return text.substr(at).starts_with(pair.first); });
            if (entity != std::end(entities)) {
                result.push_back(entity->second);
                at += entity->first.size() - 1;
                continue;
            }
        }
        result.push_back(text[at]);
    }
    return result;
}

// YYYYMMDD, then optionally HHMMSS[.XXX] and a zone such as "[+1:CET]".
std::optional<CivilDate> ofxDay(std::string_view text) {
    const auto isDigit = [](unsigned char c) { return std::isdigit(c) != 0; };
    if (text.size() < 8 || !std::all_of(text.begin(), text.begin() + 8, isDigit)) return std::nullopt;
    if (text.size() > 8 && !std::isdigit(static_cast<unsigned char>(text[8])) && text[8] != '.' && text[8] != '[') {
        return std::nullopt;
    }
    const auto number = [&](std::size_t from, std::size_t length) {
        int value = 0;
        for (std::size_t i = from; i < from + length; ++i) value = value * 10 + (text[i] - '0');
        return value;
    };
    return CivilDate{number(0, 4), number(4, 2), number(6, 2)};
}

// The statement as it is walked: the account and currency of the statement being read, the
// transaction being read.
class OFXWalk {
public:
    explicit OFXWalk(const Calendar& calendar) : calendar_(calendar) {}

    void open(std::string_view tag, int line) {
        if (tag == "STMTTRN") {
            record_ = StatementRecord{};
            record_.line = line;
            name_.clear();
            memo_.clear();
            inRecord_ = true;
        } else if (tag == "CURRENCY") {
            inCurrency_ = true;
        }
    }

    void close(std::string_view tag) {
        if (tag == "CURRENCY") {
            inCurrency_ = false;
        } else if (tag == "STMTTRN" && inRecord_) {
            inRecord_ = false;
            if (record_.currency.empty()) record_.currency = currency_;
            record_.note = memo_.empty() || memo_ == name_ ? name_ : name_.empty() ? memo_ : name_ + " - " + memo_;
            rows_.push_back(statementRow(record_, {"ofx", account_}, calendar_));
        }
    }

    void element(std::string_view tag, std::string value) {
        if (!inRecord_) {
            if (tag == "CURDEF") currency_ = std::move(value);
            if (tag == "ACCTID") account_ = std::move(value);
            return;
        }
        if (tag == "DTPOSTED") {
            record_.day = ofxDay(value);
            record_.dateText = std::move(value);
        } else if (tag == "TRNAMT") {
            record_.amount = plainAmount(value);
            record_.amountText = std::move(value);
        } else if (tag == "FITID") {
            record_.bankID = std::move(value);
        } else if (tag == "NAME") {
            name_ = std::move(value);
        } else if (tag == "MEMO") {
            memo_ = std::move(value);
        } else if (tag == "CURSYM" && inCurrency_) {
            record_.currency = std::move(value);
        }
    }

    std::vector<CSVImportRow> rows() && { return std::move(rows_); }

private:
    const Calendar& calendar_;
    std::string account_;
    std::string currency_;
    bool inRecord_ = false;
    bool inCurrency_ = false;
    StatementRecord record_;
    std::string name_;
    std::string memo_;
    std::vector<CSVImportRow> rows_;
};

}  // namespace

std::vector<CSVImportRow> readOFX(std::string_view text, const Calendar& calendar) {
    OFXWalk walk(calendar);
    int line = 1;
    std::size_t counted = 0;  // newlines are counted up to here
    std::size_t at = text.find('<');
    while (at != std::string_view::npos) {
        const std::size_t end = text.find('>', at);
        if (end == std::string_view::npos) break;
        line += static_cast<int>(std::count(text.begin() + static_cast<std::ptrdiff_t>(counted),
                                            text.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
        counted = at;
        std::string_view tag = Text::trimmedView(text.substr(at + 1, end - at - 1));
        const std::size_t next = text.find('<', end);
        if (tag.starts_with('/')) {
            walk.close(Text::trimmedView(tag.substr(1)));
        } else if (!tag.starts_with('?') && !tag.starts_with('!')) {
            tag = tag.substr(0, std::min(tag.size(), tag.find_first_of(" \t\r\n")));
            walk.open(tag, line);
            const std::string_view value =
                Text::trimmedView(text.substr(end + 1, next == std::string_view::npos ? next : next - end - 1));
            if (!value.empty()) walk.element(tag, decodedEntities(value));
        }
        at = next;
    }
    return std::move(walk).rows();
}

}  // namespace vantello

#include "core/statements/QIFReader.hpp"

#include "core/base/Text.hpp"
#include "core/statements/StatementAmount.hpp"
#include "core/statements/StatementRecord.hpp"

#include <array>
#include <cctype>
#include <optional>
#include <string>
#include <unordered_map>

namespace vantello {

namespace {

struct QIFRecord {
    int line = 0;
    std::string date;
    std::string amount;
    std::string payee;
    std::string memo;
    std::string number;
};

// The numbers of a date in written order, whether the year follows a "'".
struct DateParts {
    std::array<int, 3> numbers{};
    std::array<int, 3> digits{};
    bool apostrophe = false;
};

std::optional<DateParts> dateParts(std::string_view text) {
    DateParts parts;
    int count = 0;
    bool inNumber = false;
    for (const char c : text) {
        if (std::isdigit(static_cast<unsigned char>(c))) {
            if (!inNumber) {
                if (count == 3) return std::nullopt;
                ++count;
            }
            inNumber = true;
            int& number = parts.numbers[static_cast<std::size_t>(count - 1)];
            if (number > 9999) return std::nullopt;
            number = number * 10 + (c - '0');
            ++parts.digits[static_cast<std::size_t>(count - 1)];
        } else if (c == '/' || c == '\'' || c == '-' || c == '.' || c == ' ') {
            if (c == '\'') parts.apostrophe = true;
            inNumber = false;
        } else {
            return std::nullopt;
        }
    }
    if (count != 3) return std::nullopt;
    return parts;
}

bool yearFirst(const DateParts& parts) { return parts.digits[0] == 4; }

// Whether the day comes first in the file's dates (see the header).
bool dayFirst(const std::vector<QIFRecord>& records) {
    bool firstAbove12 = false;
    bool secondAbove12 = false;
    bool apostrophe = false;
    for (const QIFRecord& record : records) {
        const auto parts = dateParts(record.date);
        if (!parts || yearFirst(*parts)) continue;
        firstAbove12 = firstAbove12 || parts->numbers[0] > 12;
        secondAbove12 = secondAbove12 || parts->numbers[1] > 12;
        apostrophe = apostrophe || parts->apostrophe;
    }
    if (firstAbove12 != secondAbove12) return firstAbove12;
    return firstAbove12 || !apostrophe;
}

std::optional<CivilDate> qifDay(std::string_view text, bool dayComesFirst) {
    const auto parts = dateParts(text);
    if (!parts) return std::nullopt;
    if (yearFirst(*parts)) return CivilDate{parts->numbers[0], parts->numbers[1], parts->numbers[2]};
    int year = parts->numbers[2];
    if (parts->digits[2] <= 2) year += parts->apostrophe || year < 80 ? 2000 : 1900;
    const int day = dayComesFirst ? parts->numbers[0] : parts->numbers[1];
    const int month = dayComesFirst ? parts->numbers[1] : parts->numbers[0];
    if (month < 1 || month > 12 || day < 1 || day > 31) return std::nullopt;
    return CivilDate{year, month, day};
}

bool isMovementSection(std::string_view header) {
    const std::string type = Text::lowercased(Text::trimmedView(header.substr(header.find(':') + 1)));
    return type == "bank" || type == "ccard" || type == "cash" || type == "oth a" || type == "oth l";
}

std::vector<QIFRecord> records(std::string_view text, std::string& account) {
    std::vector<QIFRecord> result;
    QIFRecord record;
    bool inMovements = false;
    bool inAccount = false;
    bool started = false;
    int line = 0;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        std::string_view content = text.substr(at, end - at);
        at = end + 1;
        ++line;
        if (content.ends_with('\r')) content.remove_suffix(1);
        if (Text::trimmedView(content).empty()) continue;
        if (content.starts_with('!')) {
            const std::string header = Text::lowercased(content);
            if (header.starts_with("!type:")) {
                inMovements = isMovementSection(content);
                inAccount = false;
            } else if (header.starts_with("!account")) {
                inAccount = true;
                inMovements = false;
            }
            record = {};
            started = false;
            continue;
        }
        const char code = content.front();
        const std::string value(Text::trimmedView(content.substr(1)));
        if (inAccount) {
            if (code == 'N') account = value;
            continue;
        }
        if (!inMovements) continue;
        if (code == '^') {
            if (started) result.push_back(std::move(record));
            record = {};
            started = false;
            continue;
        }
        if (!started) record.line = line;
        started = true;
        switch (code) {
            case 'D': record.date = value; break;
            case 'T': record.amount = value; break;
            case 'U': if (record.amount.empty()) record.amount = value; break;
            case 'P': record.payee = value; break;
            case 'M': record.memo = value; break;
            case 'N': record.number = value; break;
            default: break;
        }
    }
    if (started) result.push_back(std::move(record));  // a last record without its "^"
    return result;
}

}  // namespace

std::vector<CSVImportRow> readQIF(std::string_view text, const Calendar& calendar) {
    std::string account;
    const std::vector<QIFRecord> found = records(text, account);
    const bool dayComesFirst = dayFirst(found);
    std::unordered_map<std::string, int> seen(found.size());  // equal records that came before
    std::vector<CSVImportRow> rows;
    rows.reserve(found.size());
    for (const QIFRecord& qif : found) {
        StatementRecord record;
        record.line = qif.line;
        record.dateText = qif.date;
        record.day = qifDay(qif.date, dayComesFirst);
        record.amountText = qif.amount;
        const StatementAmount amount = StatementAmount::read(qif.amount);
        if (amount.status == StatementAmount::Status::amount) record.amount = amount.value;
        record.note = qif.memo.empty() || qif.memo == qif.payee ? qif.payee
                      : qif.payee.empty()                        ? qif.memo
                                                                 : qif.payee + " - " + qif.memo;
        const std::string content = qif.date + '\n' + qif.amount + '\n' + qif.payee + '\n' + qif.number;
        record.bankID = content + '\n' + std::to_string(seen[content]++);
        rows.push_back(statementRow(record, {"qif", account}, calendar));
    }
    return rows;
}

}  // namespace vantello

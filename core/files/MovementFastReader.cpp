#include "core/files/MovementFastReader.hpp"

#include "core/base/Iso8601.hpp"
#include "core/ledger/AccountIDs.hpp"

#include <simdjson.h>

#include <cstdint>
#include <string>

namespace vantello {

namespace {

namespace dom = simdjson::dom;

// Each reader returns false for anything it does not take exactly as the ordinary reader would.

bool readText(dom::element value, std::string& out) {
    std::string_view text;
    if (value.get_string().get(text)) return false;
    out.assign(text);
    return true;
}

// Absent and null read the same for the keys that have a default or may be missing.
bool isNull(dom::element value) { return value.is_null(); }

bool readOptionalText(dom::element value, std::optional<std::string>& out) {
    if (isNull(value)) {
        out.reset();
        return true;
    }
    return readText(value, out.emplace());
}

// A string read by `parse` (which gives nothing for a text it refuses) into `out`.
template <typename Value, typename Parse>
bool readParsed(dom::element value, Value& out, Parse&& parse) {
    std::string_view text;
    if (value.get_string().get(text)) return false;
    auto parsed = parse(text);
    if (!parsed) return false;
    out = std::move(*parsed);
    return true;
}

bool readUuid(dom::element value, Uuid& out) { return readParsed(value, out, Uuid::parse); }
bool readDecimal(dom::element value, Decimal& out) { return readParsed(value, out, Decimal::fromCanonicalAmount); }
bool readInstant(dom::element value, Instant& out) { return readParsed(value, out, Iso8601::parse); }
bool readKind(dom::element value, TransactionKind& out) {
    return readParsed(value, out, transactionKindFromFileText);
}

// Reads an object whose keys are all known to `readField` and each given once; `seen` collects
// one bit per key, so that the caller can check the required ones.
template <typename ReadField>
bool readObject(dom::element value, unsigned& seen, ReadField&& readField) {
    dom::object object;
    if (value.get_object().get(object)) return false;
    for (const dom::key_value_pair field : object) {
        const unsigned bit = readField(field.key, field.value);
        if (bit == 0 || (seen & bit) != 0) return false;
        seen |= bit;
    }
    return true;
}

template <typename Record, typename ReadElement>
bool readList(dom::element value, std::vector<Record>& out, ReadElement&& readElement) {
    out.clear();
    if (isNull(value)) return true;
    dom::array array;
    if (value.get_array().get(array)) return false;
    for (const dom::element element : array) {
        if (!readElement(element, out.emplace_back())) return false;
    }
    return true;
}

bool readAttachment(dom::element value, Attachment& out) {
    unsigned seen = 0;
    const bool read = readObject(value, seen, [&](std::string_view key, dom::element field) -> unsigned {
        if (key == "id") return readUuid(field, out.id) ? 1U : 0U;
        if (key == "originalName") return readText(field, out.originalName) ? 2U : 0U;
        if (key == "storedName") return readText(field, out.storedName) ? 4U : 0U;
        if (key == "byteCount") {
            std::int64_t count = 0;
            if (field.get_int64().get(count)) return 0U;
            out.byteCount = count;
            return 8U;
        }
        if (key == "addedAt") return readInstant(field, out.addedAt) ? 16U : 0U;
        return 0U;
    });
    return read && seen == 31U;
}

bool readShare(dom::element value, PersonShare& out) {
    unsigned seen = 0;
    const bool read = readObject(value, seen, [&](std::string_view key, dom::element field) -> unsigned {
        if (key == "personID") return readUuid(field, out.personID) ? 1U : 0U;
        if (key == "amount") return readDecimal(field, out.amount) ? 2U : 0U;
        return 0U;
    });
    return read && seen == 3U;
}

// The keys a movement must have: id, kind, amount, date, categoryID.
constexpr unsigned requiredMovementKeys = 31U;

bool readMovement(dom::element value, Transaction& out) {
    unsigned seen = 0;
    const bool read = readObject(value, seen, [&](std::string_view key, dom::element field) -> unsigned {
        if (key == "id") return readUuid(field, out.id) ? 1U : 0U;
        if (key == "kind") return readKind(field, out.kind) ? 2U : 0U;
        if (key == "amount") return readDecimal(field, out.amount) ? 4U : 0U;
        if (key == "date") return readInstant(field, out.date) ? 8U : 0U;
        if (key == "categoryID") return readText(field, out.categoryID) ? 16U : 0U;
        if (key == "note") {
            if (isNull(field)) return 32U;
            return readText(field, out.note) ? 32U : 0U;
        }
        if (key == "attachments") return readList(field, out.attachments, readAttachment) ? 64U : 0U;
        if (key == "accountID") {
            if (isNull(field)) return 128U;
            return readText(field, out.accountID) ? 128U : 0U;
        }
        if (key == "recurringRuleID") {
            if (isNull(field)) return 256U;
            return readUuid(field, out.recurringRuleID.emplace()) ? 256U : 0U;
        }
        if (key == "transferToAccountID") return readOptionalText(field, out.transferToAccountID) ? 512U : 0U;
        if (key == "shares") return readList(field, out.shares, readShare) ? 1024U : 0U;
        if (key == "currency") return readOptionalText(field, out.currency) ? 2048U : 0U;
        if (key == "originalAmount") {
            if (isNull(field)) return 4096U;
            return readDecimal(field, out.originalAmount.emplace()) ? 4096U : 0U;
        }
        return 0U;
    });
    return read && (seen & requiredMovementKeys) == requiredMovementKeys;
}

}  // namespace

struct MovementFastReader::Parser {
    dom::parser parser;
    std::string padded;  // a copy of a movement too close to the end of the text
};

MovementFastReader::MovementFastReader() : parser_(std::make_unique<Parser>()) {}

MovementFastReader::~MovementFastReader() = default;

std::optional<Transaction> MovementFastReader::read(std::string_view movement, std::size_t readableAfter) {
    // Tabs, carriage returns and other control bytes never occur in the files the store
    // writes; the ordinary reader decides what they mean.
    for (const char c : movement) {
        if (static_cast<unsigned char>(c) < 0x20 && c != '\n') return std::nullopt;
    }
    const char* data = movement.data();
    if (readableAfter < movement.size() + simdjson::SIMDJSON_PADDING) {
        parser_->padded.assign(movement);
        parser_->padded.append(simdjson::SIMDJSON_PADDING, ' ');
        data = parser_->padded.data();
    }

    dom::element value;
    // The text is checked whole (structure, strings, numbers) before anything is read from it.
    if (parser_->parser.parse(data, movement.size(), false).get(value)) return std::nullopt;

    Transaction transaction;
    transaction.accountID = std::string(mainAccountID);
    if (!readMovement(value, transaction)) return std::nullopt;
    return transaction;
}

}  // namespace vantello

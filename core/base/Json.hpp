#pragma once
// JSON plumbing shared by every file format: nlohmann::json (keys sorted at every level),
// the coding of instants, UUIDs and decimals, and readers for required and optional keys that
// fail with a DecodingError carrying a readable message.

#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"
#include "core/base/Localization.hpp"
#include "core/base/UserError.hpp"
#include "core/base/Uuid.hpp"

#include <nlohmann/json.hpp>

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vantello {

using Json = nlohmann::json;

// A document that cannot be decoded: malformed, a key missing, a value of the wrong type.
class DecodingError : public UserError {
public:
    using UserError::UserError;
};

// Amounts in files are JSON strings holding the canonical decimal text. A JSON number in that
// place is a type mismatch; text that is not a canonical number is "Importo non valido: …".
// A wrong JSON type (here and for UUIDs and instants) is nlohmann's type_error, which the
// readers of JsonCoding turn into a DecodingError naming the key; a bad text is a DecodingError.
struct DecimalText {
    Decimal wrappedValue;
    bool operator==(const DecimalText&) const = default;
};
void to_json(Json& json, const DecimalText& value);
void from_json(const Json& json, DecimalText& value);
void to_json(Json& json, const Decimal& value);
void from_json(const Json& json, Decimal& value);

void to_json(Json& json, const Uuid& value);
void from_json(const Json& json, Uuid& value);

namespace JsonCoding {

// Parses a whole document; malformed text gives a DecodingError.
[[nodiscard]] Json parse(std::string_view text);
// Pretty-printed with two-space indents and a final line break; keys come out sorted.
[[nodiscard]] std::string pretty(const Json& document);

[[noreturn]] void fail(std::string_view key, std::string_view problem);

// The value under `key` converted to T; a missing key or a wrong type is a DecodingError that
// names the key. DecodingErrors thrown by nested conversions pass through untouched.
template <typename T>
[[nodiscard]] T required(const Json& object, std::string_view key);

// Absent (or null) gives nothing; a present value must convert.
template <typename T>
[[nodiscard]] std::optional<T> optional(const Json& object, std::string_view key);

template <typename T>
[[nodiscard]] T valueOr(const Json& object, std::string_view key, T fallback) {
    auto found = optional<T>(object, key);
    return found ? std::move(*found) : std::move(fallback);
}

// Writes `value` under `key` only when present.
template <typename T>
void putIfPresent(Json& object, std::string_view key, const std::optional<T>& value) {
    if (value) object[std::string(key)] = *value;
}

// ---- implementation of the templates

[[nodiscard]] const Json& requireObject(const Json& json);

template <typename T>
T convert(const Json& value, std::string_view key) {
    try {
        return value.get<T>();
    } catch (const nlohmann::json::exception&) {
        fail(key, L10n::key("ha un valore del tipo sbagliato"));
    }
}

template <typename T>
T required(const Json& object, std::string_view key) {
    const auto& checked = requireObject(object);
    auto found = checked.find(key);
    if (found == checked.end()) fail(key, L10n::key("manca"));
    return convert<T>(*found, key);
}

template <typename T>
std::optional<T> optional(const Json& object, std::string_view key) {
    const auto& checked = requireObject(object);
    auto found = checked.find(key);
    if (found == checked.end() || found->is_null()) return std::nullopt;
    return convert<T>(*found, key);
}

}  // namespace JsonCoding
}  // namespace vantello

// Instants are ISO 8601 text ("2025-03-01T10:00:00Z"); offsets are accepted on reading.
template <>
struct nlohmann::adl_serializer<vantello::Instant> {
    static void to_json(json& json, const vantello::Instant& value);
    static void from_json(const json& json, vantello::Instant& value);
};

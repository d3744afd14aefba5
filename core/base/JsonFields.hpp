#pragma once
// A record's JSON form described once, as a list of its fields, and used both ways: writing puts
// every field under its key, reading takes the fields in list order (so the first missing or
// mistyped key is the one reported) with the readers of JsonCoding.
//
//   const auto loanFields = std::tuple{
//       JsonFields::required("id", &Loan::id),
//       JsonFields::optional("recurringRuleID", &Loan::recurringRuleID),
//   };
//   void to_json(Json& json, const Loan& loan) { JsonFields::write(json, loan, loanFields); }
//   void from_json(const Json& json, Loan& loan) { JsonFields::read(json, loan, loanFields); }

#include "core/base/Json.hpp"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

namespace vantello::JsonFields {

// Always written; reading fails when the key is missing.
template <typename Record, typename Value>
struct Required {
    std::string_view key;
    Value Record::*member;

    void write(Json& json, const Record& record) const { json[std::string(key)] = record.*member; }
    void read(const Json& json, Record& record) const { record.*member = JsonCoding::required<Value>(json, key); }
};

// Written only when present; absent or null reads as nothing.
template <typename Record, typename Value>
struct Optional {
    std::string_view key;
    std::optional<Value> Record::*member;

    void write(Json& json, const Record& record) const { JsonCoding::putIfPresent(json, key, record.*member); }
    void read(const Json& json, Record& record) const { record.*member = JsonCoding::optional<Value>(json, key); }
};

// Always written; absent reads as `fallback`.
template <typename Record, typename Value>
struct Defaulted {
    std::string_view key;
    Value Record::*member;
    Value fallback;

    void write(Json& json, const Record& record) const { json[std::string(key)] = record.*member; }
    void read(const Json& json, Record& record) const {
        record.*member = JsonCoding::valueOr<Value>(json, key, fallback);
    }
};

// A list written only when it holds something; absent reads as an empty list.
template <typename Record, typename Value>
struct OmittedWhenEmpty {
    std::string_view key;
    Value Record::*member;

    void write(Json& json, const Record& record) const {
        if (!(record.*member).empty()) json[std::string(key)] = record.*member;
    }
    void read(const Json& json, Record& record) const { record.*member = JsonCoding::valueOr<Value>(json, key, {}); }
};

template <typename Record, typename Value>
[[nodiscard]] Required<Record, Value> required(std::string_view key, Value Record::*member) {
    return {key, member};
}

template <typename Record, typename Value>
[[nodiscard]] Optional<Record, Value> optional(std::string_view key, std::optional<Value> Record::*member) {
    return {key, member};
}

template <typename Record, typename Value>
[[nodiscard]] Defaulted<Record, Value> orDefault(std::string_view key, Value Record::*member, Value fallback = {}) {
    return {key, member, std::move(fallback)};
}

template <typename Record, typename Value>
[[nodiscard]] OmittedWhenEmpty<Record, Value> omittedWhenEmpty(std::string_view key, Value Record::*member) {
    return {key, member};
}

// An enumeration kept in files as one of its names.
template <typename Enum, std::size_t count>
using EnumNames = std::array<std::pair<Enum, std::string_view>, count>;

template <typename Enum, std::size_t count>
void writeName(Json& json, Enum value, const EnumNames<Enum, count>& names) {
    for (const auto& [candidate, name] : names) {
        if (candidate == value) {
            json = std::string(name);
            return;
        }
    }
    json = std::string(names.front().second);
}

// One of the names; anything else is a DecodingError with `unknownMessage`, a catalogue key whose
// {text} receives the value found.
template <typename Enum, std::size_t count>
[[nodiscard]] Enum readName(const Json& json, const EnumNames<Enum, count>& names, std::string_view unknownMessage) {
    if (const auto* text = json.get_ptr<const std::string*>()) {
        for (const auto& [value, name] : names) {
            if (name == *text) return value;
        }
    }
    throw DecodingError(L10n::tr(unknownMessage, {{"text", json.dump()}}));
}

template <typename Record, typename... Fields>
void write(Json& json, const Record& record, const std::tuple<Fields...>& fields) {
    json = Json::object();
    std::apply([&](const auto&... field) { (field.write(json, record), ...); }, fields);
}

template <typename Record, typename... Fields>
void read(const Json& json, Record& record, const std::tuple<Fields...>& fields) {
    std::apply([&](const auto&... field) { (field.read(json, record), ...); }, fields);
}

}  // namespace vantello::JsonFields

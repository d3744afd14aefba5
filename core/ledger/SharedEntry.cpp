#include "core/ledger/SharedEntry.hpp"

#include "core/base/Localization.hpp"

#include <array>
#include <string_view>

namespace vantello {

namespace {

using Kind = SharedEntry::Kind;

struct KindTexts {
    Kind kind;
    std::string_view fileName;
    std::string_view picker;
    std::string_view history;
};

constexpr std::array<KindTexts, 3> kindTexts{{
    {Kind::paymentReceived, "paymentReceived", L10n::key("Mi ha restituito"), L10n::key("Ti ha restituito")},
    {Kind::paymentMade, "paymentMade", L10n::key("Gli ho restituito"), L10n::key("Gli hai restituito")},
    {Kind::theyPaidForMe, "theyPaidForMe", L10n::key("Ha pagato per me"), L10n::key("Ha pagato per te")},
}};

const KindTexts& textsOf(Kind kind) {
    for (const auto& texts : kindTexts) {
        if (texts.kind == kind) return texts;
    }
    return kindTexts.front();
}

}  // namespace

Decimal SharedEntry::effect() const {
    // Positive balances mean the person owes the user: what they give back or pay on the
    // user's behalf lowers it, what the user gives them raises it.
    switch (kind) {
        case Kind::paymentMade: return amount;
        case Kind::paymentReceived:
        case Kind::theyPaidForMe: return -amount;
    }
    return -amount;
}

std::string SharedEntry::pickerLabel(Kind kind) { return L10n::tr(textsOf(kind).picker); }

std::string SharedEntry::historyLabel(Kind kind) { return L10n::tr(textsOf(kind).history); }

void to_json(Json& json, SharedEntry::Kind kind) { json = std::string(textsOf(kind).fileName); }

void from_json(const Json& json, SharedEntry::Kind& kind) {
    if (const auto* text = json.get_ptr<const std::string*>()) {
        for (const auto& texts : kindTexts) {
            if (texts.fileName == *text) {
                kind = texts.kind;
                return;
            }
        }
    }
    throw DecodingError(L10n::tr("Tipo di voce condivisa sconosciuto: {text}", {{"text", json.dump()}}));
}

void to_json(Json& json, const SharedEntry& entry) {
    json = Json::object();
    json["id"] = entry.id;
    json["personID"] = entry.personID;
    json["kind"] = entry.kind;
    json["amount"] = DecimalText{entry.amount};
    json["date"] = entry.date;
    json["note"] = entry.note;
}

void from_json(const Json& json, SharedEntry& entry) {
    using namespace JsonCoding;
    entry.id = required<Uuid>(json, "id");
    entry.personID = required<Uuid>(json, "personID");
    entry.kind = required<SharedEntry::Kind>(json, "kind");
    entry.amount = required<DecimalText>(json, "amount").wrappedValue;
    entry.date = required<Instant>(json, "date");
    entry.note = valueOr<std::string>(json, "note", "");
}

}  // namespace vantello

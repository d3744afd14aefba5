#include "core/ledger/SharedEntry.hpp"

#include "core/base/JsonFields.hpp"
#include "core/base/Localization.hpp"

#include <array>
#include <string_view>
#include <tuple>

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

const auto sharedEntryFields = std::tuple{
    JsonFields::required("id", &SharedEntry::id),
    JsonFields::required("personID", &SharedEntry::personID),
    JsonFields::required("kind", &SharedEntry::kind),
    JsonFields::required("amount", &SharedEntry::amount),
    JsonFields::required("date", &SharedEntry::date),
    JsonFields::orDefault("note", &SharedEntry::note, std::string()),
};

void to_json(Json& json, const SharedEntry& entry) { JsonFields::write(json, entry, sharedEntryFields); }

void from_json(const Json& json, SharedEntry& entry) { JsonFields::read(json, entry, sharedEntryFields); }

}  // namespace vantello

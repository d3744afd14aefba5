#include "core/base/Json.hpp"

#include "core/base/Iso8601.hpp"
#include "core/base/Localization.hpp"

#include <algorithm>

namespace vantello {

namespace {

// A value of the wrong JSON type is reported as nlohmann's own type error, so that the reader
// of the enclosing key (JsonCoding::convert) names that key in its message.
const std::string& requireString(const Json& json) {
    if (!json.is_string()) {
        throw Json::type_error::create(302, std::string("type must be string, but is ") + json.type_name(),
                                       &json);
    }
    return json.get_ref<const std::string&>();
}

// The start of a long text, cut between characters: a damaged file may hold anything in the
// place of an amount, a hundred thousand digits included.
std::string shortened(const std::string& text) {
    constexpr std::size_t shownBytes = 40;
    if (text.size() <= shownBytes) return text;
    std::size_t end = shownBytes;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;
    return text.substr(0, end) + "…";
}

Decimal decodeDecimal(const Json& json) {
    const std::string& text = requireString(json);
    auto value = Decimal::fromCanonicalAmount(text);
    if (!value) throw DecodingError(L10n::tr("Importo non valido: {text}", {{"text", shortened(text)}}));
    return *value;
}

struct TextPosition {
    std::size_t line = 1;
    std::size_t column = 1;
};

// nlohmann reports the byte at which reading stopped; people want a line and a column
// (in characters, counting from 1).
TextPosition positionOf(std::string_view text, std::size_t byteCount) {
    TextPosition position;
    // `byteCount` counts the offending byte itself; at the end of the text it points past it.
    const std::size_t end = std::min(byteCount > 0 ? byteCount - 1 : 0, text.size());
    for (std::size_t index = 0; index < end; ++index) {
        const auto byte = static_cast<unsigned char>(text[index]);
        if (byte == '\n') {
            ++position.line;
            position.column = 1;
        } else if ((byte & 0xC0) != 0x80) {
            ++position.column;
        }
    }
    return position;
}

}  // namespace

void to_json(Json& json, const DecimalText& value) { json = value.wrappedValue.description(); }

void from_json(const Json& json, DecimalText& value) { value.wrappedValue = decodeDecimal(json); }

void to_json(Json& json, const Decimal& value) { json = value.description(); }

void from_json(const Json& json, Decimal& value) { value = decodeDecimal(json); }

void to_json(Json& json, const Uuid& value) { json = value.text(); }

void from_json(const Json& json, Uuid& value) {
    const std::string& text = requireString(json);
    auto parsed = Uuid::parse(text);
    if (!parsed) throw DecodingError(L10n::tr("Identificativo non valido: {text}", {{"text", text}}));
    value = *parsed;
}

namespace JsonCoding {

Json parse(std::string_view text) {
    try {
        return Json::parse(text.begin(), text.end());
    } catch (const Json::parse_error& error) {
        const auto position = positionOf(text, error.byte);
        throw DecodingError(L10n::tr("Il file non è un JSON valido (riga {line}, colonna {column}).",
                                     {{"line", std::to_string(position.line)},
                                      {"column", std::to_string(position.column)}}));
    } catch (const Json::exception&) {
        // For instance a number too large for any numeric type.
        throw DecodingError(L10n::tr("Il file non è un JSON valido."));
    }
}

std::string pretty(const Json& document) {
    // Text that is not valid UTF-8 is written with U+FFFD rather than failing the whole save.
    return document.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

void fail(std::string_view key, std::string_view problem) {
    throw DecodingError(L10n::tr("Dati non validi: la chiave «{key}» {problem}.",
                                 {{"key", key}, {"problem", L10n::tr(problem)}}));
}

const Json& requireObject(const Json& json) {
    if (!json.is_object()) throw DecodingError(L10n::tr("Dati non validi: era atteso un oggetto JSON."));
    return json;
}

}  // namespace JsonCoding
}  // namespace vantello

void nlohmann::adl_serializer<vantello::Instant>::to_json(json& json, const vantello::Instant& value) {
    json = vantello::Iso8601::format(value);
}

void nlohmann::adl_serializer<vantello::Instant>::from_json(const json& json, vantello::Instant& value) {
    const std::string& text = vantello::requireString(json);
    auto parsed = vantello::Iso8601::parse(text);
    if (!parsed) {
        throw vantello::DecodingError(vantello::L10n::tr("Data non valida: {text}", {{"text", text}}));
    }
    value = *parsed;
}

#include "cli/RatesCommand.hpp"

#include "cli/Arguments.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/CivilDays.hpp"
#include "core/base/Json.hpp"
#include "core/ledger/AmountParser.hpp"
#include "core/rates/Currencies.hpp"
#include "core/rates/ECBParser.hpp"
#include "core/rates/ExchangeRates.hpp"
#include "core/rates/RateDownload.hpp"
#include "core/rates/RateError.hpp"

#include <cctype>
#include <fstream>
#include <optional>
#include <sstream>

namespace vantello::cli {

namespace {

// The question asked, checked before anything is read or downloaded.
struct Request {
    std::string currency;
    CivilDate day;
    std::optional<Decimal> amount;
};

std::optional<CivilDate> dayOf(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    for (std::size_t index : {0, 1, 2, 3, 5, 6, 8, 9}) {
        if (!std::isdigit(static_cast<unsigned char>(text[index]))) return std::nullopt;
    }
    const CivilDate day{std::stoi(std::string(text.substr(0, 4))), std::stoi(std::string(text.substr(5, 2))),
                        std::stoi(std::string(text.substr(8, 2)))};
    if (!CivilDays::isValidDate(day.year, day.month, day.day)) return std::nullopt;
    return day;
}

Request requestOf(const Arguments& parsed) {
    if (parsed.has("--fetch") == parsed.value("--feed").has_value()) {
        throw ArgumentError("Indica da dove prendere i cambi: --feed FILE oppure --fetch.");
    }
    if (parsed.value("--url") && !parsed.has("--fetch")) throw ArgumentError("--url vale solo con --fetch.");

    Request request;
    const auto currency = parsed.value("--currency");
    if (!currency) throw ArgumentError("Manca la valuta (--currency).");
    for (char letter : *currency) request.currency += static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    if (request.currency != Currencies::ledger && !Currencies::isOffered(request.currency)) {
        std::string known;
        for (std::string_view code : Currencies::offered) known += (known.empty() ? "" : ", ") + std::string(code);
        throw ArgumentError("Valuta non prevista: " + *currency + ". Valute: " + known + ".");
    }

    const auto date = parsed.value("--date");
    if (!date) throw ArgumentError("Manca il giorno (--date AAAA-MM-GG).");
    const auto day = dayOf(*date);
    if (!day) throw ArgumentError("Giorno non valido: " + *date + " (si scrive AAAA-MM-GG).");
    request.day = *day;

    if (const auto amount = parsed.value("--amount")) {
        request.amount = AmountParser::parse(*amount);
        if (!request.amount) throw ArgumentError("Importo non valido: " + *amount);
    }
    return request;
}

ExchangeRates ratesFrom(const Arguments& parsed) {
    if (const auto feed = parsed.value("--feed")) {
        std::ifstream file(*feed, std::ios::binary);
        if (!file) throw UserError("Impossibile leggere il file: " + *feed);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        ExchangeRates rates = ECBParser::parse(bytes.str());
        if (rates.hasNoRates()) throw RateError(RateErrorCode::noRates);
        return rates;
    }
    RateSource source;
    if (const auto url = parsed.value("--url")) source.url = *url;
    return fetchExchangeRates(source);
}

}  // namespace

int runRates(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    Arguments parsed;
    Request request;
    try {
        ArgumentRules rules;
        rules.flags = {"--json", "--help", "--fetch"};
        rules.valueOptions = {"--feed", "--url", "--currency", "--date", "--amount"};
        parsed = Arguments::parse(arguments, rules);
        if (parsed.has("--help")) {
            out << ratesUsage;
            return 0;
        }
        request = requestOf(parsed);
    } catch (const ArgumentError& error) {
        err << error.message() << "\n\n" << ratesUsage;
        return 2;
    }

    ExchangeRates rates;
    try {
        rates = ratesFrom(parsed);
    } catch (const RateError& error) {
        err << error.message() << (error.detail().empty() ? "" : " (" + error.detail() + ")") << '\n';
        return 1;
    } catch (const UserError& error) {
        err << error.message() << '\n';
        return 1;
    }

    // Noon of the day in the user's zone names that same day back to the lookup.
    const Calendar calendar = Calendar::current();
    const std::string dayKey = ExchangeRates::dayKey(request.day);
    const auto found = rates.lookUp(request.currency, *calendar.date(request.day, 12), calendar);
    if (!found) {
        err << "Nessun cambio " << request.currency << " per il " << dayKey << " né nei "
            << ExchangeRates::daysBack << " giorni precedenti.\n";
        return 1;
    }
    const auto euro = request.amount ? ExchangeRates::toEuro(*request.amount, found->rate) : std::nullopt;
    if (request.amount && !euro) {
        err << "Il cambio " << request.currency << " del " << found->day << " non è utilizzabile ("
            << found->rate.description() << ").\n";
        return 1;
    }

    if (parsed.has("--json")) {
        Json report = {{"currency", request.currency}, {"date", dayKey}, {"day", found->day},
                       {"rate", found->rate.description()}};
        if (euro) {
            report["amount"] = request.amount->description();
            report["euro"] = euro->toFixed(2);
        }
        out << JsonCoding::pretty(report);
        return 0;
    }
    out << "Cambio " << request.currency << " del " << found->day << ": 1 EUR = " << found->rate.description()
        << ' ' << request.currency << '\n';
    if (euro) out << request.amount->description() << ' ' << request.currency << " = " << euro->toFixed(2) << " EUR\n";
    return 0;
}

}  // namespace vantello::cli

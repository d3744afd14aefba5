#include "cli/ReportCommand.hpp"

#include "cli/Arguments.hpp"
#include "cli/DayOption.hpp"
#include "core/analysis/MonthKey.hpp"
#include "core/analysis/MonthSummary.hpp"
#include "core/analysis/MonthlyCategoryTotals.hpp"
#include "core/analysis/SmartAlerts.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Iso8601.hpp"
#include "core/base/Json.hpp"
#include "core/base/PeopleFormat.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/ledger/Ledger.hpp"

#include <chrono>
#include <cmath>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace vantello::cli {

namespace {

constexpr const char* textLocale = "it_IT";

// Everything the month screen shows, worked out once for both forms of output.
struct MonthReport {
    std::string month;
    Instant now;
    std::optional<std::string> accountID;
    MonthSummary summary;
    std::vector<SmartAlert> alerts;  // enabled by default and not dismissed, as of now
};

MonthReport monthReport(const Ledger& ledger, CivilDate month, Instant now,
                        const std::optional<std::string>& accountID, const Calendar& calendar) {
    const auto dayInMonth = calendar.date(month, 12);
    if (!dayInMonth) throw UserError("Il mese " + Iso8601::day(month).substr(0, 7) + " non esiste nel calendario.");
    return MonthReport{monthKey(*dayInMonth, calendar), now, accountID,
                       monthSummary(ledger, *dayInMonth, now, calendar, accountID),
                       smartAlerts(ledger, AlertSettings{}, ledger.data().dismissedAlerts, now, calendar)};
}

// ---- JSON: keys are the records' field names, amounts canonical decimal text.

Json totalsJson(const PeriodTotals& totals) {
    return {{"income", totals.income.description()},
            {"expenses", totals.expenses.description()},
            {"net", totals.net().description()}};
}

Json reportJson(const MonthReport& report, const Calendar& calendar) {
    Json json = Json::object();
    json["month"] = report.month;
    json["now"] = Iso8601::format(report.now);
    json["accountID"] = report.accountID ? Json(*report.accountID) : Json();
    json["totals"] = totalsJson(report.summary.totals);
    json["previousTotals"] = totalsJson(report.summary.previousTotals);

    Json breakdown = Json::array();
    for (const CategoryTotal& entry : report.summary.breakdown) {
        breakdown.push_back({{"category", entry.category}, {"total", entry.total.description()}, {"share", entry.share}});
    }
    json["breakdown"] = std::move(breakdown);

    Json slices = Json::array();
    for (const CategorySlice& slice : report.summary.slices) {
        Json content;
        if (const auto* category = std::get_if<TransactionCategory>(&slice.content)) {
            content = {{"category", *category}};
        } else {
            content = {{"others", {{"count", std::get<CategorySlice::Others>(slice.content).count}}}};
        }
        slices.push_back({{"content", std::move(content)}, {"total", slice.total.description()}, {"share", slice.share}});
    }
    json["slices"] = std::move(slices);

    Json trend = Json::array();
    for (const MonthTotals& point : report.summary.trend) {
        trend.push_back({{"month", monthKey(point.month, calendar)},
                         {"income", point.income.description()},
                         {"expenses", point.expenses.description()}});
    }
    json["trend"] = std::move(trend);

    Json budgets = Json::array();
    for (const BudgetStatus& status : report.summary.budgets) {
        budgets.push_back({{"category", status.category},
                           {"budget", status.budget.description()},
                           {"spent", status.spent.description()},
                           {"remaining", status.remaining().description()},
                           {"progress", status.progress()},
                           {"level", std::string(levelName(status.level()))}});
    }
    json["budgets"] = std::move(budgets);

    if (report.summary.forecast) {
        const MonthForecast& forecast = *report.summary.forecast;
        json["forecast"] = {{"actual", totalsJson(forecast.actual)},
                            {"upcomingRecurring", totalsJson(forecast.upcomingRecurring)},
                            {"estimatedVariableExpenses", forecast.estimatedVariableExpenses.description()},
                            {"daysRemaining", forecast.daysRemaining},
                            {"basisMonths", forecast.basisMonths},
                            {"projectedBalance", forecast.projectedBalance().description()},
                            {"explanation", forecastExplanation(forecast)}};
    } else {
        json["forecast"] = nullptr;
    }
    if (const auto& lowest = report.summary.lowestBalance) {
        json["lowestBalance"] = {{"balance", lowest->balance.description()},
                                 {"day", Iso8601::day(calendar.civilDate(lowest->day))},
                                 {"accountID", lowest->accountID ? Json(*lowest->accountID) : Json()}};
    } else {
        json["lowestBalance"] = nullptr;
    }
    json["alerts"] = report.alerts;
    return json;
}

// ---- Text, in Italian, for reading in a terminal.

std::string euro(const Decimal& amount) { return PeopleFormat::euro(amount, textLocale); }

std::string percent(double share) { return std::to_string(static_cast<long long>(std::lround(share * 100))) + "%"; }

std::string levelText(BudgetStatus::Level level) {
    switch (level) {
        case BudgetStatus::Level::onTrack: return "in linea";
        case BudgetStatus::Level::warning: return "attenzione";
        case BudgetStatus::Level::over: return "superato";
    }
    return "";
}

void printTotals(const char* label, const PeriodTotals& totals, std::ostream& out) {
    out << label << ": entrate " << euro(totals.income) << ", uscite " << euro(totals.expenses) << ", saldo "
        << euro(totals.net()) << '\n';
}

void printText(const MonthReport& report, const Calendar& calendar, std::ostream& out) {
    out << "Mese " << report.month << '\n';
    printTotals("Totali", report.summary.totals, out);
    printTotals("Mese precedente", report.summary.previousTotals, out);

    out << "\nSpese per categoria:\n";
    if (report.summary.breakdown.empty()) out << "  nessuna spesa\n";
    for (const CategoryTotal& entry : report.summary.breakdown) {
        out << "  " << entry.category.name << ": " << euro(entry.total) << " (" << percent(entry.share) << ")\n";
    }
    if (!report.summary.slices.empty()) {
        out << "Grafico a ciambella:";
        const char* separator = " ";
        for (const CategorySlice& slice : report.summary.slices) {
            const auto* category = std::get_if<TransactionCategory>(&slice.content);
            const std::string name =
                category ? category->name
                         : "Altre (" + std::to_string(std::get<CategorySlice::Others>(slice.content).count) + ")";
            out << separator << name << " " << percent(slice.share);
            separator = " · ";
        }
        out << '\n';
    }

    out << "\nAndamento:\n";
    for (const MonthTotals& point : report.summary.trend) {
        out << "  " << monthKey(point.month, calendar) << ": entrate " << euro(point.income) << ", uscite "
            << euro(point.expenses) << '\n';
    }

    out << "\nBudget:\n";
    if (report.summary.budgets.empty()) out << "  nessun budget\n";
    for (const BudgetStatus& status : report.summary.budgets) {
        out << "  " << status.category.name << ": spesi " << euro(status.spent) << " di " << euro(status.budget)
            << " (" << percent(status.progress()) << ", " << levelText(status.level()) << "), restano "
            << euro(status.remaining()) << '\n';
    }

    out << "\nStima a fine mese";
    if (report.accountID) out << " (conto " << *report.accountID << ")";
    out << ":";
    if (!report.summary.forecast) {
        out << " solo per il mese in corso\n";
        return;
    }
    const MonthForecast& forecast = *report.summary.forecast;
    out << ' ' << euro(forecast.projectedBalance()) << '\n';
    out << "  Saldo del mese finora: " << euro(forecast.actual.net()) << '\n';
    out << "  Entrate ricorrenti in arrivo: " << euro(forecast.upcomingRecurring.income) << '\n';
    out << "  Uscite ricorrenti in arrivo: " << euro(forecast.upcomingRecurring.expenses) << '\n';
    out << "  Spesa variabile stimata: " << euro(forecast.estimatedVariableExpenses) << '\n';
    out << "  " << forecastExplanation(forecast) << '\n';
    if (report.summary.lowestBalance) {
        out << "Saldo più basso previsto: " << euro(report.summary.lowestBalance->balance) << " il "
            << PeopleFormat::shortDate(report.summary.lowestBalance->day, calendar, textLocale) << '\n';
    }
}

void printAlerts(const std::vector<SmartAlert>& alerts, std::ostream& out) {
    out << "\nAvvisi:\n";
    if (alerts.empty()) out << "  nessun avviso\n";
    for (const SmartAlert& alert : alerts) out << "  " << alert.title << " — " << alert.message << '\n';
}

// ---- Every month, income and expenses per category.

std::string categoryName(const Ledger& ledger, const std::string& id) {
    const auto category = ledger.category(id);
    return category ? category->name : id;
}

Json everyMonthJson(const std::vector<MonthCategoryTotals>& months, const std::optional<std::string>& accountID) {
    const auto sums = [](const std::map<std::string, Decimal>& totals) {
        Json json = Json::object();
        for (const auto& [id, total] : totals) json[id] = total.description();
        return json;
    };
    Json list = Json::array();
    for (const MonthCategoryTotals& month : months) {
        list.push_back({{"month", Iso8601::day(month.month).substr(0, 7)},
                        {"income", sums(month.income)},
                        {"expenses", sums(month.expenses)}});
    }
    return {{"accountID", accountID ? Json(*accountID) : Json()}, {"months", std::move(list)}};
}

void printEveryMonth(const Ledger& ledger, const std::vector<MonthCategoryTotals>& months, std::ostream& out) {
    if (months.empty()) out << "Nessun movimento.\n";
    const auto line = [&](const char* label, const std::map<std::string, Decimal>& totals) {
        out << "  " << label << ':';
        if (totals.empty()) out << " nessuna";
        const char* separator = " ";
        for (const auto& [id, total] : totals) {
            out << separator << categoryName(ledger, id) << ' ' << euro(total);
            separator = ", ";
        }
        out << '\n';
    };
    for (const MonthCategoryTotals& month : months) {
        out << Iso8601::day(month.month).substr(0, 7) << '\n';
        line("entrate", month.income);
        line("uscite", month.expenses);
    }
}

}  // namespace

int runReport(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    const Calendar calendar = Calendar::current();
    Arguments parsed;
    std::optional<CivilDate> month;
    std::optional<Instant> today;
    try {
        ArgumentRules rules;
        rules.flags = {"--all", "--by-month", "--json", "--help"};
        rules.valueOptions = {"--month", "--account", "--today"};
        parsed = Arguments::parse(arguments, rules);
        if (parsed.has("--help")) {
            out << reportUsage;
            return 0;
        }
        const auto monthValue = parsed.value("--month");
        const bool everyMonth = parsed.has("--all") || parsed.has("--by-month");
        if (monthValue.has_value() == everyMonth) throw ArgumentError("Scegli --month AAAA-MM oppure --all --by-month.");
        if (everyMonth && !(parsed.has("--all") && parsed.has("--by-month"))) {
            throw ArgumentError("--all e --by-month vanno insieme.");
        }
        if (monthValue) {
            month = monthOption(*monthValue);
            if (!month) throw ArgumentError("Valore non valido per --month: «" + *monthValue + "» (serve AAAA-MM).");
        }
        if (const auto todayValue = parsed.value("--today")) {
            if (everyMonth) throw ArgumentError("--today vale solo con --month.");
            today = noonOfDayOption("--today", *todayValue, calendar);
        }
    } catch (const ArgumentError& error) {
        err << error.message() << "\n\n" << reportUsage;
        return 2;
    }

    try {
        // Reading needs no lock; nothing is written.
        const Ledger ledger(LedgerStore(parsed.dataFolder() / LedgerStore::fileName).load());
        const std::optional<std::string> accountID = parsed.value("--account");
        if (accountID && !ledger.account(*accountID)) throw UserError("Conto sconosciuto: «" + *accountID + "».");
        const Instant now = today.value_or(clockNow());
        if (!month) {
            const std::vector<MonthCategoryTotals> months = monthlyCategoryTotals(ledger, accountID, calendar);
            if (parsed.has("--json")) {
                out << JsonCoding::pretty(everyMonthJson(months, accountID));
            } else {
                printEveryMonth(ledger, months, out);
            }
            return 0;
        }
        const MonthReport report = monthReport(ledger, *month, now, accountID, calendar);
        if (parsed.has("--json")) {
            out << JsonCoding::pretty(reportJson(report, calendar));
        } else {
            printText(report, calendar, out);
            printAlerts(report.alerts, out);
        }
        return 0;
    } catch (const std::exception& error) {
        err << error.what() << '\n';
        return 1;
    }
}

}  // namespace vantello::cli

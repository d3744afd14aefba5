#include "cli/WorkCommand.hpp"

#include "cli/DayOption.hpp"
#include "cli/LedgerAccess.hpp"
#include "cli/NumberOptions.hpp"
#include "cli/Subcommand.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Iso8601.hpp"
#include "core/base/Json.hpp"
#include "core/base/Localization.hpp"
#include "core/ledger/LedgerEmployment.hpp"
#include "core/planning/SalaryReminder.hpp"
#include "core/planning/WorkStatus.hpp"

namespace vantello::cli {

namespace {

// The reminder of the options: on with the given day and hour, off without a day.
SalaryReminder reminderFromArguments(const Arguments& arguments) {
    SalaryReminder reminder;
    const std::optional<int> day = integerOption(arguments, "--reminder-day", 1, 31);
    const std::optional<int> hour = integerOption(arguments, "--reminder-hour", 0, 23);
    if (hour && !day) throw ArgumentError(L10n::tr("--reminder-hour vale solo insieme a --reminder-day."));
    if (!day) return reminder;
    reminder.isEnabled = true;
    reminder.day = *day;
    reminder.hour = hour.value_or(reminder.hour);
    return reminder;
}

std::string dayText(Instant moment, const Calendar& calendar) { return Iso8601::day(calendar.civilDate(moment)); }

void printText(const Ledger& ledger, const std::optional<Transaction>& salary, bool recordedThisMonth,
               const SalaryReminder& reminder, const std::optional<Instant>& next, Instant now,
               const Calendar& calendar, std::ostream& out) {
    for (const UnemploymentPeriod& period : ledger.unemploymentPeriods()) {
        const std::string start = dayText(period.start, calendar);
        out << (period.end ? L10n::tr("Senza lavoro dal {inizio} al {fine}",
                                      {{"inizio", start}, {"fine", dayText(*period.end, calendar)}})
                           : L10n::tr("Senza lavoro dal {inizio}, in corso", {{"inizio", start}}))
            << (period.note.empty() ? "" : " «" + period.note + "»") << '\n';
    }
    if (isUnemployed(ledger.unemploymentPeriods(), now, calendar)) out << L10n::tr("Oggi sei senza lavoro.") << '\n';
    if (salary) {
        out << L10n::tr("Ultimo stipendio: {importo} il {giorno}",
                        {{"importo", salary->amount.toFixed(2)}, {"giorno", dayText(salary->date, calendar)}})
            << '\n';
    } else {
        out << L10n::tr("Nessuno stipendio registrato.") << '\n';
    }
    out << (recordedThisMonth ? L10n::tr("Lo stipendio di questo mese è registrato.")
                              : L10n::tr("Lo stipendio di questo mese non è ancora registrato."))
        << '\n';
    if (next) {
        out << L10n::tr("Prossimo promemoria dello stipendio: il {giorno} alle {ora}",
                        {{"giorno", dayText(*next, calendar)}, {"ora", std::to_string(reminder.hour)}})
            << '\n';
    }
}

int show(const Arguments& arguments, const SalaryReminder& reminder, Instant now, const Calendar& calendar,
         std::ostream& out) {
    const Ledger ledger = readLedger(arguments);
    const std::optional<Transaction> salary = lastSalary(ledger.transactions());
    const bool recordedThisMonth = salaryRecordedInMonth(ledger.transactions(), now, calendar);
    const std::optional<Instant> next =
        nextSalaryReminder(reminder, ledger.unemploymentPeriods(), ledger.transactions(), now, calendar);
    if (!arguments.has("--json")) {
        printText(ledger, salary, recordedThisMonth, reminder, next, now, calendar, out);
        return 0;
    }
    Json json{{"unemploymentPeriods", ledger.unemploymentPeriods()},
              {"unemployedToday", isUnemployed(ledger.unemploymentPeriods(), now, calendar)},
              {"salaryRecordedThisMonth", recordedThisMonth},
              {"salaryReminder", reminder}};
    JsonCoding::putIfPresent(json, "ongoingPeriod", ongoingUnemploymentPeriod(ledger));
    JsonCoding::putIfPresent(json, "lastSalary", salary);
    JsonCoding::putIfPresent(json, "nextSalaryReminder", next);
    out << JsonCoding::pretty(json);
    return 0;
}

}  // namespace

int runWork(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    ArgumentRules rules;
    rules.flags = {"--json"};
    rules.valueOptions = {"--reminder-day", "--reminder-hour", "--today"};
    const std::string usage = L10n::tr(workUsage);
    return runSubcommand(arguments, rules, usage.c_str(), out, err, [&](const Arguments& parsed) -> PreparedWork {
        const SalaryReminder reminder = reminderFromArguments(parsed);
        const Calendar calendar = Calendar::current();
        const Instant now = nowFromArguments(parsed, calendar);
        return [&parsed, reminder, now, calendar, &out] { return show(parsed, reminder, now, calendar, out); };
    });
}

}  // namespace vantello::cli

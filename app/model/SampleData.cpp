#include "app/model/SampleData.hpp"

#include "core/base/Localization.hpp"
#include "core/ledger/LedgerRecurring.hpp"
#include "core/planning/LoanBooking.hpp"
#include "core/statements/NameBasedUuid.hpp"

#include <array>
#include <cstdint>
#include <map>
#include <string>

namespace vantello {

namespace {

constexpr const char* savingsAccountID = "risparmi";

// The same numbers every time for the same day: a linear congruential sequence seeded by it.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : state_(seed * 2862933555777941757ULL + 3037000493ULL) {}
    // A whole number in [low, high].
    int between(int low, int high) {
        state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
        return low + static_cast<int>((state_ >> 33) % static_cast<std::uint64_t>(high - low + 1));
    }

private:
    std::uint64_t state_;
};

Decimal euros(int cents) { return Decimal(cents, -2); }

class SampleBuilder {
public:
    SampleBuilder(Instant today, const Calendar& calendar)
        : today_(today),
          calendar_(calendar),
          firstMonth_(*calendar.adding(CalendarUnit::month, -12, calendar.monthInterval(today).start)),
          dice_(static_cast<std::uint64_t>(unixSeconds(calendar.startOfDay(today)))) {}

    Ledger build() {
        LedgerData data;
        data.accounts = {Account::main(), savingsAccount()};
        data.accounts[0].openingBalance = euros(2'350'00);
        data.accounts[0].lowBalanceThreshold = euros(300'00);
        data.budgets = {{"spesa", euros(450'00)}, {"ristoranti", euros(180'00)}, {"svago", euros(120'00)}};
        data.categoryRules = {{id("rule-esselunga"), "Esselunga", "spesa"}, {id("rule-eni"), "Eni", "trasporti"}};
        data.people = {{id("person-giulia"), "Giulia"}};
        data.savingsGoals = {holidayGoal()};
        data.loans = {carLoan()};
        data.assets = {car()};
        data.sharedEntries = {{id("shared-giulia"), id("person-giulia"), SharedEntry::Kind::paymentReceived,
                               euros(20'00), day(-20), L10n::tr("Per la pizza")}};
        data.transactions = everydayMovements();

        Ledger ledger(std::move(data));
        for (RecurringRule& rule : monthlyRules()) addRecurringRule(ledger, std::move(rule));
        bookLoanInstalments(ledger, id("loan-car"), calendar_);
        generateDueTransactions(ledger, today_, calendar_);
        // Built again from its data, so that the movements are newest first as after loading.
        return withNamedIdentifiers(Ledger(ledger.data()));
    }

private:
    [[nodiscard]] static Uuid id(const std::string& name) { return nameBasedUuid("Vantello sample " + name); }

    // Noon of the day `offset` days from today.
    [[nodiscard]] Instant day(int offset) const {
        return calendar_.noon(*calendar_.adding(CalendarUnit::day, offset, today_));
    }

    [[nodiscard]] Instant monthDay(int monthsFromFirst, int dayOfMonth) const {
        const Instant month = *calendar_.adding(CalendarUnit::month, monthsFromFirst, firstMonth_);
        const CivilDate civil = calendar_.civilDate(month);
        return *calendar_.date({civil.year, civil.month, dayOfMonth}, 12);
    }

    static Account savingsAccount() {
        Account account;
        account.id = savingsAccountID;
        account.name = L10n::tr("Conto risparmi");
        account.symbol = "banknote";
        account.openingBalance = euros(4'000'00);
        return account;
    }

    [[nodiscard]] std::vector<RecurringRule> monthlyRules() const {
        struct Monthly {
            const char* name;
            TransactionKind kind;
            int cents;
            const char* category;
            const char* note;
            int dayOfMonth;
        };
        const std::array<Monthly, 6> monthly{{
            {"salary", TransactionKind::income, 1'920'00, "stipendio", "Stipendio Rossi Srl", 27},
            {"rent", TransactionKind::expense, 750'00, "casa", "Affitto", 1},
            {"streaming", TransactionKind::expense, 12'99, "abbonamenti", "Netflix", 5},
            {"music", TransactionKind::expense, 10'99, "abbonamenti", "Spotify", 12},
            {"gym", TransactionKind::expense, 39'00, "salute", "Palestra FitLife", 3},
            {"savings", TransactionKind::expense, 200'00, transferCategoryID.data(), "Risparmio del mese", 28},
        }};
        std::vector<RecurringRule> rules;
        for (const Monthly& entry : monthly) {
            RecurringRule rule;
            rule.id = id(std::string("recurring-") + entry.name);
            rule.kind = entry.kind;
            rule.amount = euros(entry.cents);
            rule.categoryID = entry.category;
            rule.note = entry.note;
            rule.accountID = std::string(mainAccountID);
            rule.startDate = monthDay(0, entry.dayOfMonth);
            if (rule.categoryID == transferCategoryID) rule.transferToAccountID = savingsAccountID;
            rules.push_back(std::move(rule));
        }
        return rules;
    }

    // Groceries twice a week, fuel every ten days or so, restaurants and bars, bills every two
    // months, some leisure and clothes, and one dinner shared with Giulia.
    std::vector<Transaction> everydayMovements() {
        std::vector<Transaction> movements;
        const auto add = [&](Instant date, int cents, const char* category, const char* note) {
            Transaction made;
            made.kind = TransactionKind::expense;
            made.amount = euros(cents);
            made.date = date;
            made.categoryID = category;
            made.note = note;
            movements.push_back(std::move(made));
            return &movements.back();
        };
        const int days = calendar_.wholeDaysBetween(firstMonth_, today_);
        for (int offset = -days; offset <= 0; ++offset) {
            const Instant date = day(offset);
            const int weekday = (offset % 7 + 7) % 7;
            if (weekday == 1 || weekday == 5) add(date, dice_.between(25'00, 95'00), "spesa", "Esselunga");
            if (dice_.between(0, 9) == 0) add(date, dice_.between(48'00, 68'00), "trasporti", "Eni Station");
            if (dice_.between(0, 5) == 0) add(date, dice_.between(1'20, 4'50), "ristoranti", "Bar Centrale");
            if (dice_.between(0, 20) == 0) add(date, dice_.between(22'00, 75'00), "ristoranti", "Trattoria da Mario");
            if (dice_.between(0, 24) == 0) add(date, dice_.between(9'00, 45'00), "svago", "Cinema Odeon");
            if (dice_.between(0, 40) == 0) add(date, dice_.between(19'90, 89'00), "abbigliamento", "Zara");
            if (dice_.between(0, 45) == 0) add(date, dice_.between(8'50, 35'00), "salute", "Farmacia Comunale");
        }
        for (int month = 1; month <= 12; month += 2) {
            add(monthDay(month, 16), dice_.between(70'00, 130'00), "bollette", "Bolletta luce e gas");
            add(monthDay(month, 20), 29'90, "bollette", "Internet casa");
        }
        Transaction* dinner = add(day(-23), 64'00, "ristoranti", "Pizzeria con Giulia");
        dinner->shares = {{id("person-giulia"), euros(32'00)}};
        return movements;
    }

    [[nodiscard]] SavingsGoal holidayGoal() const {
        SavingsGoal goal;
        goal.id = id("goal-holiday");
        goal.name = L10n::tr("Vacanze in Sardegna");
        goal.symbol = "airplane";
        goal.target = euros(2'000'00);
        goal.createdAt = monthDay(6, 2);
        goal.deadline = *calendar_.adding(CalendarUnit::month, 5, calendar_.noon(today_));
        for (int month = 6; month <= 11; ++month) {
            goal.contributions.push_back({id("goal-holiday-" + std::to_string(month)), monthDay(month, 2), euros(150'00), ""});
        }
        return goal;
    }

    [[nodiscard]] Loan carLoan() const {
        Loan loan;
        loan.id = id("loan-car");
        loan.name = L10n::tr("Prestito auto");
        loan.principal = euros(12'000'00);
        loan.annualRate = Decimal(49, -1);
        loan.months = 48;
        loan.firstPayment = monthDay(4, 10);
        loan.accountID = std::string(mainAccountID);
        loan.categoryID = "trasporti";
        return loan;
    }

    [[nodiscard]] Asset car() const {
        Asset asset;
        asset.id = id("asset-car");
        asset.name = L10n::tr("Auto");
        asset.symbol = "car";
        asset.valuations = {{monthDay(3, 25), euros(14'500'00)}, {monthDay(9, 1), euros(13'200'00)}};
        return asset;
    }

    // Movements and the loan's rule made along the way got random identifiers; they are renamed
    // by their place, so that the same day gives the same ledger.
    static Ledger withNamedIdentifiers(Ledger ledger) {
        ledger.change([](LedgerData& data) {
            std::map<Uuid, Uuid> renamedRules;
            for (std::size_t index = 0; index < data.recurringRules.size(); ++index) {
                RecurringRule& rule = data.recurringRules[index];
                const Uuid named = id("rule-" + std::to_string(index));
                renamedRules[rule.id] = named;
                rule.id = named;
            }
            for (Loan& loan : data.loans) {
                if (loan.recurringRuleID) loan.recurringRuleID = renamedRules.at(*loan.recurringRuleID);
            }
            std::vector<Transaction> movements(data.transactions.begin(), data.transactions.end());
            for (std::size_t index = 0; index < movements.size(); ++index) {
                movements[index].id = id("movement-" + std::to_string(index));
                if (movements[index].recurringRuleID) {
                    movements[index].recurringRuleID = renamedRules.at(*movements[index].recurringRuleID);
                }
            }
            data.transactions = std::move(movements);
        });
        return ledger;
    }

    Instant today_;
    const Calendar& calendar_;
    Instant firstMonth_;
    Dice dice_;
};

}  // namespace

Ledger sampleLedger(Instant today, const Calendar& calendar) { return SampleBuilder(today, calendar).build(); }

}  // namespace vantello

// The demo ledger: the same for the same day, ending on that day, a year of every kind of
// movement the screens show, valid by the ledger's own rules and kept whole by the ledger file.

#include "app/model/SampleData.hpp"
#include "core/analysis/PeriodTotals.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/ledger/LedgerAccounts.hpp"

#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <set>

using namespace vantello;

class SampleDataTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void aYearOfValidMovementsEndingToday() {
        const Calendar calendar("Europe/Rome");
        const Instant today = *calendar.date({2026, 3, 31}, 18);
        const Ledger ledger = sampleLedger(today, calendar);

        QVERIFY(ledger == sampleLedger(today, calendar));
        QVERIFY(!(ledger == sampleLedger(*calendar.date({2026, 4, 1}, 9), calendar)));

        const auto& movements = ledger.transactions();
        QVERIFY(movements.size() > 300);
        const auto [oldest, newest] = std::ranges::minmax(movements, {}, &Transaction::date);
        QVERIFY(newest.date <= today);
        QCOMPARE(calendar.startOfDay(oldest.date), *calendar.date({2025, 3, 1}));
        std::set<std::string> categories;
        std::set<Uuid> ids;
        int salaries = 0;
        for (const Transaction& movement : movements) {
            ledger.validate(movement);  // throws on anything the editor would refuse
            categories.insert(movement.categoryID);
            ids.insert(movement.id);
            if (movement.categoryID == "stipendio") salaries += 1;
        }
        QCOMPARE(ids.size(), movements.size());
        QCOMPARE(salaries, 13);  // the 27th of every month from March 2025 to March 2026
        for (const char* expected : {"spesa", "casa", "bollette", "trasporti", "ristoranti", "abbonamenti", "giroconto"}) {
            QVERIFY2(categories.contains(expected), expected);
        }
        QVERIFY(std::ranges::any_of(movements, [](const Transaction& movement) { return !movement.shares.empty(); }));

        // The loan's instalments are booked and falling due; the person keeps believable money.
        QCOMPARE(ledger.data().loans.size(), std::size_t(1));
        QVERIFY(ledger.data().loans[0].recurringRuleID);
        QVERIFY(std::ranges::any_of(movements, [&](const Transaction& movement) {
            return movement.recurringRuleID == ledger.data().loans[0].recurringRuleID;
        }));
        QVERIFY(accountBalance(ledger, "principale") > Decimal());
        const PeriodTotals year = periodTotals(ledger, {*calendar.date({2025, 3, 1}), today});
        QVERIFY(year.income > year.expenses);
        QVERIFY(!ledger.data().savingsGoals.empty() && !ledger.data().assets.empty());
        QVERIFY(!ledger.data().people.empty() && !ledger.data().budgets.empty());

        QTemporaryDir folder;
        const LedgerStore store(std::filesystem::path(folder.path().toStdString()) / "movimenti.json");
        store.save(ledger.data());
        QVERIFY(Ledger(store.load()) == ledger);
    }
};

QTEST_GUILESS_MAIN(SampleDataTest)
#include "SampleDataTest.moc"

#include "core/ledger/Ledger.hpp"

#include "core/ledger/LedgerSharing.hpp"
#include "core/ledger/SharedError.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

using namespace vantello;

namespace {

std::optional<SharedErrorCode> codeThrownBy(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const SharedError& error) {
        return error.code();
    }
    return std::nullopt;
}

Instant day(int n) { return instantFromUnixSeconds(1'700'000'000LL + n * 86'400LL); }

Transaction expense(Decimal amount, std::vector<PersonShare> shares, int on = 0, std::string note = {}) {
    Transaction transaction;
    transaction.id = Uuid::random();
    transaction.amount = amount;
    transaction.date = day(on);
    transaction.categoryID = "spesa";
    transaction.note = std::move(note);
    transaction.shares = std::move(shares);
    return transaction;
}

SharedEntry entry(const Person& person, SharedEntry::Kind kind, Decimal amount, int on = 0, std::string note = {}) {
    return {Uuid::random(), person.id, kind, amount, day(on), std::move(note)};
}

Decimal cents(std::int64_t value) { return Decimal(value, -2); }

}  // namespace

TEST(SharedExpenses, SharesAndEntriesMakeEachPersonsBalance) {
    Ledger ledger;
    const Person anna = addPerson(ledger, "Anna");
    const Person bruno = addPerson(ledger, "Bruno");
    const Person carla = addPerson(ledger, "Carla");
    ledger.add(expense(30, {{anna.id, 10}, {bruno.id, 10}}));
    EXPECT_EQ(personBalance(ledger, anna.id), Decimal(10));
    EXPECT_EQ(personBalance(ledger, bruno.id), Decimal(10));

    addSharedEntry(ledger, entry(anna, SharedEntry::Kind::paymentReceived, 10));
    addSharedEntry(ledger, entry(carla, SharedEntry::Kind::theyPaidForMe, 25));
    EXPECT_EQ(personBalance(ledger, anna.id), Decimal(0));
    EXPECT_EQ(personBalance(ledger, bruno.id), Decimal(10));
    EXPECT_EQ(personBalance(ledger, carla.id), Decimal(-25));
    const std::map<Uuid, Decimal> everyone{{anna.id, Decimal(0)}, {bruno.id, Decimal(10)}, {carla.id, Decimal(-25)}};
    EXPECT_EQ(peopleBalances(ledger), everyone);

    SharedEntry paidBack = entry(carla, SharedEntry::Kind::paymentMade, 25);
    paidBack.id = ledger.sharedEntries().back().id;
    updateSharedEntry(ledger, paidBack);
    EXPECT_EQ(personBalance(ledger, carla.id), Decimal(25));
    deleteSharedEntry(ledger, paidBack.id);
    EXPECT_EQ(personBalance(ledger, carla.id), Decimal(0));
}

TEST(SharedExpenses, InvalidSharesAndEntriesAreRefusedInOrderChangingNothing) {
    LedgerData withCard;
    withCard.accounts = {Account::main(), {"conto-B", "Carta", "creditcard", 0, std::nullopt}};
    Ledger ledger(withCard);
    const Person anna = addPerson(ledger, "Anna");
    const Person stranger{Uuid::random(), "Nessuno"};
    ledger.add(expense(30, {{anna.id, 15}, {anna.id, 15}}));  // exactly the amount
    const SharedEntry kept = entry(anna, SharedEntry::Kind::paymentMade, 5);
    addSharedEntry(ledger, kept);

    Transaction income = expense(30, {{anna.id, 5}});
    income.kind = TransactionKind::income;
    income.categoryID = "stipendio";
    Transaction transfer = expense(30, {{anna.id, 5}});
    transfer.categoryID = "giroconto";
    transfer.transferToAccountID = "conto-B";
    SharedEntry missing = kept;
    missing.id = Uuid::random();

    const struct {
        const char* name;
        std::function<void(Ledger&)> operation;
        SharedErrorCode expected;
    } cases[] = {
        {"one cent too much",
         [&](Ledger& l) { l.add(expense(30, {{anna.id, 15}, {anna.id, cents(1501)}})); },
         SharedErrorCode::sharesTooLarge},
        {"income", [&](Ledger& l) { l.add(income); }, SharedErrorCode::sharesOnlyOnExpenses},
        {"transfer", [&](Ledger& l) { l.add(transfer); }, SharedErrorCode::sharesOnlyOnExpenses},
        {"unknown person before zero share",
         [&](Ledger& l) { l.add(expense(30, {{anna.id, 0}, {stranger.id, 5}})); }, SharedErrorCode::unknownPerson},
        {"zero share", [&](Ledger& l) { l.add(expense(30, {{anna.id, 0}})); }, SharedErrorCode::amountNotPositive},
        {"entry of zero", [&](Ledger& l) { addSharedEntry(l, entry(anna, SharedEntry::Kind::paymentMade, 0)); },
         SharedErrorCode::amountNotPositive},
        {"entry for nobody",
         [&](Ledger& l) { addSharedEntry(l, entry(stranger, SharedEntry::Kind::paymentMade, 5)); },
         SharedErrorCode::unknownPerson},
        {"update of a missing entry", [&](Ledger& l) { updateSharedEntry(l, missing); },
         SharedErrorCode::unknownPerson},
        {"blank name", [&](Ledger& l) { addPerson(l, " \t\n"); }, SharedErrorCode::emptyName},
        {"same name", [&](Ledger& l) { addPerson(l, "  ÀNNA "); }, SharedErrorCode::duplicateName},
        {"rename of nobody", [&](Ledger& l) { renamePerson(l, stranger.id, "Bea"); }, SharedErrorCode::unknownPerson},
    };
    for (const auto& testCase : cases) {
        SCOPED_TRACE(testCase.name);
        Ledger changed = ledger;
        EXPECT_EQ(codeThrownBy([&] { testCase.operation(changed); }), testCase.expected);
        EXPECT_EQ(changed, ledger);
    }
}

TEST(SharedExpenses, PeopleNamesAreTrimmedAndUniqueIgnoringCaseAndAccents) {
    Ledger ledger;
    const Person anna = addPerson(ledger, "  Anna\n");
    EXPECT_EQ(anna.name, "Anna");
    renamePerson(ledger, anna.id, "ANNÀ");  // its own name may change case and accents
    EXPECT_EQ(ledger.people()[0].name, "ANNÀ");
    const Person bruno = addPerson(ledger, "Bruno");
    EXPECT_EQ(codeThrownBy([&] { renamePerson(ledger, bruno.id, "anna"); }), SharedErrorCode::duplicateName);
}

TEST(SharedExpenses, DeletingPersonDropsTheirSharesAndEntriesButKeepsExpenses) {
    Ledger ledger;
    const Person anna = addPerson(ledger, "Anna");
    const Person bruno = addPerson(ledger, "Bruno");
    const Transaction dinner = expense(30, {{anna.id, 10}, {bruno.id, 10}});
    ledger.add(dinner);
    addSharedEntry(ledger, entry(anna, SharedEntry::Kind::paymentReceived, 10));
    addSharedEntry(ledger, entry(bruno, SharedEntry::Kind::paymentReceived, 4));

    deletePerson(ledger, anna.id);
    Transaction expected = dinner;
    expected.shares = {{bruno.id, 10}};
    EXPECT_EQ(*ledger.transaction(dinner.id), expected);
    EXPECT_EQ(ledger.people(), std::vector<Person>{bruno});
    ASSERT_EQ(ledger.sharedEntries().size(), 1u);
    EXPECT_EQ(personBalance(ledger, bruno.id), Decimal(6));
}

TEST(SharedExpenses, HistoryIsNewestFirstWithReadableDescriptions) {
    Ledger ledger;
    const Person anna = addPerson(ledger, "Anna");
    const Transaction groceries = expense(30, {{anna.id, 10}}, 1);
    const Transaction dinner = expense(40, {{anna.id, 20}}, 3, "Pizzeria");
    ledger.add(groceries);
    ledger.add(dinner);
    const SharedEntry back = entry(anna, SharedEntry::Kind::paymentReceived, 5, 2, "contanti");
    const SharedEntry paid = entry(anna, SharedEntry::Kind::theyPaidForMe, 7, 4);
    addSharedEntry(ledger, back);
    addSharedEntry(ledger, paid);

    const std::vector<SharedHistoryItem> expected{
        {paid.id, day(4), SharedEntry::historyLabel(paid.kind), Decimal(-7)},
        {dinner.id, day(3), "Pizzeria", Decimal(20)},
        {back.id, day(2), SharedEntry::historyLabel(back.kind) + " · contanti", Decimal(-5)},
        {groceries.id, day(1), ledger.category("spesa")->name, Decimal(10)},
    };
    EXPECT_EQ(personHistory(ledger, anna.id), expected);
    const Person bruno = addPerson(ledger, "Bruno");
    const std::map<Uuid, std::vector<SharedHistoryItem>> everyone{{anna.id, expected}, {bruno.id, {}}};
    EXPECT_EQ(peopleHistories(ledger), everyone);
}

TEST(SharedExpenses, EqualSplitRoundsDownAndLeavesTheRestToTheUser) {
    const Uuid a = Uuid::random();
    const Uuid b = Uuid::random();
    EXPECT_EQ(equalSplit(10, {a, b}), (std::vector<PersonShare>{{a, cents(333)}, {b, cents(333)}}));
    EXPECT_EQ(equalSplit(cents(5), {a}), (std::vector<PersonShare>{{a, cents(2)}}));  // not 0.03
    EXPECT_TRUE(equalSplit(10, {}).empty());
}

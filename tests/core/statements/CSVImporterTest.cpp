#include "core/statements/CSVImporter.hpp"

#include "core/base/Iso8601.hpp"
#include "core/base/Json.hpp"
#include "core/base/Localization.hpp"
#include "core/statements/StatementFile.hpp"
#include "support/Dates.hpp"
#include "support/GoldenFile.hpp"

#include <gtest/gtest.h>

#include <filesystem>

namespace vantello {
namespace {

using testing::at;
using testing::rome;

// Date, amount, description: the usual signed statement.
CSVImportOptions signedOptions() {
    CSVImportOptions options;
    options.dateColumn = 0;
    options.amountColumn = 1;
    options.descriptionColumn = 2;
    return options;
}

CSVImportRow convert(const CSV::Row& cells, const CSVImportOptions& options = signedOptions(),
                     const std::vector<TransactionCategory>& categories = builtInCategories()) {
    return CSVImporter::row(cells, 7, options, categories, rome());
}

std::string problemOf(const CSV::Row& cells, const CSVImportOptions& options = signedOptions()) {
    const auto row = convert(cells, options);
    EXPECT_FALSE(row.transaction.has_value());
    return row.problem.value_or("(no problem)");
}

TEST(CSVImporter, ProblemsComeInOrderAndQuoteTheCell) {
    auto noDate = signedOptions();
    noDate.dateColumn.reset();
    EXPECT_EQ(problemOf({"x", "y"}, noDate), "Scegli la colonna della data.");
    EXPECT_EQ(problemOf({"31/02/2024", "abc"}), "Data non leggibile: «31/02/2024»");
    EXPECT_EQ(problemOf({}), "Data non leggibile: «»");
    auto halfSeparate = signedOptions();
    halfSeparate.amountMode = CSVImportOptions::AmountMode::separate;
    halfSeparate.incomeColumn = 1;
    EXPECT_EQ(problemOf({"05/03/2024", "1"}, halfSeparate), "Scegli le colonne di entrate e uscite.");
    auto noAmount = signedOptions();
    noAmount.amountColumn.reset();
    EXPECT_EQ(problemOf({"05/03/2024", "1"}, noAmount), "Scegli la colonna dell'importo.");
    EXPECT_EQ(problemOf({"05/03/2024", "12,3,4"}), "Importo non leggibile: «12,3,4»");
    EXPECT_EQ(problemOf({"05/03/2024", "-"}), "Importo non leggibile: «-»");
    EXPECT_EQ(problemOf({"05/03/2024", " 0,00 € "}), "Importo assente o uguale a zero.");
    EXPECT_EQ(problemOf({"05/03/2024", " "}), "Importo assente o uguale a zero.");
    EXPECT_EQ(problemOf({"05/03/2024"}), "Importo assente o uguale a zero.");
}

TEST(CSVImporter, AmountBeyondThePrecisionOfMoneyIsUnreadable) {
    EXPECT_TRUE(convert({"05/03/2024", "-" + std::string(38, '9')}).transaction.has_value());
    const std::string huge(100'000, '1');
    EXPECT_EQ(problemOf({"05/03/2024", "-" + huge}), "Importo non leggibile: «-" + huge + "»");
}

TEST(CSVImporter, ProblemsAreLocalised) {
    L10n::install([](std::string_view key) {
        return key == "Data non leggibile: «{text}»" ? std::string("Unreadable date: «{text}»") : std::string(key);
    });
    const auto problem = problemOf({"ieri", "1"});
    L10n::install(nullptr);
    EXPECT_EQ(problem, "Unreadable date: «ieri»");
}

TEST(CSVImporter, SignGivesTheKindAndTheAmountIsItsMagnitude) {
    struct Case {
        std::string cell;
        TransactionKind kind;
        Decimal amount;
    };
    for (const auto& [cell, kind, amount] : std::vector<Case>{
             {"(12,50)", TransactionKind::expense, Decimal(1250, -2)},
             {"\xE2\x88\x92" "1.250,00 €", TransactionKind::expense, Decimal(1250)},
             {"- 3", TransactionKind::expense, Decimal(3)},
             {"+30", TransactionKind::income, Decimal(30)},
             {"1\xC2\xA0" "500,5", TransactionKind::income, Decimal(15005, -1)},
         }) {
        const auto row = convert({"05/03/2024", cell});
        ASSERT_TRUE(row.transaction) << cell << ": " << row.problem.value_or("");
        EXPECT_EQ(row.transaction->kind, kind) << cell;
        EXPECT_EQ(row.transaction->amount, amount) << cell;
    }
}

TEST(CSVImporter, TransactionCarriesDateNoteAndDefaults) {
    const auto row = convert({"05/03/2024", "-12,50", "  POS   ESSELUNGA\n\tMILANO  "});
    ASSERT_TRUE(row.transaction);
    const Transaction& transaction = *row.transaction;
    EXPECT_EQ(row.line, 7);
    EXPECT_EQ(transaction.date, at(2024, 3, 5));
    EXPECT_EQ(transaction.note, "POS ESSELUNGA MILANO");
    EXPECT_EQ(transaction.categoryID, "altre-uscite");
    EXPECT_EQ(transaction.accountID, "principale");
    EXPECT_FALSE(transaction.id.isNil());
    EXPECT_TRUE(transaction.attachments.empty() && transaction.shares.empty());
    EXPECT_FALSE(transaction.recurringRuleID || transaction.transferToAccountID || transaction.currency ||
                 transaction.originalAmount);
    EXPECT_NE(convert({"05/03/2024", "1"}).transaction->id, convert({"05/03/2024", "1"}).transaction->id);
}

TEST(CSVImporter, SeparateColumnsIgnoreTheWrittenSign) {
    auto options = signedOptions();
    options.amountMode = CSVImportOptions::AmountMode::separate;
    options.amountColumn.reset();
    options.incomeColumn = 1;
    options.expenseColumn = 2;
    options.descriptionColumn = 3;
    const auto expense = convert({"05/03/2024", "", "-45,00"}, options).transaction;
    ASSERT_TRUE(expense);
    EXPECT_EQ(expense->kind, TransactionKind::expense);
    EXPECT_EQ(expense->amount, Decimal(45));
    const auto zeroIncome = convert({"05/03/2024", "0", "-45,00"}, options).transaction;
    ASSERT_TRUE(zeroIncome);
    EXPECT_EQ(zeroIncome->kind, TransactionKind::expense);
    EXPECT_EQ(convert({"05/03/2024", "100", "5"}, options).transaction->kind, TransactionKind::income);
    EXPECT_EQ(problemOf({"05/03/2024", "n/d", "5"}, options), "Importo non leggibile: «n/d»");
    EXPECT_EQ(problemOf({"05/03/2024", "", "0,00"}, options), "Importo assente o uguale a zero.");
}

TEST(CSVImporter, SideColumnStatusAndBalanceLines) {
    auto options = signedOptions();
    options.signColumn = 3;
    options.statusColumn = 4;
    const auto kindOf = [&](const CSV::Row& cells) { return convert(cells, options).transaction.value().kind; };
    EXPECT_EQ(kindOf({"05/03/2024", "12,50", "Miete", "S", ""}), TransactionKind::expense);
    EXPECT_EQ(kindOf({"05/03/2024", "-12,50", "Gehalt", " bij ", ""}), TransactionKind::income);
    EXPECT_EQ(kindOf({"05/03/2024", "-12,50", "Senza lato", "", ""}), TransactionKind::expense);
    EXPECT_EQ(kindOf({"05/03/2024", "-1", "Saldo fattura 12", "", "CONTABILIZZATO"}), TransactionKind::expense);

    EXPECT_EQ(problemOf({"05/03/2024", "-1", "X", "", " NON CONTABILIZZATO "}, options),
              "Movimento non contabilizzato: «NON CONTABILIZZATO»");
    EXPECT_EQ(problemOf({"05/03/2024", "-1", "X", "", "Pending"}, options), "Movimento non contabilizzato: «Pending»");
    EXPECT_EQ(problemOf({"30/11/2026", "955,01", "Saldo finale", "", ""}, options),
              "Riga di saldo, non un movimento: «Saldo finale»");
    // The date is read first: a balance line without one keeps the date's problem.
    EXPECT_EQ(problemOf({"Saldo iniziale", "1", "", "", ""}, options), "Data non leggibile: «Saldo iniziale»");
}

TEST(CSVImporter, CategoryCellMatchesANameOfTheRowsKind) {
    auto options = signedOptions();
    options.categoryColumn = 2;
    options.expenseCategoryID = "custom-varie";
    auto categories = builtInCategories();
    categories.push_back({"custom-caffe", "Caffè", "cup", TransactionKind::expense});
    const auto categoryOf = [&](const std::string& amount, const std::string& cell) {
        return convert({"05/03/2024", amount, cell}, options, categories).transaction->categoryID;
    };
    EXPECT_EQ(categoryOf("-1", "svago"), "svago");
    EXPECT_EQ(categoryOf("-1", " CAFFE "), "custom-caffe");
    EXPECT_EQ(categoryOf("-1", "Stipendio"), "custom-varie");  // an income category on an expense
    EXPECT_EQ(categoryOf("1", "stipendio"), "stipendio");
    EXPECT_EQ(categoryOf("1", ""), "altre-entrate");
}

TEST(CSVImporter, RowsSkipTheHeaderAndKeepTableLineNumbers) {
    const CSV::Table table{{"Saldo", "10"}, {"Data", "Importo"}, {"05/03/2024", "1"}, {"x", "2"}};
    auto options = signedOptions();
    options.headerRow = 1;
    const auto rows = CSVImporter::rows(table, options, builtInCategories(), rome());
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].line, 3);
    EXPECT_TRUE(rows[0].transaction);
    EXPECT_EQ(rows[1].line, 4);
    EXPECT_EQ(rows[1].problem, "Data non leggibile: «x»");
    options.hasHeader = false;
    EXPECT_EQ(CSVImporter::rows(table, options, {}, rome()).front().line, 1);
    EXPECT_TRUE(CSVImporter::rows({}, signedOptions(), {}, rome()).empty());
}

// The whole path from file to rows, against the expected rows kept beside each statement.
Json dumped(const CSVImportOptions& options, const std::vector<CSVImportRow>& rows) {
    Json result;
    result["options"] = {{"hasHeader", options.hasHeader},
                         {"headerRow", options.headerRow},
                         {"dateOrder", rawValue(options.dateOrder)},
                         {"amountMode", rawValue(options.amountMode)}};
    Json& list = result["rows"] = Json::array();
    for (const auto& row : rows) {
        Json item{{"line", row.line}};
        if (row.problem) item["problem"] = *row.problem;
        if (const auto& transaction = row.transaction) {
            item["kind"] = fileText(transaction->kind);
            item["amount"] = transaction->amount.description();
            item["date"] = Iso8601::format(transaction->date);
            item["categoryID"] = transaction->categoryID;
            item["note"] = transaction->note;
        }
        list.push_back(item);
    }
    return result;
}

TEST(CSVImporter, StatementFilesGiveTheirExpectedRows) {
    const std::filesystem::path folder = VANTELLO_TEST_DATA_DIR "/import";
    int cases = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".csv") continue;
        ++cases;
        const auto table = CSV::parse(readStatementText(entry.path()));
        const auto options = CSVImportOptions::guessed(table);
        const Json actual = dumped(options, CSVImporter::rows(table, options, builtInCategories(), rome()));
        EXPECT_TRUE(testing::matchesGolden(actual, "import", entry.path().stem().string()));
    }
    EXPECT_GE(cases, 2);
}

}  // namespace
}  // namespace vantello

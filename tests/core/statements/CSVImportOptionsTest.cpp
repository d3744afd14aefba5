#include "core/statements/CSVImportOptions.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using Options = CSVImportOptions;

Options guessedFromHeader(CSV::Row header) { return Options::guessed(CSV::Table{std::move(header)}); }

TEST(CSVImportOptions, BookingDateWinsOverValueDate) {
    EXPECT_EQ(guessedFromHeader({"Data operazione", "Data valuta", "Importo"}).dateColumn, 0);
    EXPECT_EQ(guessedFromHeader({"Data valuta", "Data contabile"}).dateColumn, 1);
    EXPECT_EQ(guessedFromHeader({"Valuta", "Importo"}).dateColumn, std::nullopt);
    // When every date column is a value date, the first one is better than none.
    EXPECT_EQ(guessedFromHeader({"Causale", " DATA VALUTA ", "Value date"}).dateColumn, 1);
}

TEST(CSVImportOptions, AmountModeFollowsTheColumnsFound) {
    const auto separate = guessedFromHeader({"Data", "Entrate", "Uscite"});
    EXPECT_EQ(separate.amountMode, Options::AmountMode::separate);
    EXPECT_EQ(separate.incomeColumn, 1);
    EXPECT_EQ(separate.expenseColumn, 2);
    const auto both = guessedFromHeader({"Data", "Importo", "Entrate", "Uscite"});
    EXPECT_EQ(both.amountMode, Options::AmountMode::signed_);
    EXPECT_EQ(both.amountColumn, 1);
    EXPECT_EQ(guessedFromHeader({"Data", "Entrate"}).amountMode, Options::AmountMode::signed_);
}

TEST(CSVImportOptions, NamesAreMatchedIgnoringCaseAndAccents) {
    auto expected = Options{};
    expected.dateColumn = 0;
    expected.descriptionColumn = 1;
    expected.categoryColumn = 2;
    expected.amountColumn = 3;
    EXPECT_EQ(guessedFromHeader({"Booking DATE", "Dettagli operazione", "CATEGORÌA", "Amount (EUR)"}), expected);
}

TEST(CSVImportOptions, HeaderIsFoundBelowTheStatementPreamble) {
    const CSV::Table table{
        {"Intestatario", "Mario Rossi"},
        {"Periodo", "01/03/2024 - 31/03/2024"},
        {"Saldo iniziale", "1.234,56"},
        {"Data contabile", "Data valuta", "Descrizione", "Importo"},
        {"05/03/2024", "04/03/2024", "Bonifico, data e importo", "-12,50"},
    };
    const auto options = Options::guessed(table);
    EXPECT_TRUE(options.hasHeader);
    EXPECT_EQ(options.headerRow, 3);
    EXPECT_EQ(options.dateColumn, 0);
    EXPECT_EQ(options.descriptionColumn, 2);
    EXPECT_EQ(options.amountColumn, 3);
}

TEST(CSVImportOptions, WithoutNamesTheFirstRowShowsTheColumns) {
    const auto options = Options::guessed({{"4521", "POS ESSELUNGA", "12/03/2024", "CARTA", "-12,50"},
                                           {"4522", "BONIFICO", "13/03/2024", "", "1.500,00"}});
    EXPECT_FALSE(options.hasHeader);
    EXPECT_EQ(options.dateColumn, 2);
    EXPECT_EQ(options.amountColumn, 4);  // written like money, unlike the reference number
    EXPECT_EQ(options.descriptionColumn, 1);
    // A header without a date name gets its date column from the data.
    EXPECT_EQ(Options::guessed({{"Giorno", "Importo"}, {"05/03/2024", "-1"}}).dateColumn, 0);
}

TEST(CSVImportOptions, HeaderWithUnknownNamesStaysHeaderAndDataFallbackReadsFirstDataRow) {
    const auto options = Options::guessed({{"Buchungstag", "Betrag", "Verwendungszweck"},
                                           {"03.02.2025", "-12,50", "Bäckerei"},
                                           {"14.02.2025", "1.800,00", "Gehalt"}});
    EXPECT_TRUE(options.hasHeader);
    EXPECT_EQ(options.headerRow, 0);
    EXPECT_EQ(options.dateColumn, 0);
    EXPECT_EQ(options.amountColumn, 1);
    EXPECT_EQ(options.descriptionColumn, 2);
    EXPECT_EQ(options.dateOrder, Options::DateOrder::dayMonthYear);

    // Below a title, the row of words right above the first movement names the columns.
    const auto belowTitle = Options::guessed(
        {{"Kontoauszug"}, {"Verwendungszweck", "Buchungstag", "Betrag"}, {"Miete", "01.02.2025", "-650,00"}});
    EXPECT_TRUE(belowTitle.hasHeader);
    EXPECT_EQ(belowTitle.headerRow, 1);
    EXPECT_EQ(belowTitle.dateColumn, 1);
    EXPECT_EQ(belowTitle.descriptionColumn, 0);
    // A row holding an amount is no header, nor is a row of words when no date follows it.
    EXPECT_FALSE(Options::guessed({{"Saldo", "1.234,56"}, {"03.02.2025", "-12,50"}}).hasHeader);
    EXPECT_FALSE(Options::guessed({{"POS ESSELUNGA", "CARTA"}, {"BONIFICO", "-12,50"}}).hasHeader);
}

TEST(CSVImportOptions, ExactNameWinsOverAKeywordInsideALongerName) {
    const auto paypal = CSVImportGuess::of(
        {{"Data", "Nome", "Stato", "Lordo", "Tariffa", "Netto", "Importo spedizione e imballaggio"}});
    EXPECT_EQ(paypal.options.amountColumn, 5);
    EXPECT_EQ(paypal.options.descriptionColumn, 1);
    EXPECT_EQ(paypal.options.statusColumn, 2);
    EXPECT_EQ(paypal.rules.at("amountColumn"), "headerExactName");
    EXPECT_EQ(guessedFromHeader({"Date", "Gross", "Fee", "Net", "Shipping and Handling Amount"}).amountColumn, 3);
    // Without an exact name the first name holding a keyword stays.
    EXPECT_EQ(guessedFromHeader({"Importo spedizione", "Importo EUR"}).amountColumn, 0);
}

TEST(CSVImportOptions, MoneyOutAndMoneyInAreTwoColumnsAndASideColumnIsNeither) {
    for (const CSV::Row& header : {CSV::Row{"Date", "Paid Out", "Paid In"}, CSV::Row{"Date", "Money out", "Money in"},
                                   CSV::Row{"Date", "Debit Amount", "Credit Amount"},
                                   CSV::Row{"Buchungstag", "Soll", "Haben"}}) {
        const auto guess = CSVImportGuess::of({header});
        EXPECT_EQ(guess.options.amountMode, Options::AmountMode::separate) << header[1];
        EXPECT_EQ(guess.options.amountColumn, std::nullopt) << header[1];
        EXPECT_EQ(guess.options.expenseColumn, 1) << header[1];
        EXPECT_EQ(guess.options.incomeColumn, 2) << header[1];
        EXPECT_EQ(guess.rules.at("amountMode"), "incomeAndExpenseColumns");
    }
    for (const CSV::Row& header : {CSV::Row{"Buchungstag", "Umsatz", "Soll/Haben"}, CSV::Row{"Data", "Importo", "Dare/Avere"},
                                   CSV::Row{"Datum", "Bedrag (EUR)", "Af Bij"}}) {
        const auto options = guessedFromHeader(header);
        EXPECT_EQ(options.amountMode, Options::AmountMode::signed_) << header[2];
        EXPECT_EQ(options.amountColumn, 1) << header[2];
        EXPECT_EQ(options.signColumn, 2) << header[2];
        EXPECT_EQ(options.incomeColumn, std::nullopt) << header[2];
    }
}

TEST(CSVImportOptions, RowNamingMoneyBelowThePreambleIsTheHeaderAndTheDataGiveTheDate) {
    const auto guess = CSVImportGuess::of({{"Conto corrente", "IT60X0542811101000000123456"},
                                           {"Saldo contabile", "2.345,67"},
                                           {"Operazione", "Descrizione", "Accrediti", "Addebiti"},
                                           {"02/11/2026", "STIPENDIO", "1.850,00", ""}});
    EXPECT_EQ(guess.options.headerRow, 2);
    EXPECT_EQ(guess.rules.at("headerRow"), "amountNamedRowBelow");
    EXPECT_EQ(guess.options.dateColumn, 0);
    EXPECT_EQ(guess.rules.at("dateColumn"), "dataCells");
    EXPECT_EQ(guess.options.amountMode, Options::AmountMode::separate);
}

TEST(CSVImportOptions, DateOrderComesFromTheNameOrTheDates) {
    const auto order = [](CSV::Table table) { return Options::guessed(table).dateOrder; };
    using Order = Options::DateOrder;
    EXPECT_EQ(order({{"Data", "Importo"}, {"03/04/2024", "1"}, {"03/14/2024", "1"}}), Order::monthDayYear);
    EXPECT_EQ(order({{"Data", "Importo"}, {"03/04/2024", "1"}, {"14/03/2024", "1"}}), Order::dayMonthYear);
    EXPECT_EQ(order({{"Data", "Importo"}, {"03/04/2024", "1"}}), Order::dayMonthYear);
    EXPECT_EQ(order({{"Data", "Importo"}, {"2024/03/04", "1"}}), Order::yearMonthDay);
    EXPECT_EQ(order({{"Date (MM/DD/YYYY)", "Amount"}, {"03/04/2024", "1"}}), Order::monthDayYear);
    EXPECT_EQ(order({{"Data (aaaa-mm-gg)", "Importo"}}), Order::yearMonthDay);
}

TEST(CSVImportOptions, RawValuesRoundTrip) {
    for (const auto order : allDateOrders) EXPECT_EQ(dateOrderFromRawValue(rawValue(order)), order);
    EXPECT_EQ(rawValue(Options::AmountMode::signed_), "signed");
    EXPECT_EQ(amountModeFromRawValue("separate"), Options::AmountMode::separate);
    EXPECT_EQ(dateOrderFromRawValue("dmy"), std::nullopt);
}

}  // namespace
}  // namespace vantello

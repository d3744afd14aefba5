// Statements in OFX (SGML and XML), QIF and CAMT.053: told apart by content, every record a
// movement or a problem, and the bank's own ids keeping a second import of an overlapping
// statement from adding anything.

#include "core/ledger/Ledger.hpp"
#include "core/ledger/LedgerAccounts.hpp"
#include "core/statements/ImportMerge.hpp"
#include "core/statements/NameBasedUuid.hpp"
#include "core/statements/StatementImport.hpp"
#include "support/Dates.hpp"

#include <gtest/gtest.h>

#include <string>

namespace vantello {
namespace {

using testing::at;
using testing::rome;

StatementImport opened(std::string_view text) {
    return openStatementText(text, "estratto", {}, builtInCategories(), rome());
}

std::string ofxSGML(std::string_view transactions, std::string_view currency = "EUR") {
    return "OFXHEADER:100\nDATA:OFXSGML\nVERSION:102\nCHARSET:1252\n\n<OFX>\n<BANKMSGSRSV1><STMTTRNRS><STMTRS>\n"
           "<CURDEF>" + std::string(currency) + "\n<BANKACCTFROM><BANKID>03069<ACCTID>IT60X0542811101000000123456"
           "<ACCTTYPE>CHECKING</BANKACCTFROM>\n<BANKTRANLIST>\n" + std::string(transactions) +
           "</BANKTRANLIST></STMTRS></STMTTRNRS></BANKMSGSRSV1></OFX>\n";
}

std::string ofxTransaction(std::string_view id, std::string_view date, std::string_view amount,
                           std::string_view name) {
    return "<STMTTRN>\n<TRNTYPE>OTHER\n<DTPOSTED>" + std::string(date) + "\n<TRNAMT>" + std::string(amount) +
           "\n<FITID>" + std::string(id) + "\n<NAME>" + std::string(name) + "\n</STMTTRN>\n";
}

std::string camt(std::string_view entries) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<Document xmlns=\"urn:iso:std:iso:20022:tech:xsd:camt.053.001.02\"><BkToCstmrStmt><Stmt>\n"
           "<Acct><Id><IBAN>IT60X0542811101000000123456</IBAN></Id></Acct>\n" + std::string(entries) +
           "</Stmt></BkToCstmrStmt></Document>\n";
}

std::string camtEntry(std::string_view reference, std::string_view amount, std::string_view indicator,
                      std::string_view status, std::string_view remittance) {
    return "<Ntry>\n<NtryRef>" + std::string(reference) + "</NtryRef>\n<Amt Ccy=\"EUR\">" + std::string(amount) +
           "</Amt>\n<CdtDbtInd>" + std::string(indicator) + "</CdtDbtInd><Sts>" + std::string(status) +
           "</Sts>\n<BookgDt><Dt>2024-03-05</Dt></BookgDt><ValDt><DtTm>2024-03-06T10:00:00</DtTm></ValDt>\n"
           "<NtryDtls><TxDtls><RltdPties><Cdtr><Nm>ACME Srl</Nm></Cdtr></RltdPties>"
           "<RmtInf><Ustrd>" + std::string(remittance) + "</Ustrd></RmtInf></TxDtls></NtryDtls>\n</Ntry>\n";
}

std::string qif(std::string_view type, std::string_view records) {
    return "!Type:" + std::string(type) + "\n" + std::string(records);
}

TEST(StatementFormats, OFXInSGMLAndXMLGiveMovementsAndProblems) {
    const auto sgml = opened(ofxSGML(ofxTransaction("A1", "20240305120000[+1:CET]", "-12.50", "POS Bar &amp; Co") +
                                     ofxTransaction("A2", "20240306", "1500,00", "Stipendio") +
                                     ofxTransaction("A3", "2024-03-07", "-3", "Data sbagliata")));
    EXPECT_EQ(sgml.format, StatementFormat::ofx);
    ASSERT_EQ(sgml.rows.size(), 3u);
    const Transaction& bar = *sgml.rows[0].transaction;
    EXPECT_EQ(bar.kind, TransactionKind::expense);
    EXPECT_EQ(bar.amount, Decimal(1250, -2));
    EXPECT_EQ(bar.date, at(2024, 3, 5));
    EXPECT_EQ(bar.note, "POS Bar & Co");
    EXPECT_EQ(bar.categoryID, "altre-uscite");
    EXPECT_EQ(sgml.rows[1].transaction->kind, TransactionKind::income);
    EXPECT_EQ(sgml.rows[1].transaction->amount, Decimal(1500));
    EXPECT_EQ(sgml.rows[2].problem, "Data non leggibile: «2024-03-07»");
    EXPECT_EQ(sgml.rows[2].line, 25);

    // The same records read again keep their ids; another account's are others.
    EXPECT_EQ(opened(ofxSGML(ofxTransaction("A1", "20240305", "-12.50", "Bar"))).rows[0].transaction->id, bar.id);

    const auto xml = opened(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<?OFX OFXHEADER=\"200\" VERSION=\"220\"?>\n"
        "<OFX><CREDITCARDMSGSRSV1><CCSTMTTRNRS><CCSTMTRS><CURDEF>EUR</CURDEF>"
        "<CCACCTFROM><ACCTID>4111</ACCTID></CCACCTFROM><BANKTRANLIST>\n"
        "<STMTTRN><TRNTYPE>DEBIT</TRNTYPE><DTPOSTED>20240310</DTPOSTED><TRNAMT>-45.90</TRNAMT>"
        "<FITID>C1</FITID><NAME>AMAZON</NAME><MEMO>Libri</MEMO></STMTTRN>\n"
        "<STMTTRN><TRNTYPE>DEBIT</TRNTYPE><DTPOSTED>20240311</DTPOSTED><TRNAMT>-20.00</TRNAMT><FITID>C2</FITID>"
        "<CURRENCY><CURRATE>1.08</CURRATE><CURSYM>USD</CURSYM></CURRENCY><NAME>NYC</NAME></STMTTRN>\n"
        "</BANKTRANLIST></CCSTMTRS></CCSTMTTRNRS></CREDITCARDMSGSRSV1></OFX>\n");
    EXPECT_EQ(xml.format, StatementFormat::ofx);
    ASSERT_EQ(xml.rows.size(), 2u);
    EXPECT_EQ(xml.rows[0].transaction->note, "AMAZON - Libri");
    EXPECT_EQ(xml.rows[0].transaction->date, at(2024, 3, 10));
    // A foreign amount is never taken as euro: neither in the transaction nor for the statement.
    EXPECT_EQ(xml.rows[1].problem, "Importo in USD, non in euro: il movimento non viene importato.");
    EXPECT_FALSE(opened(ofxSGML(ofxTransaction("D1", "20240305", "-1", "x"), "USD")).rows[0].transaction);
}

TEST(StatementFormats, QIFDecidesTheDateOrderFromTheWholeFile) {
    // 25/03 can only be day first, so 05/03 is 5 March too; amounts with "," grouping.
    const auto bank = opened(qif("Bank", "D05/03/2024\nT-1,234.56\nPAffitto\nMmarzo\n^\n"
                                         "D25/03/2024\nT2.000,00\nPStipendio\n^\nD31/02/2024\nT-1\nPBoh\n^\n"));
    EXPECT_EQ(bank.format, StatementFormat::qif);
    ASSERT_EQ(bank.rows.size(), 3u);
    EXPECT_EQ(bank.rows[0].transaction->date, at(2024, 3, 5));
    EXPECT_EQ(bank.rows[0].transaction->amount, *Decimal::fromCanonical("1234.56"));
    EXPECT_EQ(bank.rows[0].transaction->note, "Affitto - marzo");
    EXPECT_EQ(bank.rows[1].transaction->kind, TransactionKind::income);
    EXPECT_EQ(bank.rows[1].transaction->amount, Decimal(2000));
    EXPECT_EQ(bank.rows[2].problem, "Data non leggibile: «31/02/2024»");
    EXPECT_EQ(bank.rows[2].line, 11);

    // Quicken's American form, after a byte-order mark: month first with "'" before a year of the 2000s.
    const auto card =
        opened("\xEF\xBB\xBF" + qif("CCard", "D3/ 5'24\nT-9.99\nPNetflix\n^\nD12/1'24\nU-20\nPBenzina\n^\n"));
    ASSERT_EQ(card.rows.size(), 2u);
    EXPECT_EQ(card.rows[0].transaction->date, at(2024, 3, 5));
    EXPECT_EQ(card.rows[1].transaction->date, at(2024, 12, 1));
    EXPECT_EQ(card.rows[1].transaction->kind, TransactionKind::expense);
    // Without a date that settles it nor a "'", the day comes first.
    EXPECT_EQ(opened(qif("Cash", "D3-5-24\nT-1\n^\n")).rows[0].transaction->date, at(2024, 5, 3));
}

TEST(StatementFormats, CAMTBooksOnlyBookedEntries) {
    const auto statement = opened(camt(
        camtEntry("R1", "80.00", "DBIT", "BOOK", "Fattura 12") +
        "<Ntry><AcctSvcrRef>R2</AcctSvcrRef><Amt Ccy=\"EUR\">1500.00</Amt><CdtDbtInd>CRDT</CdtDbtInd>"
        "<Sts><Cd>BOOK</Cd></Sts><ValDt><Dt>2024-03-08</Dt></ValDt><NtryDtls><TxDtls><AmtDtls><InstdAmt>"
        "<Amt Ccy=\"CHF\">1450.00</Amt></InstdAmt></AmtDtls><RltdPties><Dbtr><Pty><Nm>Datore SpA</Nm></Pty></Dbtr>"
        "</RltdPties></TxDtls></NtryDtls></Ntry>\n" +
        camtEntry("R3", "5.00", "DBIT", "PDNG", "In attesa")));
    EXPECT_EQ(statement.format, StatementFormat::camt);
    ASSERT_EQ(statement.rows.size(), 3u);
    const Transaction& invoice = *statement.rows[0].transaction;
    EXPECT_EQ(invoice.kind, TransactionKind::expense);
    EXPECT_EQ(invoice.amount, Decimal(80));
    EXPECT_EQ(invoice.date, at(2024, 3, 5));  // the booking day wins over the value day
    EXPECT_EQ(invoice.note, "ACME Srl Fattura 12");
    EXPECT_EQ(statement.rows[0].line, 4);
    const Transaction& salary = *statement.rows[1].transaction;
    EXPECT_EQ(salary.kind, TransactionKind::income);
    EXPECT_EQ(salary.date, at(2024, 3, 8));
    EXPECT_EQ(salary.note, "Datore SpA");
    EXPECT_EQ(salary.currency, "CHF");
    EXPECT_EQ(salary.originalAmount, Decimal(1450));
    EXPECT_EQ(statement.rows[2].problem,
              "Movimento non ancora contabilizzato (stato «PDNG»): non viene importato.");

    // A debit and credit notification (camt.054) holds the same entries.
    const auto notification = opened(
        "<?xml version=\"1.0\"?><Document xmlns=\"urn:iso:std:iso:20022:tech:xsd:camt.054.001.02\">"
        "<BkToCstmrDbtCdtNtfctn><Ntfctn><Acct><Id><IBAN>IT60X</IBAN></Id></Acct>" +
        camtEntry("N1", "3.50", "DBIT", "BOOK", "Caffè") + "</Ntfctn></BkToCstmrDbtCdtNtfctn></Document>\n");
    EXPECT_EQ(notification.format, StatementFormat::camt);
    EXPECT_EQ(notification.rows.at(0).transaction->amount, Decimal(350, -2));

    // A document that breaks off keeps what came before it.
    const auto broken =
        opened(camt(camtEntry("R1", "80.00", "DBIT", "BOOK", "x") + "<Ntry>\n<Amt Ccy=\"EUR\">1</Am></Ntry>"));
    ASSERT_EQ(broken.rows.size(), 2u);
    EXPECT_TRUE(broken.rows[0].transaction);
    EXPECT_EQ(broken.rows[1].line, 12);
    EXPECT_EQ(broken.rows[1].problem,
              "Il file non è XML valido dalla riga 12 (mismatched tag): il resto non viene letto.");
}

// The second statement overlaps the first by one record, whose description the bank changed.
class OverlappingStatements : public ::testing::TestWithParam<RepeatedMovements> {
protected:
    ImportResult import(std::string_view text) {
        return importTransactions(ledger, opened(text).transactions(), mainAccountID, false, rome(), GetParam());
    }
    Ledger ledger;
};

TEST_P(OverlappingStatements, SecondImportAddsOnlyTheNewRecords) {
    const std::string formats[][2] = {
        {ofxSGML(ofxTransaction("F1", "20240301", "-4", "Bar") + ofxTransaction("F2", "20240302", "-7", "Bus")),
         ofxSGML(ofxTransaction("F2", "20240302", "-7", "BUS ATM") + ofxTransaction("F3", "20240303", "-9", "X"))},
        {qif("Bank", "D01/03/2024\nT-4\nPBar\n^\nD02/03/2024\nT-7\nPBus\nMa\n^\n"),
         qif("Bank", "D02/03/2024\nT-7\nPBus\nMb\n^\nD03/03/2024\nT-9\nPX\n^\n")},
        {camt(camtEntry("E1", "4", "DBIT", "BOOK", "Bar") + camtEntry("E2", "7", "DBIT", "BOOK", "Bus")),
         camt(camtEntry("E2", "7", "DBIT", "BOOK", "BUS ATM") + camtEntry("E3", "9", "DBIT", "BOOK", "X"))},
    };
    for (const auto& [first, second] : formats) {
        ledger = Ledger();
        EXPECT_EQ(import(first).added, 2);
        const ImportResult again = import(second);
        EXPECT_EQ(again.added, 1) << second;
        EXPECT_EQ(again.duplicates, 1);
        EXPECT_EQ(again.invalid, 0);
        EXPECT_EQ(import(second).duplicates, 2);
        EXPECT_EQ(ledger.transactions().size(), 3u);
    }
}

// Ids already in ledgers must stay what they are: this is RFC 4122 version 5 (SHA-1).
TEST(StatementFormats, NameBasedIdsAreStable) {
    EXPECT_EQ(nameBasedUuid("ofx\nacct\nF1").text(), "F99BBBF7-82FF-50D3-AE4B-6C703D4864D2");
    EXPECT_EQ(nameBasedUuid(std::string(200, 'x')).text(), "18E45624-C02E-5211-9911-19A94191E00F");
    EXPECT_TRUE(isNameBased(nameBasedUuid("")));
    EXPECT_FALSE(isNameBased(Uuid::random()));
}

INSTANTIATE_TEST_SUITE_P(EitherWayOfTakingRepeatedRows, OverlappingStatements,
                         ::testing::Values(RepeatedMovements::oneDuplicate, RepeatedMovements::counted));

}  // namespace
}  // namespace vantello

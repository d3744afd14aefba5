// How fast an OFX, QIF or CAMT.053 statement becomes candidate movements: detecting the format,
// reading every record and converting it, as the import does when a file is opened. Statements
// of 10,000 and 100,000 records; the cost should grow linearly.

#include "core/base/Calendar.hpp"
#include "core/ledger/TransactionCategory.hpp"
#include "core/statements/StatementImport.hpp"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

namespace {

using namespace vantello;

constexpr const char* payees[] = {"PAGAMENTO POS ESSELUNGA MILANO", "BONIFICO ACME SRL STIPENDIO",
                                  "ADDEBITO SDD ENEL ENERGIA SPA", "PRELIEVO BANCOMAT ATM 03215",
                                  "AMAZON EU SARL", "FARMACIA COMUNALE"};

// One generated record: the same seed gives the same statement on every run.
struct Record {
    int year, month, day;
    long cents;  // signed
    const char* payee;
};

template <typename Write>
std::string generated(std::size_t records, std::string text, const char* closing, Write write) {
    std::mt19937_64 generator(20240305);
    std::uniform_int_distribution<int> day(1, 28), month(1, 12), year(2019, 2024), payee(0, 5);
    std::uniform_int_distribution<long> cents(-50'000, 30'000);
    for (std::size_t index = 0; index < records; ++index) {
        long amount = cents(generator);
        if (amount == 0) amount = 1;
        write(text, index, Record{year(generator), month(generator), day(generator), amount, payees[payee(generator)]});
    }
    return text + closing;
}

std::string amountText(long cents) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%s%ld.%02ld", cents < 0 ? "-" : "", std::labs(cents) / 100,
                  std::labs(cents) % 100);
    return buffer;
}

std::string ofx(std::size_t records) {
    return generated(records,
                     "OFXHEADER:100\nDATA:OFXSGML\n\n<OFX><BANKMSGSRSV1><STMTTRNRS><STMTRS><CURDEF>EUR\n"
                     "<BANKACCTFROM><ACCTID>123456</BANKACCTFROM><BANKTRANLIST>\n",
                     "</BANKTRANLIST></STMTRS></STMTTRNRS></BANKMSGSRSV1></OFX>\n",
                     [](std::string& text, std::size_t index, const Record& r) {
                         char date[16];
                         std::snprintf(date, sizeof date, "%04d%02d%02d", r.year, r.month, r.day);
                         text += "<STMTTRN>\n<TRNTYPE>OTHER\n<DTPOSTED>" + std::string(date) +
                                 "120000[+1:CET]\n<TRNAMT>" + amountText(r.cents) + "\n<FITID>" +
                                 std::to_string(index) + "\n<NAME>" + r.payee + "\n<MEMO>Operazione\n</STMTTRN>\n";
                     });
}

std::string qif(std::size_t records) {
    return generated(records, "!Type:Bank\n", "", [](std::string& text, std::size_t, const Record& r) {
        char date[16];
        std::snprintf(date, sizeof date, "%02d/%02d/%04d", r.day, r.month, r.year);
        text += "D" + std::string(date) + "\nT" + amountText(r.cents) + "\nP" + r.payee + "\nMOperazione\n^\n";
    });
}

std::string camt(std::size_t records) {
    return generated(
        records,
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<Document xmlns=\"urn:iso:std:iso:20022:tech:xsd:camt.053.001.02\">"
        "<BkToCstmrStmt><Stmt><Acct><Id><IBAN>IT60X0542811101000000123456</IBAN></Id></Acct>\n",
        "</Stmt></BkToCstmrStmt></Document>\n", [](std::string& text, std::size_t index, const Record& r) {
            char date[16];
            std::snprintf(date, sizeof date, "%04d-%02d-%02d", r.year, r.month, r.day);
            const long magnitude = std::labs(r.cents);
            text += "<Ntry><NtryRef>" + std::to_string(index) + "</NtryRef><Amt Ccy=\"EUR\">" + amountText(magnitude) +
                    "</Amt><CdtDbtInd>" + (r.cents < 0 ? "DBIT" : "CRDT") + "</CdtDbtInd><Sts>BOOK</Sts><BookgDt><Dt>" +
                    date + "</Dt></BookgDt><NtryDtls><TxDtls><RltdPties><Cdtr><Nm>" + r.payee +
                    "</Nm></Cdtr></RltdPties><RmtInf><Ustrd>Operazione</Ustrd></RmtInf></TxDtls></NtryDtls></Ntry>\n";
        });
}

template <std::string (*Generate)(std::size_t)>
void BM_OpenStatement(benchmark::State& state) {
    const std::string text = Generate(static_cast<std::size_t>(state.range(0)));
    const Calendar calendar("Europe/Rome");
    const std::vector<TransactionCategory> categories = builtInCategories();
    std::size_t movements = 0;
    for (auto _ : state) {
        const StatementImport statement = openStatementText(text, "estratto", {}, categories, calendar);
        movements = statement.transactions().size();
        benchmark::DoNotOptimize(movements);
    }
    state.counters["movements"] = static_cast<double>(movements);
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}

BENCHMARK(BM_OpenStatement<ofx>)->Name("OFX")->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenStatement<qif>)->Name("QIF")->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenStatement<camt>)->Name("CAMT053")->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace

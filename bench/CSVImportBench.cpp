// How fast a bank statement becomes candidate movements: tokenizing the text and converting the
// table, which the import screen redoes on every change of the options. Statements of 10,000
// and 100,000 rows of realistic Italian bank lines; the cost should grow linearly.

#include "core/base/Calendar.hpp"
#include "core/statements/CSV.hpp"
#include "core/statements/CSVImportOptions.hpp"
#include "core/statements/CSVImporter.hpp"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <random>
#include <string>

namespace {

using namespace vantello;

constexpr const char* descriptions[] = {
    "PAGAMENTO POS ESSELUNGA MILANO",
    "\"BONIFICO A VOSTRO FAVORE; ORD. ACME SRL; CAUSALE STIPENDIO\"",
    "ADDEBITO SDD ENEL ENERGIA SPA",
    "PRELIEVO BANCOMAT ATM 03215",
    "\"PAGAMENTO CARTA; AMAZON EU SARL; LUSSEMBURGO\"",
    "COMMISSIONI TENUTA CONTO",
    "PAGAMENTO POS CAFFÈ DELLA STAZIONE",
    "\"GIROCONTO; DA CONTO DEPOSITO\"",
    "ADDEBITO TELEPASS",
    "PAGAMENTO POS FARMACIA COMUNALE",
};

// A statement with a short preamble, its column names and `rows` movements over a few years;
// the same seed gives the same text on every run.
std::string statement(std::size_t rows) {
    std::mt19937_64 generator(20240305);
    std::uniform_int_distribution<int> day(1, 28);
    std::uniform_int_distribution<int> month(1, 12);
    std::uniform_int_distribution<int> year(2019, 2024);
    std::uniform_int_distribution<std::size_t> description(0, std::size(descriptions) - 1);
    std::uniform_int_distribution<int> cents(1, 250'000);
    std::bernoulli_distribution income(0.15);

    std::string text = "Intestatario;MARIO ROSSI;;\r\nSaldo iniziale;;;12.345,67\r\n"
                       "Data operazione;Data valuta;Descrizione;Importo\r\n";
    char line[256];
    for (std::size_t index = 0; index < rows; ++index) {
        const int d = day(generator);
        const int m = month(generator);
        const int y = year(generator);
        const int amount = cents(generator);
        std::snprintf(line, sizeof line, "%02d/%02d/%d;%02d/%02d/%d;%s;%s%d,%02d\r\n", d, m, y, d, m, y,
                      descriptions[description(generator)], income(generator) ? "" : "-", amount / 100,
                      amount % 100);
        text += line;
    }
    return text;
}

void tokenize(benchmark::State& state) {
    const std::string text = statement(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        auto table = CSV::parse(text);
        benchmark::DoNotOptimize(table.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(tokenize)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

void convert(benchmark::State& state) {
    const auto table = CSV::parse(statement(static_cast<std::size_t>(state.range(0))));
    const auto options = CSVImportOptions::guessed(table);
    const Calendar calendar("Europe/Rome");
    const auto& categories = builtInCategories();
    std::size_t good = 0;
    for (auto _ : state) {
        const auto rows = CSVImporter::rows(table, options, categories, calendar);
        good = 0;
        for (const auto& row : rows) good += row.transaction ? 1 : 0;
        benchmark::DoNotOptimize(rows.data());
    }
    state.counters["good rows"] = static_cast<double>(good);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(convert)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

// Opening a file: tokenize, guess the options, convert.
void openStatement(benchmark::State& state) {
    const std::string text = statement(static_cast<std::size_t>(state.range(0)));
    const Calendar calendar("Europe/Rome");
    for (auto _ : state) {
        const auto table = CSV::parse(text);
        const auto rows = CSVImporter::rows(table, CSVImportOptions::guessed(table), builtInCategories(), calendar);
        benchmark::DoNotOptimize(rows.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(openStatement)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace

// How fast money adds up: one million realistic amounts summed with Decimal, next to the same
// sum over plain integer cents as the floor, and reading the amounts from their canonical text.

#include "core/base/Decimal.hpp"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr std::size_t amountCount = 1'000'000;

// Amounts with two decimals from 0.01 to 4000.00; a fixed seed keeps every run on the same data.
std::vector<std::int64_t> amountCents() {
    std::mt19937_64 generator(20240601);
    std::uniform_int_distribution<std::int64_t> cents(1, 400'000);
    std::vector<std::int64_t> amounts(amountCount);
    for (auto& amount : amounts) {
        amount = cents(generator);
    }
    return amounts;
}

void sumDecimals(benchmark::State& state) {
    std::vector<vantello::Decimal> amounts;
    amounts.reserve(amountCount);
    for (const auto cents : amountCents()) {
        amounts.emplace_back(cents, -2);
    }
    for (auto _ : state) {
        vantello::Decimal total;
        for (const auto& amount : amounts) {
            total += amount;
        }
        benchmark::DoNotOptimize(total);
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * amountCount));
}
BENCHMARK(sumDecimals)->Unit(benchmark::kMillisecond);

void sumIntegerCents(benchmark::State& state) {
    const auto amounts = amountCents();
    for (auto _ : state) {
        std::int64_t total = 0;
        for (const auto cents : amounts) {
            total += cents;
            benchmark::ClobberMemory();
        }
        benchmark::DoNotOptimize(total);
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * amountCount));
}
BENCHMARK(sumIntegerCents)->Unit(benchmark::kMillisecond);

void parseCanonicalText(benchmark::State& state) {
    std::vector<std::string> texts;
    texts.reserve(amountCount);
    for (const auto cents : amountCents()) {
        texts.push_back(vantello::Decimal(cents, -2).description());
    }
    for (auto _ : state) {
        vantello::Decimal total;
        for (const auto& text : texts) {
            total += *vantello::Decimal::fromCanonical(text);
        }
        benchmark::DoNotOptimize(total);
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * amountCount));
}
BENCHMARK(parseCanonicalText)->Unit(benchmark::kMillisecond);

}  // namespace

#include "crash/LedgerStates.hpp"

#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <stdexcept>
#include <string>

namespace vantello::crash {

namespace {

constexpr std::size_t baseCount = 6'000;
constexpr long long extraKinds = 997;
const std::string marker = "stato ";

std::size_t lengthOf(long long state) { return baseCount + static_cast<std::size_t>(state % extraKinds); }

const SharedList<Transaction>& baseMovements() {
    static const SharedList<Transaction> movements = [] {
        SharedList<Transaction> made;
        for (std::size_t i = 0; i < baseCount + extraKinds; ++i) {
            made.push_back(testing::noted(testing::expense("12.34", testing::utc(2025, 1, 1) + std::chrono::hours(i)),
                                          "Spesa numero " + std::to_string(i)));
        }
        return made;
    }();
    return movements;
}

}  // namespace

LedgerData ledgerState(long long state) {
    const auto& base = baseMovements();
    LedgerData data;
    const std::size_t length = lengthOf(state);
    for (std::size_t i = 0; i + 1 < length; ++i) data.transactions.push_back(base[i]);
    data.transactions.push_back(testing::noted(base[length - 1], marker + std::to_string(state)));
    return data;
}

long long stateOf(const LedgerData& data) {
    if (data.transactions.empty()) return 0;
    const std::string& note = data.transactions.back().note;
    if (note.rfind(marker, 0) != 0) throw std::runtime_error("the last movement carries no state");
    const long long state = std::stoll(note.substr(marker.size()));
    if (data.transactions.size() != lengthOf(state)) throw std::runtime_error("movements missing");
    return state;
}

}  // namespace vantello::crash

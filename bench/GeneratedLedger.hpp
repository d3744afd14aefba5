#pragma once
// The generated ledger of 100,000 movements that the analysis benchmarks share, made once per
// program, and the moment they take as now.

#include "bench/LedgerGenerator.hpp"
#include "core/base/Calendar.hpp"
#include "core/ledger/Ledger.hpp"

namespace vantello::bench {

inline const Calendar& romeCalendar() {
    static const Calendar calendar("Europe/Rome");
    return calendar;
}

inline const Ledger& generatedLedger() {
    static const Ledger ledger(LedgerGenerator().generate(100'000));
    return ledger;
}

// Mid-December of the generated history's last year, at noon in Rome.
inline Instant benchNow() { return *romeCalendar().date(CivilDate{2024, 12, 15}, 12); }

}  // namespace vantello::bench

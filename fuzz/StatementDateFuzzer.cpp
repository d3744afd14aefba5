// The date reader never throws and gives only days within its years.
#include "core/statements/StatementDate.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace vantello;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Calendar calendar("Europe/Rome");
    const std::string_view cell(reinterpret_cast<const char*>(data), size);
    (void)StatementDate::writtenNumbers(cell);
    using Order = CSVImportOptions::DateOrder;
    for (const auto order : {Order::dayMonthYear, Order::yearMonthDay, Order::monthDayYear}) {
        const auto day = StatementDate::civilDate(cell, order);
        if (day && (day->year < 1900 || day->year > 2200)) std::abort();
        (void)StatementDate::read(cell, order, calendar);
    }
    return 0;
}

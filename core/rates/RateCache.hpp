#pragma once
// The reference rates kept between runs, so that foreign amounts convert while offline with the
// last rates known: the cache file's JSON form, reading and writing it, and laying a newly
// downloaded feed over the days kept.

#include "core/rates/ExchangeRates.hpp"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vantello::RateCache {

// {"days": {"2024-03-05": {"USD": "1.085", …}, …}}, rates as canonical decimal text.
[[nodiscard]] std::string encode(const ExchangeRates& rates);
// DecodingError when the text is not such a document.
[[nodiscard]] ExchangeRates decode(std::string_view text);

// The rates kept in `file`; none when it is missing or cannot be read or decoded, since a
// cache only saves a download.
[[nodiscard]] ExchangeRates read(const std::filesystem::path& file);
// Replaces `file` atomically; FileError when it cannot, leaving the old file as it was.
void write(const std::filesystem::path& file, const ExchangeRates& rates);

// The kept days with the downloaded ones laid over them: a day the feed holds is taken from the
// feed whole, days older than the feed's window stay as they were.
[[nodiscard]] ExchangeRates merged(ExchangeRates kept, const ExchangeRates& downloaded);

// The newest day that holds a rate ("2024-03-05"): the day the rates are "of".
[[nodiscard]] std::optional<std::string> newestDay(const ExchangeRates& rates);

}  // namespace vantello::RateCache

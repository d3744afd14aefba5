#pragma once
// Finding a record of a collection by its identifier, the first step of every edit.

#include <algorithm>
#include <utility>
#include <vector>

namespace vantello {

// The record whose `id` equals `id`, or nothing.
template <typename Record, typename ID>
[[nodiscard]] const Record* findByID(const std::vector<Record>& records, const ID& id) {
    const auto found = std::find_if(records.begin(), records.end(), [&id](const Record& record) { return record.id == id; });
    return found == records.end() ? nullptr : &*found;
}

// The record whose `id` equals `id`, ready to be replaced; throws `missing` when there is none.
template <typename Record, typename ID, typename Error>
[[nodiscard]] Record& existingRecord(std::vector<Record>& records, const ID& id, Error&& missing) {
    const auto found = std::find_if(records.begin(), records.end(), [&id](const Record& record) { return record.id == id; });
    if (found == records.end()) throw std::forward<Error>(missing);
    return *found;
}

}  // namespace vantello

#include "core/files/RepeatedIDs.hpp"

#include "core/base/Json.hpp"
#include "core/base/Localization.hpp"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace vantello {

namespace {

[[noreturn]] void failRepeated(std::string_view id, std::string_view key) {
    throw DecodingError(L10n::tr("Dati non validi: l'identificativo {id} compare più volte in «{key}».",
                                 {{"id", id}, {"key", key}}));
}

// The ids seen so far, as 64-bit fingerprints in open addressing at most half full: small enough
// to stay in the processor's cache for the hundred thousand movements of a large file. Equal
// fingerprints are confirmed on the ids themselves. The mix is seeded once per process, so that
// no file can be written whose ids all fall on the same slot.
template <typename Records>
class UuidSet {
public:
    explicit UuidSet(const Records& records)
        : records_(records), slots_(std::bit_ceil(std::max<std::size_t>(records.size() * 2, 2))) {}

    // The first id, in order, that an earlier record has too.
    std::optional<Uuid> firstRepeat() const {
        const std::size_t mask = slots_.size() - 1;
        std::size_t position = 0;
        for (const auto& record : records_) {
            const std::uint64_t print = fingerprint(record.id);
            for (std::size_t index = print & mask;; index = (index + 1) & mask) {
                if (slots_[index] == 0) {
                    slots_[index] = print;
                    break;
                }
                if (slots_[index] == print && appearsBefore(record.id, position)) return record.id;
            }
            ++position;
        }
        return std::nullopt;
    }

private:
    // Never 0, the mark of an empty slot.
    static std::uint64_t fingerprint(const Uuid& id) {
        std::uint64_t low = 0;
        std::uint64_t high = 0;
        std::memcpy(&low, id.bytes().data(), sizeof low);
        std::memcpy(&high, id.bytes().data() + sizeof low, sizeof high);
        return mixed(high ^ mixed(low ^ seed())) | 1;
    }

    // The finaliser of splitmix64: every input bit reaches every output bit.
    static std::uint64_t mixed(std::uint64_t value) {
        value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9ULL;
        value = (value ^ (value >> 27)) * 0x94D049BB133111EBULL;
        return value ^ (value >> 31);
    }

    static std::uint64_t seed() {
        static const std::uint64_t value = std::random_device{}() * 0x100000001ULL ^ std::random_device{}();
        return value;
    }

    // Only for equal fingerprints, which unequal ids almost never have.
    bool appearsBefore(const Uuid& id, std::size_t position) const {
        return std::any_of(records_.begin(), records_.begin() + static_cast<std::ptrdiff_t>(position),
                           [&](const auto& record) { return record.id == id; });
    }

    const Records& records_;
    mutable std::vector<std::uint64_t> slots_;
};

template <typename Records>
void refuseRepeats(const Records& records, std::string_view key) {
    using Record = std::remove_cvref_t<decltype(*records.begin())>;
    if constexpr (std::is_same_v<decltype(Record::id), Uuid>) {
        if (const auto repeated = UuidSet<Records>(records).firstRepeat()) failRepeated(repeated->text(), key);
    } else {
        // Text ids: few, and sorting them cannot be made slow by any choice of ids.
        std::vector<std::string_view> ids;
        ids.reserve(records.size());
        for (const Record& record : records) ids.emplace_back(record.id);
        std::sort(ids.begin(), ids.end());
        const auto repeated = std::adjacent_find(ids.begin(), ids.end());
        if (repeated != ids.end()) failRepeated(*repeated, key);
    }
}

}  // namespace

void refuseRepeatedIDs(const LedgerData& data) {
    refuseRepeats(data.transactions, "transactions");
    refuseRepeats(data.customCategories, "customCategories");
    refuseRepeats(data.accounts, "accounts");
    refuseRepeats(data.recurringRules, "recurringRules");
    refuseRepeats(data.categoryRules, "categoryRules");
    refuseRepeats(data.unemploymentPeriods, "unemploymentPeriods");
    refuseRepeats(data.savedSearches, "savedSearches");
    refuseRepeats(data.savingsGoals, "savingsGoals");
    refuseRepeats(data.loans, "loans");
    refuseRepeats(data.assets, "assets");
    refuseRepeats(data.people, "people");
    refuseRepeats(data.sharedEntries, "sharedEntries");
}

}  // namespace vantello

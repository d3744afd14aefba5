#pragma once
// The UTC offsets of one IANA time zone, read once from ICU into a table of transitions and
// shared by every Calendar of that zone: day questions asked per movement stay cheap.

#include <unicode/uversion.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// ICU's namespace carries its version; "icu" is only an alias and cannot be reopened.
U_NAMESPACE_BEGIN
class BasicTimeZone;
U_NAMESPACE_END

namespace vantello {

class ZoneRules {
public:
    // The rules of a zone ("Europe/Rome"), built on first use and kept for the process;
    // safe to call from any thread. Throws std::invalid_argument for an unknown zone.
    [[nodiscard]] static std::shared_ptr<const ZoneRules> forZone(const std::string& zoneId);

    ZoneRules(const ZoneRules&) = delete;
    ZoneRules& operator=(const ZoneRules&) = delete;
    ~ZoneRules();

    // The zone's own name as ICU reports it.
    [[nodiscard]] const std::string& zoneId() const { return zoneId_; }

    // Seconds east of UTC in force at a moment (Unix seconds).
    [[nodiscard]] int offsetAt(std::int64_t utcSeconds) const;
    // The wall-clock reading of a moment, as seconds counted like Unix time. Moments beyond the
    // years 1...9999 read as the nearest end of that range.
    [[nodiscard]] std::int64_t wallClock(std::int64_t utcSeconds) const;
    // The moment a wall-clock reading denotes: the first one when the reading happens twice,
    // the moment the clocks jump to when the reading is skipped.
    [[nodiscard]] std::int64_t resolve(std::int64_t wallClockSeconds) const;

private:
    // A stretch of time with one offset: [start, end).
    struct Span {
        std::int64_t start;
        std::int64_t end;
        int offset;
    };

    explicit ZoneRules(const std::string& zoneId);
    [[nodiscard]] std::size_t spanIndex(std::int64_t utcSeconds) const;
    [[nodiscard]] Span spanAt(std::int64_t utcSeconds) const;
    [[nodiscard]] Span spanFromZone(std::int64_t utcSeconds) const;
    [[nodiscard]] int offsetFromZone(std::int64_t utcSeconds) const;

    std::string zoneId_;
    // Only asked about moments past the table, through const (thread-safe) ICU calls.
    std::unique_ptr<icu::BasicTimeZone> zone_;
    // starts_[i] is when offsets_[i] comes into force; starts_[0] is the beginning of time.
    std::vector<std::int64_t> starts_;
    std::vector<int> offsets_;
    // For each stretch of 2^22 seconds (about 48 days) from 1900 on, the span in force when it
    // begins: a lookup then scans a transition or two instead of searching the whole table.
    std::vector<std::uint32_t> spanAtBucket_;
};

}  // namespace vantello

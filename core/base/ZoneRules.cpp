#include "core/base/ZoneRules.hpp"

#include "core/base/CivilDays.hpp"

#include <unicode/basictz.h>
#include <unicode/timezone.h>
#include <unicode/tzrule.h>
#include <unicode/tztrans.h>
#include <unicode/ucal.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <limits>
#include <map>
#include <mutex>
#include <stdexcept>

namespace vantello {

namespace {

constexpr std::int64_t beginningOfTime = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t endOfTime = std::numeric_limits<std::int64_t>::max();
// The table covers every transition up to this moment (2200-01-01T00:00:00Z); later moments,
// which no ledger holds in practice, are asked to ICU directly.
constexpr std::int64_t tableEnd = 7258118400;
// Offsets stay well within a day, so these margins keep every wall-clock reading of a moment
// in the years 1...9999 away from overflow.
constexpr std::int64_t earliestMoment = CivilDays::firstSecond - 2 * CivilDays::secondsPerDay;
constexpr std::int64_t latestMoment = CivilDays::lastSecond + 2 * CivilDays::secondsPerDay;
constexpr double millisecondsPerSecond = 1000.0;
constexpr std::int64_t bucketsStart = -2208988800;  // 1900-01-01T00:00:00Z
constexpr int bucketShift = 22;

UDate toUDate(std::int64_t seconds) {
    return static_cast<double>(seconds) * millisecondsPerSecond;
}
std::int64_t fromUDate(UDate date) { return static_cast<std::int64_t>(date / millisecondsPerSecond); }

int offsetOfRule(const icu::TimeZoneRule& rule) {
    return (rule.getRawOffset() + rule.getDSTSavings()) / 1000;
}

}  // namespace

std::shared_ptr<const ZoneRules> ZoneRules::forZone(const std::string& zoneId) {
    static std::mutex mutex;
    static std::map<std::string, std::shared_ptr<const ZoneRules>, std::less<>> built;
    const std::lock_guard lock(mutex);
    if (const auto found = built.find(zoneId); found != built.end()) {
        return found->second;
    }
    std::shared_ptr<const ZoneRules> rules(new ZoneRules(zoneId));
    built.emplace(zoneId, rules);
    return rules;
}

ZoneRules::ZoneRules(const std::string& zoneId) {
    if (zoneId.empty()) {
        throw std::invalid_argument("empty time zone name");
    }
    std::unique_ptr<icu::TimeZone> zone(
        icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(zoneId)));
    icu::UnicodeString name;
    if (zone) {
        zone->getID(name);
    }
    // ICU answers an unknown name with its "Etc/Unknown" zone rather than an error.
    auto* basic = dynamic_cast<icu::BasicTimeZone*>(zone.get());
    if (basic == nullptr || name == icu::UnicodeString(UCAL_UNKNOWN_ZONE_ID)) {
        throw std::invalid_argument("unknown time zone: " + zoneId);
    }
    zone.release();
    zone_.reset(basic);
    name.toUTF8String(zoneId_);

    starts_.push_back(beginningOfTime);
    offsets_.push_back(offsetFromZone(earliestMoment));

    icu::TimeZoneTransition transition;
    UDate after = toUDate(earliestMoment);
    while (zone_->getNextTransition(after, false, transition) &&
           transition.getTime() < toUDate(tableEnd)) {
        after = transition.getTime();
        // Some transitions only rename the period or trade raw offset for daylight saving.
        const int offset = transition.getTo() != nullptr ? offsetOfRule(*transition.getTo())
                                                         : offsets_.back();
        if (offset != offsets_.back()) {
            starts_.push_back(fromUDate(after));
            offsets_.push_back(offset);
        }
    }

    std::size_t span = 0;
    constexpr std::int64_t bucketLength = std::int64_t{1} << bucketShift;
    for (std::int64_t bucket = bucketsStart; bucket < tableEnd; bucket += bucketLength) {
        while (span + 1 < starts_.size() && starts_[span + 1] <= bucket) {
            ++span;
        }
        spanAtBucket_.push_back(static_cast<std::uint32_t>(span));
    }
}

ZoneRules::~ZoneRules() = default;

std::size_t ZoneRules::spanIndex(std::int64_t utcSeconds) const {
    if (utcSeconds < bucketsStart) {
        const auto next = std::upper_bound(starts_.begin() + 1, starts_.end(), utcSeconds);
        return static_cast<std::size_t>(next - starts_.begin()) - 1;
    }
    const auto bucket = static_cast<std::size_t>((utcSeconds - bucketsStart) >> bucketShift);
    std::size_t index = spanAtBucket_[bucket];
    while (index + 1 < starts_.size() && starts_[index + 1] <= utcSeconds) {
        ++index;
    }
    return index;
}

ZoneRules::Span ZoneRules::spanAt(std::int64_t utcSeconds) const {
    if (utcSeconds >= tableEnd) {
        return spanFromZone(utcSeconds);
    }
    const std::size_t index = spanIndex(utcSeconds);
    return Span{starts_[index], index + 1 < starts_.size() ? starts_[index + 1] : tableEnd,
                offsets_[index]};
}

int ZoneRules::offsetFromZone(std::int64_t utcSeconds) const {
    int32_t rawOffset = 0;
    int32_t dstOffset = 0;
    UErrorCode status = U_ZERO_ERROR;
    zone_->getOffset(toUDate(utcSeconds), false, rawOffset, dstOffset, status);
    return U_SUCCESS(status) ? (rawOffset + dstOffset) / 1000 : 0;
}

ZoneRules::Span ZoneRules::spanFromZone(std::int64_t utcSeconds) const {
    const UDate date = toUDate(utcSeconds);
    Span span{tableEnd, endOfTime, offsetFromZone(utcSeconds)};
    icu::TimeZoneTransition transition;
    if (zone_->getPreviousTransition(date, true, transition)) {
        span.start = std::max(tableEnd, fromUDate(transition.getTime()));
    }
    if (zone_->getNextTransition(date, false, transition)) {
        span.end = fromUDate(transition.getTime());
    }
    return span;
}

int ZoneRules::offsetAt(std::int64_t utcSeconds) const {
    utcSeconds = std::clamp(utcSeconds, earliestMoment, latestMoment);
    return utcSeconds >= tableEnd ? offsetFromZone(utcSeconds) : offsets_[spanIndex(utcSeconds)];
}

std::int64_t ZoneRules::wallClock(std::int64_t utcSeconds) const {
    utcSeconds = std::clamp(utcSeconds, earliestMoment, latestMoment);
    return utcSeconds + offsetAt(utcSeconds);
}

std::int64_t ZoneRules::resolve(std::int64_t wallClockSeconds) const {
    const std::int64_t reading = std::clamp(wallClockSeconds, earliestMoment, latestMoment);
    // Offsets are under a day, so the span a day earlier starts before the reading; the spans
    // are then walked in time order and the first whose wall-clock range holds it wins.
    Span span = spanAt(reading - CivilDays::secondsPerDay);
    constexpr int enoughSpans = 16;
    for (int step = 0; step < enoughSpans; ++step) {
        if (span.start != beginningOfTime && reading < span.start + span.offset) {
            return span.start;  // the reading fell in a gap: the clocks jumped over it
        }
        if (span.end == endOfTime || reading < span.end + span.offset) {
            return reading - span.offset;
        }
        span = spanAt(span.end);
    }
    return reading - span.offset;
}

}  // namespace vantello

#include "core/base/Uuid.hpp"

#include <sys/random.h>
#include <uuid/uuid.h>

#include <algorithm>
#include <cstring>

namespace vantello {

namespace {

constexpr std::size_t textLength = 36;

constexpr bool isDashPosition(std::size_t index) {
    return index == 8 || index == 13 || index == 18 || index == 23;
}

int hexValue(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    return -1;
}

}  // namespace

Uuid Uuid::random() {
    // libuuid reseeds a fallback generator with several system calls for every UUID, and an
    // import creates thousands at once: kernel random bytes are drawn sixteen UUIDs at a time
    // (a read of 256 bytes is never cut short), libuuid staying for a kernel that refuses.
    thread_local std::array<std::uint8_t, 256> pool;
    thread_local std::size_t next = pool.size();
    Uuid id;
    if (next == pool.size()) {
        if (getrandom(pool.data(), pool.size(), 0) != static_cast<ssize_t>(pool.size())) {
            uuid_t generated;
            uuid_generate_random(generated);
            std::memcpy(id.bytes_.data(), generated, id.bytes_.size());
            return id;
        }
        next = 0;
    }
    std::memcpy(id.bytes_.data(), pool.data() + next, id.bytes_.size());
    next += id.bytes_.size();
    id.bytes_[6] = static_cast<std::uint8_t>((id.bytes_[6] & 0x0F) | 0x40);  // version 4: random
    id.bytes_[8] = static_cast<std::uint8_t>((id.bytes_[8] & 0x3F) | 0x80);  // RFC 4122 variant
    return id;
}

std::optional<Uuid> Uuid::parse(std::string_view text) {
    if (text.size() != textLength) return std::nullopt;
    Uuid id;
    std::size_t byteIndex = 0;
    for (std::size_t index = 0; index < textLength;) {
        if (isDashPosition(index)) {
            if (text[index] != '-') return std::nullopt;
            ++index;
            continue;
        }
        const int high = hexValue(text[index]);
        const int low = hexValue(text[index + 1]);
        if (high < 0 || low < 0) return std::nullopt;
        id.bytes_[byteIndex++] = static_cast<std::uint8_t>(high << 4 | low);
        index += 2;
    }
    return id;
}

std::string Uuid::text() const {
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string result;
    result.reserve(textLength);
    for (std::size_t index = 0; index < bytes_.size(); ++index) {
        if (index == 4 || index == 6 || index == 8 || index == 10) result.push_back('-');
        result.push_back(digits[bytes_[index] >> 4]);
        result.push_back(digits[bytes_[index] & 0x0F]);
    }
    return result;
}

bool Uuid::isNil() const {
    return std::all_of(bytes_.begin(), bytes_.end(), [](std::uint8_t byte) { return byte == 0; });
}

}  // namespace vantello

std::size_t std::hash<vantello::Uuid>::operator()(const vantello::Uuid& id) const noexcept {
    // Random UUIDs are already well mixed; folding the two halves keeps all the entropy.
    std::uint64_t high = 0;
    std::uint64_t low = 0;
    std::memcpy(&high, id.bytes().data(), sizeof high);
    std::memcpy(&low, id.bytes().data() + sizeof high, sizeof low);
    return static_cast<std::size_t>(high ^ (low * 0x9E3779B97F4A7C15ULL));
}

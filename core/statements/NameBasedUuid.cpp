#include "core/statements/NameBasedUuid.hpp"

#include <array>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace vantello {

namespace {

// The name space of the movements named by a bank record.
constexpr std::array<std::uint8_t, 16> statementNameSpace{0x6B, 0x1D, 0x3C, 0x52, 0x9E, 0x47, 0x4F, 0x0A,
                                                          0x8C, 0x21, 0x5D, 0x0E, 0x77, 0xA3, 0x41, 0xF6};

std::array<std::uint8_t, 20> sha1(const std::vector<std::uint8_t>& message) {
    std::uint32_t h[5] = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476, 0xC3D2E1F0};
    std::vector<std::uint8_t> data = message;
    const std::uint64_t bitLength = static_cast<std::uint64_t>(message.size()) * 8;
    data.push_back(0x80);
    while (data.size() % 64 != 56) data.push_back(0);
    for (int shift = 56; shift >= 0; shift -= 8) data.push_back(static_cast<std::uint8_t>(bitLength >> shift));

    for (std::size_t block = 0; block < data.size(); block += 64) {
        std::uint32_t w[80];
        for (int i = 0; i < 16; ++i) {
            const std::size_t at = block + static_cast<std::size_t>(i) * 4;
            w[i] = static_cast<std::uint32_t>(data[at]) << 24 | static_cast<std::uint32_t>(data[at + 1]) << 16 |
                   static_cast<std::uint32_t>(data[at + 2]) << 8 | data[at + 3];
        }
        for (int i = 16; i < 80; ++i) w[i] = std::rotl(w[i - 3] ^ w[i - 8] ^ w[i - 14] ^ w[i - 16], 1);
        std::uint32_t a = h[0], b = h[1], c = h[2], d = h[3], e = h[4];
        for (int i = 0; i < 80; ++i) {
            std::uint32_t f = 0;
            std::uint32_t k = 0;
            if (i < 20) {
                f = (b & c) | (~b & d);
                k = 0x5A827999;
            } else if (i < 40) {
                f = b ^ c ^ d;
                k = 0x6ED9EBA1;
            } else if (i < 60) {
                f = (b & c) | (b & d) | (c & d);
                k = 0x8F1BBCDC;
            } else {
                f = b ^ c ^ d;
                k = 0xCA62C1D6;
            }
            const std::uint32_t next = std::rotl(a, 5) + f + e + k + w[i];
            e = d;
            d = c;
            c = std::rotl(b, 30);
            b = a;
            a = next;
        }
        h[0] += a;
        h[1] += b;
        h[2] += c;
        h[3] += d;
        h[4] += e;
    }
    std::array<std::uint8_t, 20> digest{};
    for (std::size_t i = 0; i < 20; ++i) digest[i] = static_cast<std::uint8_t>(h[i / 4] >> (24 - 8 * (i % 4)));
    return digest;
}

}  // namespace

Uuid nameBasedUuid(std::string_view name) {
    std::vector<std::uint8_t> message(statementNameSpace.begin(), statementNameSpace.end());
    message.insert(message.end(), name.begin(), name.end());
    std::array<std::uint8_t, 20> digest = sha1(message);
    digest[6] = static_cast<std::uint8_t>((digest[6] & 0x0F) | 0x50);  // version 5
    digest[8] = static_cast<std::uint8_t>((digest[8] & 0x3F) | 0x80);  // RFC 4122 variant
    std::string text;
    for (std::size_t i = 0; i < 16; ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) text.push_back('-');
        char hex[3];
        std::snprintf(hex, sizeof hex, "%02X", digest[i]);
        text += hex;
    }
    return *Uuid::parse(text);
}

bool isNameBased(const Uuid& id) { return (id.bytes()[6] >> 4) == 5 && (id.bytes()[8] & 0xC0) == 0x80; }

}  // namespace vantello

#pragma once
// Random UUIDs (libuuid) with the upper-case text form used in files and identifiers.

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantello {

class Uuid {
public:
    Uuid() = default;  // the nil UUID
    [[nodiscard]] static Uuid random();
    // Reads the 8-4-4-4-12 hexadecimal form in either case; nothing for anything else.
    [[nodiscard]] static std::optional<Uuid> parse(std::string_view text);

    [[nodiscard]] std::string text() const;  // upper case, "E621E1F8-C36C-495A-93FC-0C247A3E6E5F"
    [[nodiscard]] bool isNil() const;
    [[nodiscard]] const std::array<std::uint8_t, 16>& bytes() const { return bytes_; }

    auto operator<=>(const Uuid&) const = default;
    bool operator==(const Uuid&) const = default;

private:
    std::array<std::uint8_t, 16> bytes_{};
};

}  // namespace vantello

template <>
struct std::hash<vantello::Uuid> {
    std::size_t operator()(const vantello::Uuid& id) const noexcept;
};

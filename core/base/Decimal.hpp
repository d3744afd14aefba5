#pragma once
// Exact base-10 money: an arbitrary-precision integer coefficient times a power of ten.
// Values are kept normalised (no trailing zeros in the coefficient), so equality, hashing
// and the canonical text never depend on how a value was produced (12.50 == 12.5).
// Small coefficients live inline in an int64; larger ones move to GMP transparently.

#include <compare>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <gmpxx.h>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vantello {

enum class RoundingMode {
    plain,    // halves away from zero
    up,       // towards the larger value (ceiling)
    down,     // towards zero (truncation)
    bankers,  // halves to the even neighbour
};

class Decimal {
public:
    // The significant digits money ever needs; quotients are cut to as many.
    static constexpr int precision = 38;
    static constexpr int divisionDigits = precision;
    // How far from the decimal point the last significant digit of an amount may lie.
    static constexpr int amountExponentLimit = 128;

    Decimal() = default;  // zero
    Decimal(std::int64_t integer);  // NOLINT(google-explicit-constructor): integers are exact
    Decimal(std::int64_t coefficient, std::int32_t exponent);  // coefficient × 10^exponent
    // A binary floating-point value never becomes money by accident; use fromDouble.
    template <std::floating_point Float>
    Decimal(Float) = delete;

    // Strict canonical text: optional "-", digits, optionally "." and digits ("-12.5", "1250",
    // "0.05", ".5" and "5." are refused). Anything else gives nothing.
    [[nodiscard]] static std::optional<Decimal> fromCanonical(std::string_view text);
    // The same, limited to what an amount can be: at most `precision` significant digits, the
    // last of them at most `amountExponentLimit` places from the decimal point on either side.
    // For amounts read from outside (files, statements, typing): a text of a hundred thousand
    // digits is refused as quickly as it is scanned.
    [[nodiscard]] static std::optional<Decimal> fromCanonicalAmount(std::string_view text);

    // Canonical description: no exponent, no grouping, no trailing zeros, "-" when negative.
    [[nodiscard]] std::string description() const;
    // Plain text with exactly `fractionDigits` digits after `separator` (plain rounding), no
    // grouping: toFixed(2) of 12.5 is "12.50".
    [[nodiscard]] std::string toFixed(int fractionDigits, char separator = '.') const;

    [[nodiscard]] Decimal operator+(const Decimal& other) const;
    [[nodiscard]] Decimal operator-(const Decimal& other) const;
    [[nodiscard]] Decimal operator*(const Decimal& other) const;
    [[nodiscard]] Decimal operator-() const;
    Decimal& operator+=(const Decimal& other);
    Decimal& operator-=(const Decimal& other);
    // Quotient to 38 significant digits, the last one rounded plainly. Nothing when dividing by 0.
    [[nodiscard]] std::optional<Decimal> dividedBy(const Decimal& divisor) const;

    [[nodiscard]] Decimal rounded(int scale, RoundingMode mode = RoundingMode::plain) const;
    [[nodiscard]] Decimal magnitude() const;
    [[nodiscard]] int sign() const;  // -1, 0 or 1
    [[nodiscard]] bool isZero() const { return sign() == 0; }
    [[nodiscard]] double toDouble() const;
    // The shortest decimal that reads back as the same double (17 significant digits at most);
    // nothing for NaN or infinity.
    [[nodiscard]] static std::optional<Decimal> fromDouble(double value);

    [[nodiscard]] std::strong_ordering operator<=>(const Decimal& other) const;
    [[nodiscard]] bool operator==(const Decimal& other) const;
    [[nodiscard]] std::size_t hash() const;

private:
    struct Arithmetic;  // the fast inline paths and their GMP fallbacks, in the source file

    // Coefficient inline while it fits in 64 bits, else in GMP; always normalised.
    std::variant<std::int64_t, mpz_class> coefficient_ = std::int64_t{0};
    std::int32_t exponent_ = 0;
};

}  // namespace vantello

template <>
struct std::hash<vantello::Decimal> {
    std::size_t operator()(const vantello::Decimal& value) const noexcept { return value.hash(); }
};

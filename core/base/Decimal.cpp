#include "core/base/Decimal.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace vantello {

// GMP's "si" functions take a long; the inline coefficient must round-trip through them.
static_assert(sizeof(long) == sizeof(std::int64_t));

namespace {

constexpr std::array<std::int64_t, 19> powersOfTen = [] {
    std::array<std::int64_t, 19> powers{1};
    for (std::size_t index = 1; index < powers.size(); ++index) {
        powers[index] = powers[index - 1] * 10;
    }
    return powers;
}();

// Every power of ten up to 10^22 is exact in a double, which makes the conversion fast path exact.
constexpr std::array<double, 23> exactDoublePowersOfTen = [] {
    std::array<double, 23> powers{};
    double power = 1.0;
    for (auto& entry : powers) {
        entry = power;
        power *= 10.0;
    }
    return powers;
}();

mpz_class powerOfTen(std::int64_t exponent) {
    mpz_class power;
    mpz_ui_pow_ui(power.get_mpz_t(), 10, static_cast<unsigned long>(exponent));
    return power;
}

std::uint64_t unsignedMagnitude(std::int64_t value) {
    // Well defined for INT64_MIN too, whose magnitude has no int64 form.
    return value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

std::int64_t digitCount(std::uint64_t magnitude) {
    std::int64_t count = 1;
    while (magnitude >= 10) {
        magnitude /= 10;
        ++count;
    }
    return count;
}

std::int64_t digitCount(const mpz_class& value) {
    // mpz_sizeinbase may overstate base-10 length by one.
    auto count = static_cast<std::int64_t>(mpz_sizeinbase(value.get_mpz_t(), 10));
    if (count > 1 && mpz_cmpabs(value.get_mpz_t(), powerOfTen(count - 1).get_mpz_t()) < 0) {
        --count;
    }
    return count;
}

// Divides out the trailing decimal zeros and returns how many there were. Counting the factors
// of two and five separately keeps this fast even for a coefficient with thousands of zeros.
std::int64_t stripTrailingZeros(mpz_class& value) {
    if (sgn(value) == 0 || mpz_divisible_ui_p(value.get_mpz_t(), 10) == 0) {
        return 0;
    }
    const mp_bitcnt_t twos = mpz_scan1(value.get_mpz_t(), 0);
    mpz_class withoutFives;
    const mp_bitcnt_t fives = mpz_remove(withoutFives.get_mpz_t(), value.get_mpz_t(), mpz_class(5).get_mpz_t());
    const mp_bitcnt_t zeros = std::min(twos, fives);
    if (fives > zeros) {
        mpz_class restoredFives;
        mpz_ui_pow_ui(restoredFives.get_mpz_t(), 5, fives - zeros);
        withoutFives *= restoredFives;
    }
    mpz_tdiv_q_2exp(value.get_mpz_t(), withoutFives.get_mpz_t(), zeros);
    return static_cast<std::int64_t>(zeros);
}

std::int32_t checkedExponent(std::int64_t exponent) {
    if (exponent < std::numeric_limits<std::int32_t>::min() ||
        exponent > std::numeric_limits<std::int32_t>::max()) {
        throw std::overflow_error("Decimal exponent out of range");
    }
    return static_cast<std::int32_t>(exponent);
}

// Whether dropping a nonzero remainder moves the kept part one unit away from zero.
// `halfComparison` compares the remainder's magnitude with half a unit of the kept part.
bool roundsAway(RoundingMode mode, int sign, int halfComparison, bool keptPartIsOdd) {
    switch (mode) {
    case RoundingMode::plain:
        return halfComparison >= 0;
    case RoundingMode::up:
        return sign > 0;
    case RoundingMode::down:
        return false;
    case RoundingMode::bankers:
        return halfComparison > 0 || (halfComparison == 0 && keptPartIsOdd);
    }
    return false;
}

// Digits, optional separator and fraction; `fractionDigits` pads the fraction with zeros.
std::string plainText(bool negative, const std::string& digits, std::int64_t exponent,
                      std::int64_t fractionDigits, char separator) {
    std::string integerPart;
    std::string fraction;
    if (exponent >= 0) {
        integerPart = digits;
        integerPart.append(static_cast<std::size_t>(exponent), '0');
    } else {
        const auto fractionLength = static_cast<std::size_t>(-exponent);
        if (digits.size() > fractionLength) {
            integerPart = digits.substr(0, digits.size() - fractionLength);
            fraction = digits.substr(digits.size() - fractionLength);
        } else {
            integerPart = "0";
            fraction = std::string(fractionLength - digits.size(), '0') + digits;
        }
    }
    if (static_cast<std::int64_t>(fraction.size()) < fractionDigits) {
        fraction.append(static_cast<std::size_t>(fractionDigits) - fraction.size(), '0');
    }
    std::string text = negative ? "-" : "";
    text += integerPart;
    if (!fraction.empty()) {
        text += separator;
        text += fraction;
    }
    return text;
}

std::uint64_t mixed(std::uint64_t value) {
    value ^= value >> 30;
    value *= 0xbf58476d1ce4e5b9ULL;
    value ^= value >> 27;
    value *= 0x94d049bb133111ebULL;
    value ^= value >> 31;
    return value;
}

}  // namespace

struct Decimal::Arithmetic {
    static Decimal make(std::int64_t coefficient, std::int64_t exponent) {
        Decimal result;
        if (coefficient == 0) {
            return result;
        }
        while (coefficient % 10 == 0) {
            coefficient /= 10;
            ++exponent;
        }
        std::get<std::int64_t>(result.coefficient_) = coefficient;
        result.exponent_ = checkedExponent(exponent);
        return result;
    }

    // Keeps the one-form-per-value rule: anything that fits in 64 bits goes back inline.
    static Decimal make(mpz_class coefficient, std::int64_t exponent) {
        if (sgn(coefficient) == 0) {
            return {};
        }
        exponent += stripTrailingZeros(coefficient);
        if (mpz_fits_slong_p(coefficient.get_mpz_t()) != 0) {
            return make(static_cast<std::int64_t>(mpz_get_si(coefficient.get_mpz_t())), exponent);
        }
        Decimal result;
        result.coefficient_ = std::move(coefficient);
        result.exponent_ = checkedExponent(exponent);
        return result;
    }

    static const std::int64_t* inlineCoefficient(const Decimal& value) {
        return std::get_if<std::int64_t>(&value.coefficient_);
    }

    static mpz_class wide(const Decimal& value) {
        if (const auto* small = inlineCoefficient(value)) {
            return mpz_class(static_cast<long>(*small));
        }
        return std::get<mpz_class>(value.coefficient_);
    }

    static std::int64_t digits(const Decimal& value) {
        if (const auto* small = inlineCoefficient(value)) {
            return digitCount(unsignedMagnitude(*small));
        }
        return digitCount(std::get<mpz_class>(value.coefficient_));
    }

    static std::string magnitudeDigits(const Decimal& value) {
        if (const auto* small = inlineCoefficient(value)) {
            std::array<char, 24> buffer{};
            const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                           unsignedMagnitude(*small)).ptr;
            return {buffer.data(), end};
        }
        const mpz_class magnitude = abs(std::get<mpz_class>(value.coefficient_));
        return magnitude.get_str();
    }

    // Both coefficients inline and the aligned result still fits: the allocation-free path that
    // sums of ordinary amounts always take.
    static bool inlineSum(const Decimal& lhs, const Decimal& rhs, bool subtract, std::int64_t& sum,
                          std::int32_t& exponent) {
        const auto* left = inlineCoefficient(lhs);
        const auto* right = inlineCoefficient(rhs);
        if (left == nullptr || right == nullptr) {
            return false;
        }
        std::int64_t a = *left;
        std::int64_t b = *right;
        // Zero's exponent is 0, so aligning it to the other operand is harmless.
        if (lhs.exponent_ > rhs.exponent_) {
            const std::int64_t shift = std::int64_t{lhs.exponent_} - rhs.exponent_;
            if (shift >= std::ssize(powersOfTen) ||
                __builtin_mul_overflow(a, powersOfTen[static_cast<std::size_t>(shift)], &a)) {
                return false;
            }
        } else if (rhs.exponent_ > lhs.exponent_) {
            const std::int64_t shift = std::int64_t{rhs.exponent_} - lhs.exponent_;
            if (shift >= std::ssize(powersOfTen) ||
                __builtin_mul_overflow(b, powersOfTen[static_cast<std::size_t>(shift)], &b)) {
                return false;
            }
        }
        exponent = std::min(lhs.exponent_, rhs.exponent_);
        return !(subtract ? __builtin_sub_overflow(a, b, &sum) : __builtin_add_overflow(a, b, &sum));
    }

    static void accumulate(Decimal& target, const Decimal& other, bool subtract) {
        std::int64_t sum = 0;
        std::int32_t exponent = 0;
        if (inlineSum(target, other, subtract, sum, exponent)) {
            // The target is inline here, so this only rewrites the integer in place.
            std::int64_t normalisedExponent = sum == 0 ? 0 : exponent;
            while (sum != 0 && sum % 10 == 0) {
                sum /= 10;
                ++normalisedExponent;
            }
            target.exponent_ = checkedExponent(normalisedExponent);
            *std::get_if<std::int64_t>(&target.coefficient_) = sum;
            return;
        }
        target = add(target, other, subtract);
    }

    static Decimal add(const Decimal& lhs, const Decimal& rhs, bool subtract) {
        std::int64_t sum = 0;
        std::int32_t exponent = 0;
        if (inlineSum(lhs, rhs, subtract, sum, exponent)) {
            return make(sum, exponent);
        }
        if (rhs.isZero()) {
            return lhs;
        }
        if (lhs.isZero()) {
            return subtract ? -rhs : rhs;
        }
        const std::int64_t lowExponent = std::min(lhs.exponent_, rhs.exponent_);
        mpz_class a = wide(lhs);
        mpz_class b = wide(rhs);
        if (lhs.exponent_ > lowExponent) {
            a *= powerOfTen(lhs.exponent_ - lowExponent);
        }
        if (rhs.exponent_ > lowExponent) {
            b *= powerOfTen(rhs.exponent_ - lowExponent);
        }
        return make(subtract ? mpz_class(a - b) : mpz_class(a + b), lowExponent);
    }

    static Decimal multiply(const Decimal& lhs, const Decimal& rhs) {
        if (lhs.isZero() || rhs.isZero()) {
            return {};
        }
        const std::int64_t exponent = std::int64_t{lhs.exponent_} + rhs.exponent_;
        const auto* left = inlineCoefficient(lhs);
        const auto* right = inlineCoefficient(rhs);
        std::int64_t product = 0;
        if (left != nullptr && right != nullptr && !__builtin_mul_overflow(*left, *right, &product)) {
            return make(product, exponent);
        }
        return make(mpz_class(wide(lhs) * wide(rhs)), exponent);
    }

    static Decimal negate(const Decimal& value) {
        if (const auto* small = inlineCoefficient(value)) {
            if (*small != std::numeric_limits<std::int64_t>::min()) {
                Decimal result;
                std::get<std::int64_t>(result.coefficient_) = -*small;
                result.exponent_ = value.exponent_;
                return result;
            }
        }
        // INT64_MIN grows into GMP, and the GMP value 2^63 shrinks back inline when negated.
        return make(mpz_class(-wide(value)), value.exponent_);
    }

    static std::strong_ordering compare(const Decimal& lhs, const Decimal& rhs) {
        const auto* left = inlineCoefficient(lhs);
        const auto* right = inlineCoefficient(rhs);
        if (left != nullptr && right != nullptr && lhs.exponent_ == rhs.exponent_) {
            return *left <=> *right;
        }
        const int sign = lhs.sign();
        if (sign != rhs.sign()) {
            return sign <=> rhs.sign();
        }
        if (sign == 0) {
            return std::strong_ordering::equal;
        }
        // The position of the leading digit settles most comparisons without aligning exponents,
        // which also keeps 1e900000000 against 1 from building a huge power of ten.
        const std::int64_t leftLead = digits(lhs) + lhs.exponent_;
        const std::int64_t rightLead = digits(rhs) + rhs.exponent_;
        if (leftLead != rightLead) {
            return sign > 0 ? leftLead <=> rightLead : rightLead <=> leftLead;
        }
        return add(lhs, rhs, true).sign() <=> 0;
    }

    static std::optional<Decimal> divide(const Decimal& dividend, const Decimal& divisor) {
        if (divisor.isZero()) {
            return std::nullopt;
        }
        if (dividend.isZero()) {
            return Decimal{};
        }
        // Scale so the integer quotient has 39 or 40 digits: the digits past the 38th decide the
        // rounding on their own, because the discarded remainder is less than one unit of them.
        const std::int64_t scale = (divisionDigits + 1) - digits(dividend) + digits(divisor);
        mpz_class numerator = abs(wide(dividend));
        mpz_class denominator = abs(wide(divisor));
        if (scale >= 0) {
            numerator *= powerOfTen(scale);
        } else {
            denominator *= powerOfTen(-scale);
        }
        mpz_class quotient;
        mpz_tdiv_q(quotient.get_mpz_t(), numerator.get_mpz_t(), denominator.get_mpz_t());
        const std::int64_t extra = digitCount(quotient) - divisionDigits;
        mpz_class dropped;
        const mpz_class unit = powerOfTen(extra);
        mpz_tdiv_qr(quotient.get_mpz_t(), dropped.get_mpz_t(), quotient.get_mpz_t(), unit.get_mpz_t());
        if (2 * dropped >= unit) {
            ++quotient;
        }
        if (dividend.sign() != divisor.sign()) {
            quotient = -quotient;
        }
        return make(std::move(quotient),
                    std::int64_t{dividend.exponent_} - divisor.exponent_ - scale + extra);
    }

    static Decimal round(const Decimal& value, int scale, RoundingMode mode) {
        const std::int64_t targetExponent = -std::int64_t{scale};
        if (value.isZero() || value.exponent_ >= targetExponent) {
            return value;
        }
        const std::int64_t droppedDigits = targetExponent - value.exponent_;
        const int sign = value.sign();
        if (const auto* small = inlineCoefficient(value); small != nullptr && droppedDigits < std::ssize(powersOfTen)) {
            const std::int64_t unit = powersOfTen[static_cast<std::size_t>(droppedDigits)];
            std::int64_t kept = *small / unit;
            const std::int64_t remainder = *small % unit;
            if (remainder != 0) {
                const std::int64_t twiceRemainder = 2 * (remainder < 0 ? -remainder : remainder);
                const int halfComparison = twiceRemainder < unit ? -1 : (twiceRemainder == unit ? 0 : 1);
                if (roundsAway(mode, sign, halfComparison, kept % 2 != 0)) {
                    kept += sign;
                }
            }
            return make(kept, targetExponent);
        }
        if (droppedDigits > digits(value)) {
            // Everything is dropped and the remainder is under a tenth of a unit.
            const bool away = roundsAway(mode, sign, -1, false);
            return away ? make(std::int64_t{sign}, targetExponent) : Decimal{};
        }
        const mpz_class unit = powerOfTen(droppedDigits);
        mpz_class kept;
        mpz_class remainder;
        mpz_tdiv_qr(kept.get_mpz_t(), remainder.get_mpz_t(), wide(value).get_mpz_t(), unit.get_mpz_t());
        if (sgn(remainder) != 0) {
            const mpz_class twiceRemainder = 2 * abs(remainder);
            const int comparison = cmp(twiceRemainder, unit);
            const int halfComparison = comparison < 0 ? -1 : (comparison == 0 ? 0 : 1);
            if (roundsAway(mode, sign, halfComparison, mpz_odd_p(kept.get_mpz_t()) != 0)) {
                kept += sign;
            }
        }
        return make(std::move(kept), targetExponent);
    }
};

Decimal::Decimal(std::int64_t integer) : Decimal(Arithmetic::make(integer, 0)) {}

Decimal::Decimal(std::int64_t coefficient, std::int32_t exponent)
    : Decimal(Arithmetic::make(coefficient, exponent)) {}

namespace {

// Canonical text taken apart: the significant digits (no zeros at either end, empty for zero)
// times ten to `exponent`.
struct CanonicalDigits {
    bool negative = false;
    std::string digits;
    std::int64_t exponent = 0;
};

std::optional<CanonicalDigits> splitCanonical(std::string_view text) {
    const auto isDigit = [](char character) { return character >= '0' && character <= '9'; };
    std::size_t position = 0;
    const bool negative = !text.empty() && text.front() == '-';
    if (negative) {
        ++position;
    }
    const std::size_t integerStart = position;
    while (position < text.size() && isDigit(text[position])) {
        ++position;
    }
    std::string digits(text.substr(integerStart, position - integerStart));
    if (digits.empty()) {
        return std::nullopt;
    }
    std::int64_t exponent = 0;
    if (position < text.size()) {
        if (text[position] != '.') {
            return std::nullopt;
        }
        const std::size_t fractionStart = ++position;
        while (position < text.size() && isDigit(text[position])) {
            ++position;
        }
        if (position == fractionStart || position != text.size()) {
            return std::nullopt;
        }
        digits.append(text.substr(fractionStart));
        exponent = -static_cast<std::int64_t>(text.size() - fractionStart);
    }

    // Trim zeros on both sides here so a long run of them never reaches GMP.
    const std::size_t first = digits.find_first_not_of('0');
    if (first == std::string::npos) {
        return CanonicalDigits{negative, {}, 0};
    }
    const std::size_t last = digits.find_last_not_of('0');
    exponent += static_cast<std::int64_t>(digits.size() - 1 - last);
    return CanonicalDigits{negative, digits.substr(first, last + 1 - first), exponent};
}

}  // namespace

std::optional<Decimal> Decimal::fromCanonical(std::string_view text) {
    const auto split = splitCanonical(text);
    if (!split) {
        return std::nullopt;
    }
    if (split->digits.empty()) {
        return Decimal{};
    }
    if (split->exponent < std::numeric_limits<std::int32_t>::min() ||
        split->exponent > std::numeric_limits<std::int32_t>::max()) {
        return std::nullopt;
    }
    if (split->digits.size() < powersOfTen.size()) {
        std::int64_t coefficient = 0;
        for (const char digit : split->digits) {
            coefficient = coefficient * 10 + (digit - '0');
        }
        return Arithmetic::make(split->negative ? -coefficient : coefficient, split->exponent);
    }
    mpz_class coefficient(split->digits, 10);
    if (split->negative) {
        coefficient = -coefficient;
    }
    return Arithmetic::make(std::move(coefficient), split->exponent);
}

std::optional<Decimal> Decimal::fromCanonicalAmount(std::string_view text) {
    // A text this short cannot hold more digits, or digits further out, than an amount may.
    if (text.size() <= static_cast<std::size_t>(precision)) {
        return fromCanonical(text);
    }
    // Longer ones are measured first: the conversion's cost grows with the digits.
    const auto split = splitCanonical(text);
    if (!split || split->digits.size() > static_cast<std::size_t>(precision) ||
        split->exponent < -amountExponentLimit || split->exponent > amountExponentLimit) {
        return std::nullopt;
    }
    return fromCanonical(text);
}

std::string Decimal::description() const {
    if (isZero()) {
        return "0";
    }
    return plainText(sign() < 0, Arithmetic::magnitudeDigits(*this), exponent_, 0, '.');
}

std::string Decimal::toFixed(int fractionDigits, char separator) const {
    fractionDigits = std::max(fractionDigits, 0);
    const Decimal value = rounded(fractionDigits, RoundingMode::plain);
    if (value.isZero()) {
        return plainText(false, "0", 0, fractionDigits, separator);
    }
    return plainText(value.sign() < 0, Arithmetic::magnitudeDigits(value), value.exponent_,
                     fractionDigits, separator);
}

Decimal Decimal::operator+(const Decimal& other) const { return Arithmetic::add(*this, other, false); }

Decimal Decimal::operator-(const Decimal& other) const { return Arithmetic::add(*this, other, true); }

Decimal Decimal::operator*(const Decimal& other) const { return Arithmetic::multiply(*this, other); }

Decimal Decimal::operator-() const { return Arithmetic::negate(*this); }

Decimal& Decimal::operator+=(const Decimal& other) {
    Arithmetic::accumulate(*this, other, false);
    return *this;
}

Decimal& Decimal::operator-=(const Decimal& other) {
    Arithmetic::accumulate(*this, other, true);
    return *this;
}

std::optional<Decimal> Decimal::dividedBy(const Decimal& divisor) const {
    return Arithmetic::divide(*this, divisor);
}

Decimal Decimal::rounded(int scale, RoundingMode mode) const { return Arithmetic::round(*this, scale, mode); }

Decimal Decimal::magnitude() const { return sign() < 0 ? -*this : *this; }

int Decimal::sign() const {
    if (const auto* small = Arithmetic::inlineCoefficient(*this)) {
        return (*small > 0) - (*small < 0);
    }
    return sgn(std::get<mpz_class>(coefficient_));
}

double Decimal::toDouble() const {
    constexpr std::int64_t exactIntegerLimit = std::int64_t{1} << 53;
    const auto* small = Arithmetic::inlineCoefficient(*this);
    if (small != nullptr && *small <= exactIntegerLimit && *small >= -exactIntegerLimit &&
        std::abs(std::int64_t{exponent_}) < std::ssize(exactDoublePowersOfTen)) {
        // One correctly rounded operation on two exact operands.
        const auto coefficient = static_cast<double>(*small);
        return exponent_ >= 0 ? coefficient * exactDoublePowersOfTen[static_cast<std::size_t>(exponent_)]
                              : coefficient / exactDoublePowersOfTen[static_cast<std::size_t>(-exponent_)];
    }
    const std::string text = (sign() < 0 ? "-" : "") + Arithmetic::magnitudeDigits(*this) + "e" +
                             std::to_string(exponent_);
    double result = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), result);
    if (error == std::errc::result_out_of_range) {
        const bool huge = Arithmetic::digits(*this) + exponent_ > 0;
        const double limit = huge ? std::numeric_limits<double>::infinity() : 0.0;
        return sign() < 0 ? -limit : limit;
    }
    return result;
}

std::optional<Decimal> Decimal::fromDouble(double value) {
    if (!std::isfinite(value)) {
        return std::nullopt;
    }
    // Shortest round-trip form, always as d.ddde±xx.
    std::array<char, 40> buffer{};
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific);
    if (error != std::errc{}) {
        return std::nullopt;
    }
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const std::size_t exponentMark = text.find('e');
    if (exponentMark == std::string_view::npos) {
        return std::nullopt;
    }
    std::int64_t coefficient = 0;
    std::int64_t exponent = 0;
    bool inFraction = false;
    for (const char character : text.substr(0, exponentMark)) {
        if (character == '.') {
            inFraction = true;
        } else if (character >= '0' && character <= '9') {
            coefficient = coefficient * 10 + (character - '0');
            exponent -= inFraction ? 1 : 0;
        }
    }
    std::string_view exponentText = text.substr(exponentMark + 1);
    if (!exponentText.empty() && exponentText.front() == '+') {
        exponentText.remove_prefix(1);
    }
    int writtenExponent = 0;
    std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), writtenExponent);
    return Arithmetic::make(text.front() == '-' ? -coefficient : coefficient, exponent + writtenExponent);
}

std::strong_ordering Decimal::operator<=>(const Decimal& other) const {
    return Arithmetic::compare(*this, other);
}

bool Decimal::operator==(const Decimal& other) const {
    if (exponent_ != other.exponent_ || coefficient_.index() != other.coefficient_.index()) {
        return false;
    }
    if (const auto* small = Arithmetic::inlineCoefficient(*this)) {
        return *small == std::get<std::int64_t>(other.coefficient_);
    }
    return cmp(std::get<mpz_class>(coefficient_), std::get<mpz_class>(other.coefficient_)) == 0;
}

std::size_t Decimal::hash() const {
    std::uint64_t state = mixed(static_cast<std::uint64_t>(static_cast<std::int64_t>(exponent_)) + 0x9e3779b97f4a7c15ULL);
    if (const auto* small = Arithmetic::inlineCoefficient(*this)) {
        return mixed(state ^ static_cast<std::uint64_t>(*small));
    }
    const mpz_srcptr big = std::get<mpz_class>(coefficient_).get_mpz_t();
    state = mixed(state ^ static_cast<std::uint64_t>(static_cast<std::int64_t>(big->_mp_size)));
    const std::size_t limbs = mpz_size(big);
    for (std::size_t index = 0; index < limbs; ++index) {
        state = mixed(state ^ static_cast<std::uint64_t>(mpz_getlimbn(big, static_cast<mp_size_t>(index))));
    }
    return state;
}

}  // namespace vantello

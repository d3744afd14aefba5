#include "core/analysis/PieHitTest.hpp"

#include <cmath>
#include <numbers>

namespace vantello::PieHitTest {

std::optional<std::size_t> index(double angle, const std::vector<double>& values) {
    double total = 0;
    for (const double value : values) total += value;
    if (values.empty() || !(total > 0)) return std::nullopt;

    constexpr double turn = 2 * std::numbers::pi;
    const double normalised = std::fmod(std::fmod(angle, turn) + turn, turn);
    double target = normalised / turn * total;
    for (std::size_t index = 0; index < values.size(); ++index) {
        target -= values[index];
        if (target < 0) return index;
    }
    // Rounding may leave a little over after the last slice; it is still the last slice.
    return values.size() - 1;
}

}  // namespace vantello::PieHitTest

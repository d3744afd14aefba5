#pragma once
// Which donut slice lies under the pointer. The angle is 0 straight up from the centre and grows
// clockwise: with the pointer's offset dx, dy from the centre (y downward), atan2(dx, −dy).

#include <cstddef>
#include <optional>
#include <vector>

namespace vantello::PieHitTest {

// The index of the slice at `angle` (radians, any value) among slices of the given sizes in
// order; a point exactly on a boundary belongs to the next slice. Nothing when there are no
// slices or they add up to zero or less.
[[nodiscard]] std::optional<std::size_t> index(double angle, const std::vector<double>& values);

}  // namespace vantello::PieHitTest

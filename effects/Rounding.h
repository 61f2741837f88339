#pragma once

#include <cmath>

namespace effects {

// Float to integer as the program has always converted: to the nearest integer, halves to the
// even neighbour (2.5 gives 2, 3.5 gives 4), whatever the current rounding mode.
inline int roundHalfEven(double value) {
    const double down = std::floor(value);
    const double rest = value - down;
    if (rest > 0.5)
        return static_cast<int>(down) + 1;
    if (rest < 0.5)
        return static_cast<int>(down);
    const int even = static_cast<int>(down);
    return even % 2 == 0 ? even : even + 1;
}

} // namespace effects

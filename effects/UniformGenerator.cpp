#include "effects/UniformGenerator.h"

#include <chrono>

namespace effects {

StdUniformGenerator::StdUniformGenerator()
    : m_state(
          static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count())) {
}

float StdUniformGenerator::next() {
    m_state += 0x9E3779B97F4A7C15ull;
    std::uint64_t z = m_state;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    z ^= z >> 31;
    // 24 random bits give every float of [0, 1) on a 2^-24 grid, never 1 itself.
    return static_cast<float>(z >> 40) / 16777216.0f;
}

} // namespace effects

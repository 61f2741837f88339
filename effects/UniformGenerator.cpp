#include "effects/UniformGenerator.h"

#include <chrono>

namespace effects {

StdUniformGenerator::StdUniformGenerator()
    : m_engine(
          static_cast<std::uint32_t>(std::chrono::steady_clock::now().time_since_epoch().count())) {
}

float StdUniformGenerator::next() {
    // 24 random bits give every float of [0, 1) on a 2^-24 grid, never 1 itself.
    return static_cast<float>(m_engine() >> 8) / 16777216.0f;
}

} // namespace effects

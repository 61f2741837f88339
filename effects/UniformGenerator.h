#pragma once

#include <cstdint>
#include <random>

namespace effects {

// A source of uniform single-precision values in [0, 1). Generators take one by reference so
// that a test can replay a pattern from a known seed.
class UniformGenerator {
public:
    virtual ~UniformGenerator() = default;
    virtual float next() = 0;
};

// The program's own generator: a Mersenne twister, seeded from the clock unless told otherwise.
class StdUniformGenerator : public UniformGenerator {
public:
    StdUniformGenerator();
    explicit StdUniformGenerator(std::uint32_t seed)
        : m_engine(seed) {}
    float next() override;

private:
    std::mt19937 m_engine;
};

} // namespace effects

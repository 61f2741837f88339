#pragma once

#include <cstdint>

namespace effects {

// A source of uniform single-precision values in [0, 1). Generators take one by reference so
// that a test can replay a pattern from a known seed.
class UniformGenerator {
public:
    virtual ~UniformGenerator() = default;
    virtual float next() = 0;
};

// The program's own generator, seeded from the clock unless told otherwise: a splitmix64
// sequence, quick and evenly spread, which is all a pattern of dots needs.
class StdUniformGenerator : public UniformGenerator {
public:
    StdUniformGenerator();
    explicit StdUniformGenerator(std::uint64_t seed)
        : m_state(seed) {}
    float next() override;

private:
    std::uint64_t m_state;
};

} // namespace effects

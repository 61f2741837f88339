#pragma once

// Small PE files made in the tests, for the shapes real files never have.
#include <cstddef>
#include <cstdint>
#include <vector>

namespace testfiles {

struct PePlan {
    int groups = 1;                     // icon groups, all sharing one group directory
    int entriesPerGroup = 1;            // each entry names the same icon image
    std::size_t imageBytes = 40 + 4096; // a 32×32 32-bit bitmap header, then zeros
    int sections = 1;                   // the resource section plus empty ones
};

std::vector<std::uint8_t> peFile(const PePlan& plan);

} // namespace testfiles

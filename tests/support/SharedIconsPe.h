#pragma once

#include <cstdint>
#include <vector>

namespace testsupport {

// A small PE file that declares `groups` icon groups (numbered from 1) which all name one and
// the same side×side 32-bit icon image, their directories sharing their data too: the shape
// of a file that makes a careless picker decode the same large image thousands of times.
// Every image pixel is `argb` (0xAARRGGBB).
std::vector<std::uint8_t> sharedIconsPe(int groups, int side, std::uint32_t argb = 0xFF2060C0);

} // namespace testsupport

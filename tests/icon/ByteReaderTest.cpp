#include "icon/ByteReader.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

using icon::ByteReader;

TEST(ByteReader, ReadsLittleEndianAndGivesZeroOutside) {
    const std::array<std::uint8_t, 8> b{0x01, 0x02, 0x03, 0x04, 0xFF, 0xFF, 0x00, 0x80};
    ByteReader r(b);
    EXPECT_EQ(r.u32(0), 0x04030201u);
    EXPECT_EQ(r.i16(4), -1);
    EXPECT_EQ(r.u64(0), 0x8000FFFF04030201ull);
    EXPECT_FALSE(r.failed());
    EXPECT_EQ(r.u32(5), 0u);
    EXPECT_TRUE(r.failed());
    // Offsets near the top of the range must not wrap round into the data.
    constexpr std::size_t kHuge = std::numeric_limits<std::size_t>::max();
    EXPECT_EQ(r.u16(kHuge), 0);
    EXPECT_TRUE(r.slice(2, kHuge).empty());
    EXPECT_FALSE(r.contains(kHuge, 2));
    EXPECT_EQ(r.sliceClamped(2, 100).size(), 6u);
}

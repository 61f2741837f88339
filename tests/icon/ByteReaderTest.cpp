#include "icon/ByteReader.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

using icon::ByteReader;

TEST(ByteReader, ReadsLittleEndian) {
    const std::array<std::uint8_t, 8> b{0x01, 0x02, 0x03, 0x04, 0xFF, 0xFF, 0x00, 0x80};
    ByteReader r(b);
    EXPECT_EQ(r.u8(0), 0x01);
    EXPECT_EQ(r.u16(0), 0x0201);
    EXPECT_EQ(r.u32(0), 0x04030201u);
    EXPECT_EQ(r.i16(4), -1);
    EXPECT_EQ(r.u64(0), 0x8000FFFF04030201ull);
    EXPECT_FALSE(r.failed());
}

TEST(ByteReader, ReadsOutsideGiveZeroAndFail) {
    const std::array<std::uint8_t, 4> b{1, 2, 3, 4};
    ByteReader r(b);
    EXPECT_EQ(r.u32(1), 0u);
    EXPECT_TRUE(r.failed());
    ByteReader huge(b);
    EXPECT_EQ(huge.u16(std::numeric_limits<std::size_t>::max()), 0);
    EXPECT_TRUE(huge.slice(2, std::numeric_limits<std::size_t>::max()).empty());
    EXPECT_FALSE(huge.contains(std::numeric_limits<std::size_t>::max(), 2));
    EXPECT_EQ(huge.sliceClamped(2, 100).size(), 2u);
}

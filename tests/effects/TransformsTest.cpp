#include "effects/Transforms.h"

#include <gtest/gtest.h>

#include <vector>

using effects::flipHorizontal;
using effects::flipVertical;
using effects::turnLeft;
using effects::turnRight;
using icon::Frame;
using icon::IconBitmap;

namespace {

// A block whose colours are given row by row; pixels of colour 0 are transparent, so that a
// test can see the mask travel with the colour.
IconBitmap block(int width, std::vector<icon::Colour> colours) {
    const int height = static_cast<int>(colours.size()) / width;
    IconBitmap b{Frame(width, height), Frame(width, height, icon::kBlack)};
    for (int i = 0; i < static_cast<int>(colours.size()); ++i) {
        b.image.set(i % width, i / width, colours[i]);
        if (colours[i] == 0)
            b.mask.set(i % width, i / width, icon::kWhite);
    }
    return b;
}

struct MapCase {
    const char* name;
    IconBitmap (*transform)(const IconBitmap&);
    IconBitmap expected;
};

} // namespace

TEST(Transforms, MapEveryPixelOfASmallBlock) {
    // a b c        flips, turns and their results on a 3×2 block
    // d e f
    const IconBitmap source = block(3, {1, 2, 0, 4, 5, 6});
    const MapCase cases[] = {
        {"mirror left-right", flipHorizontal, block(3, {0, 2, 1, 6, 5, 4})},
        {"mirror top-bottom", flipVertical, block(3, {4, 5, 6, 1, 2, 0})},
        {"turn left", turnLeft, block(2, {0, 6, 2, 5, 1, 4})},
        {"turn right", turnRight, block(2, {4, 1, 5, 2, 6, 0})},
    };
    for (const MapCase& c : cases)
        EXPECT_EQ(c.transform(source), c.expected) << c.name;
}

TEST(Transforms, HalfReflectionsCopyOneHalfOntoTheOther) {
    // 4×4 block numbered 0..15 row by row, the 0 transparent so the mask is seen to travel.
    std::vector<icon::Colour> n;
    for (icon::Colour i = 0; i < 16; ++i)
        n.push_back(i);
    const IconBitmap source = block(4, n);
    struct Case {
        IconBitmap (*reflect)(const IconBitmap&);
        std::vector<icon::Colour> expected;
    } cases[] = {
        {effects::reflectLeftOntoRight, {0, 1, 1, 0, 4, 5, 5, 4, 8, 9, 9, 8, 12, 13, 13, 12}},
        {effects::reflectRightOntoLeft, {3, 2, 2, 3, 7, 6, 6, 7, 11, 10, 10, 11, 15, 14, 14, 15}},
        {effects::reflectTopOntoBottom, {0, 1, 2, 3, 4, 5, 6, 7, 4, 5, 6, 7, 0, 1, 2, 3}},
        {effects::reflectBottomOntoTop,
         {12, 13, 14, 15, 8, 9, 10, 11, 8, 9, 10, 11, 12, 13, 14, 15}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(c.reflect(source), block(4, c.expected));
}

TEST(Transforms, ReflectionsNeedAnEvenSide) {
    EXPECT_TRUE(effects::halvesAcross(32) && effects::halvesDown(6));
    EXPECT_FALSE(effects::halvesAcross(7) || effects::halvesDown(1));
    // An odd side is left alone rather than read out of bounds.
    const IconBitmap odd = block(3, {1, 2, 3});
    EXPECT_EQ(effects::reflectLeftOntoRight(odd), odd);
    EXPECT_EQ(effects::reflectRightOntoLeft(odd), odd);
}

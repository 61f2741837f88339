#include "icon/Colour.h"
#include "icon/Frame.h"
#include "icon/IconPlanes.h"

#include <gtest/gtest.h>

using namespace icon;

TEST(Colour, ComponentsComeFromDivisionAndRemainder) {
    struct Case {
        Colour c;
        int r, g, b;
    };
    for (const Case& k :
         {Case{0x000000, 0, 0, 0}, Case{0xFFFFFF, 255, 255, 255}, Case{0x0000FF, 255, 0, 0},
          Case{0x00FF00, 0, 255, 0}, Case{0xFF0000, 0, 0, 255}, Case{0x123456, 0x56, 0x34, 0x12}}) {
        EXPECT_EQ(redOf(k.c), k.r);
        EXPECT_EQ(greenOf(k.c), k.g);
        EXPECT_EQ(blueOf(k.c), k.b);
        EXPECT_EQ(rgb(k.r, k.g, k.b), k.c);
    }
}

TEST(Colour, OnlyExactWhiteMaskIsTransparent) {
    EXPECT_TRUE(isTransparentMask(0xFFFFFF));
    for (Colour m : {0xFEFEFEu, 0xFFFFFEu, 0x000000u, 0x7FFFFFu})
        EXPECT_FALSE(isTransparentMask(m)) << std::hex << m;
}

TEST(Colour, CompositionIsBackgroundAndMaskXorColour) {
    EXPECT_EQ(composePixel(0x123456, kBlack, 0xABCDEF), 0xABCDEFu); // opaque shows its colour
    EXPECT_EQ(composePixel(0x123456, kWhite, kBlack), 0x123456u);   // transparent shows background
    EXPECT_EQ(composePixel(kWhite, kWhite, 0x0000FF), 0xFFFF00u);   // coloured transparent inverts
}

TEST(IconPlanes, BlankIconIsFullyTransparentOverBlack) {
    const IconPlanes blank = IconPlanes::blank();
    for (int y = 0; y < kIconSize; ++y)
        for (int x = 0; x < kIconSize; ++x) {
            ASSERT_TRUE(blank.isTransparent(x, y));
            ASSERT_EQ(blank.image.at(x, y), kBlack);
        }
    static_assert(sizeof(IconSnapshot) <= 8 * 1024, "a snapshot costs at most 8 KiB");
}

TEST(IconPlanes, SnapshotIsAnIndependentValue) {
    IconPlanes icon;
    icon.paint(3, 4, 0x00FF00);
    const IconSnapshot snapshot = icon;
    icon.erase(3, 4);
    EXPECT_FALSE(snapshot.isTransparent(3, 4));
    EXPECT_EQ(snapshot.image.at(3, 4), 0x00FF00u);
    EXPECT_TRUE(icon.isTransparent(3, 4));
}

TEST(Compose, EachIconPixelBecomesAZoomBlock) {
    IconPlanes icon;
    icon.paint(0, 0, 0x0000FF);
    icon.paint(31, 31, 0x00FF00);
    icon.image.set(5, 0, 0xFFFFFF); // transparent with colour: inverts the background
    const Frame canvas = compose(icon, kWhite, 10);
    ASSERT_EQ(canvas.width(), 320);
    ASSERT_EQ(canvas.height(), 320);
    EXPECT_EQ(canvas.at(0, 0), 0x0000FFu);
    EXPECT_EQ(canvas.at(9, 9), 0x0000FFu);
    EXPECT_EQ(canvas.at(10, 0), kWhite);
    EXPECT_EQ(canvas.at(319, 319), 0x00FF00u);
    EXPECT_EQ(canvas.at(55, 5), kBlack);

    const Frame actual = compose(icon, 0x808080, 1);
    EXPECT_EQ(actual.at(1, 1), 0x808080u);
    EXPECT_EQ(actual.at(5, 0), 0x7F7F7Fu);
}

TEST(Frame, ImageRoundTripKeepsColours) {
    Frame f(3, 2, 0x010203);
    f.set(2, 1, 0xA0B0C0);
    const QImage image = f.toImage();
    EXPECT_EQ(qRed(image.pixel(2, 1)), 0xC0);
    EXPECT_EQ(qBlue(image.pixel(2, 1)), 0xA0);
    EXPECT_EQ(Frame::fromImage(image), f);
}

#include "icon/Colour.h"
#include "icon/Frame.h"
#include "icon/IconPlanes.h"
#include "iconqt/FrameImage.h"

#include <gtest/gtest.h>

using namespace icon;

TEST(Colour, ComponentsMaskRuleAndComposition) {
    // Red is the low byte.
    EXPECT_EQ(rgb(0x56, 0x34, 0x12), 0x123456u);
    EXPECT_EQ(redOf(0x123456), 0x56);
    EXPECT_EQ(blueOf(0x123456), 0x12);
    // Only exact white is a transparent mask.
    EXPECT_TRUE(isTransparentMask(0xFFFFFF));
    for (Colour m : {0xFEFEFEu, 0xFFFFFEu, 0x000000u, 0x7FFFFFu})
        EXPECT_FALSE(isTransparentMask(m)) << std::hex << m;
    EXPECT_EQ(composePixel(0x123456, kBlack, 0xABCDEF), 0xABCDEFu); // opaque shows its colour
    EXPECT_EQ(composePixel(0x123456, kWhite, kBlack), 0x123456u);   // transparent shows background
    EXPECT_EQ(composePixel(kWhite, kWhite, 0x0000FF), 0xFFFF00u);   // coloured transparent inverts
    static_assert(sizeof(IconSnapshot) <= 8 * 1024, "a snapshot costs at most 8 KiB");
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
    EXPECT_EQ(compose(icon, 0x808080, 1).at(5, 0), 0x7F7F7Fu);
}

TEST(Frame, ImageRoundTripKeepsColours) {
    Frame f(3, 2, 0x010203);
    f.set(2, 1, 0xA0B0C0);
    const QImage image = iconqt::toImage(f);
    EXPECT_EQ(qRed(image.pixel(2, 1)), 0xC0);
    EXPECT_EQ(iconqt::frameFromImage(image), f);
}

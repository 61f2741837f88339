#include "capture/SnapFrame.h"

#include <gtest/gtest.h>

namespace {

using capture::SnapFrame;

TEST(SnapFrame, FollowsThePointerButStaysOnTheDesktop) {
    SnapFrame frame(QSize(1024, 768));
    EXPECT_EQ(frame.rect(), QRect(496, 368, 32, 32));
    struct Case {
        QPoint pointer;
        QRect expected;
    };
    const Case cases[] = {
        {{300, 200}, {284, 184, 32, 32}},
        {{0, 0}, {0, 0, 32, 32}},
        {{5000, -40}, {992, 0, 32, 32}},
        {{1023, 767}, {992, 736, 32, 32}},
    };
    for (const Case& c : cases) {
        frame.centreOn(c.pointer);
        EXPECT_EQ(frame.rect(), c.expected) << c.pointer.x() << "," << c.pointer.y();
    }
    frame.moveBy(-10, 0);
    EXPECT_EQ(frame.rect(), QRect(982, 736, 32, 32));
}

TEST(SnapFrame, ZoomsByWholeIconsWithinTheDesktop) {
    SnapFrame frame(QSize(100, 70));
    EXPECT_EQ(frame.sizeText(), QStringLiteral("32 x 32"));
    EXPECT_TRUE(frame.zoom(5));
    // 70 pixels hold two icons' height, no more.
    EXPECT_EQ(frame.scale(), 2);
    EXPECT_EQ(frame.rect(), QRect(18, 3, 64, 64));
    EXPECT_FALSE(frame.zoom(1));
    EXPECT_TRUE(frame.zoom(-9));
    EXPECT_EQ(frame.scale(), 1);
    EXPECT_FALSE(frame.zoom(-1));

    SnapFrame large(QSize(3840, 2160));
    large.zoom(100);
    EXPECT_EQ(large.scale(), SnapFrame::kMaximumScale);
}

TEST(SnapFrame, TheFramedPixelsBecomeAnOpaqueIcon) {
    QImage desktop(200, 100, QImage::Format_RGB32);
    for (int y = 0; y < desktop.height(); ++y)
        for (int x = 0; x < desktop.width(); ++x)
            // Two-by-two blocks of one colour, so that halving keeps every colour exactly.
            desktop.setPixel(x, y, qRgb(x / 2 * 2, y / 2 * 2, 77));

    const icon::IconPlanes actual = SnapFrame::planesFrom(desktop, QRect(10, 20, 32, 32));
    EXPECT_EQ(actual.image.at(0, 0), icon::rgb(10, 20, 77));
    EXPECT_EQ(actual.image.at(31, 31), icon::rgb(40, 50, 77));
    const icon::IconPlanes halved = SnapFrame::planesFrom(desktop, QRect(100, 0, 64, 64));
    EXPECT_EQ(halved.image.at(0, 0), icon::rgb(100, 0, 77));
    EXPECT_EQ(halved.image.at(5, 7), icon::rgb(110, 14, 77));
    for (const auto* planes : {&actual, &halved})
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x)
                ASSERT_FALSE(planes->isTransparent(x, y));
}

TEST(SnapFrame, ADesktopSmallerThanTheFrameLeavesBlackBeyondIt) {
    QImage desktop(20, 20, QImage::Format_RGB32);
    desktop.fill(qRgb(200, 10, 10));
    SnapFrame frame(desktop.size());
    EXPECT_EQ(frame.rect(), QRect(0, 0, 32, 32));
    const icon::IconPlanes planes = SnapFrame::planesFrom(desktop, frame.rect());
    EXPECT_EQ(planes.image.at(19, 19), icon::rgb(200, 10, 10));
    EXPECT_EQ(planes.image.at(25, 25), icon::kBlack);
    EXPECT_FALSE(planes.isTransparent(25, 25));
}

} // namespace

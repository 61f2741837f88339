#include "capture/CaptureZone.h"

#include <gtest/gtest.h>

namespace {

using capture::CaptureZone;
using capture::ZoneKey;

struct Corners {
    int x1, y1, x2, y2, width, height;
};

void expectCorners(const CaptureZone& zone, const Corners& expected) {
    EXPECT_EQ(zone.x1, expected.x1);
    EXPECT_EQ(zone.y1, expected.y1);
    EXPECT_EQ(zone.x2, expected.x2);
    EXPECT_EQ(zone.y2, expected.y2);
    EXPECT_EQ(zone.width, expected.width);
    EXPECT_EQ(zone.height, expected.height);
}

CaptureZone dragged(double fromX, double fromY, double toX, double toY) {
    CaptureZone zone;
    zone.press(fromX, fromY);
    zone.drag((fromX + toX) / 2, (fromY + toY) / 2);
    zone.release(toX, toY);
    return zone;
}

TEST(CaptureZone, MouseDragsAreOrderedAndKeptToTwoPixels) {
    struct Case {
        const char* what;
        double fromX, fromY, toX, toY;
        Corners expected;
    };
    const Case cases[] = {
        {"down and right", 10, 20, 50, 60, {10, 20, 50, 60, 41, 41}},
        {"up and left", 50, 60, 10, 20, {10, 20, 50, 60, 41, 41}},
        {"down and left", 50, 20, 10, 60, {10, 20, 50, 60, 41, 41}},
        {"two pixels wide stays", 10, 20, 11, 40, {10, 20, 11, 40, 2, 21}},
        {"one pixel wide grows", 10, 20, 10, 40, {10, 20, 12, 40, 2, 21}},
        {"one pixel high grows", 10, 20, 40, 20, {10, 20, 40, 22, 31, 2}},
        {"plain click", 100, 100, 100, 100, {82, 82, 117, 117, 35, 35}},
        {"one-pixel drag", 100, 100, 101, 100, {83, 82, 118, 117, 35, 35}},
        {"backwards one-pixel drag", 101, 101, 100, 100, {82, 82, 117, 117, 35, 35}},
        // Halves go to the even neighbour: 82.5 to 82, 117.5 to 118, 81.5 to 82, 116.5 to 116.
        {"click between pixels", 100.5, 99.5, 100.5, 99.5, {82, 82, 118, 116, 35, 35}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        expectCorners(dragged(c.fromX, c.fromY, c.toX, c.toY), c.expected);
    }
}

TEST(CaptureZone, DraggingMeasuresFromTheFirstCorner) {
    CaptureZone zone;
    zone.press(40, 40);
    EXPECT_EQ(zone.width, 1);
    zone.drag(30, 45);
    expectCorners(zone, {40, 40, 30, 45, 11, 6});
    EXPECT_EQ(zone.sizeText(), QStringLiteral("11 x 6"));
    EXPECT_EQ(CaptureZone::initialSizeText(), QStringLiteral("000x000"));
}

TEST(CaptureZone, KeysMoveTheSecondCornerOrTheWholeZone) {
    struct Case {
        ZoneKey key;
        bool shift, ctrl;
        Corners expected;
    };
    // From the zone (10, 20)-(50, 60).
    const Case cases[] = {
        {ZoneKey::Right, false, false, {10, 20, 51, 60, 42, 41}},
        {ZoneKey::Left, true, false, {10, 20, 40, 60, 31, 41}},
        {ZoneKey::Down, false, false, {10, 20, 50, 61, 41, 42}},
        {ZoneKey::Up, true, false, {10, 20, 50, 50, 41, 31}},
        {ZoneKey::PageUp, false, false, {10, 20, 51, 59, 42, 40}},
        {ZoneKey::PageDown, true, false, {10, 20, 60, 70, 51, 51}},
        {ZoneKey::End, false, false, {10, 20, 49, 61, 40, 42}},
        {ZoneKey::Home, false, false, {10, 20, 49, 59, 40, 40}},
        {ZoneKey::Right, true, true, {20, 20, 60, 60, 41, 41}},
        {ZoneKey::Home, false, true, {9, 19, 49, 59, 41, 41}},
        {ZoneKey::Up, true, true, {10, 10, 50, 50, 41, 41}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.key) * 4 + c.shift * 2 + c.ctrl);
        CaptureZone zone = dragged(10, 20, 50, 60);
        zone.moveByKey(c.key, c.shift, c.ctrl);
        expectCorners(zone, c.expected);
    }
}

TEST(CaptureZone, TheClickZoneCopiesThirtyFivePixelsUntilAKeyMeasuresIt) {
    CaptureZone zone = dragged(200, 100, 200, 100);
    EXPECT_EQ(zone.copyRect(), QRect(182, 82, 35, 35));
    EXPECT_EQ(zone.sizeText(), QStringLiteral("35 x 35"));
    // A key measures the corners again, which span one pixel more.
    zone.moveByKey(ZoneKey::Right, false, true);
    EXPECT_EQ(zone.copyRect(), QRect(183, 82, 36, 36));
}

TEST(CaptureZone, TheCopyStartsAtTheUpperLeftWhateverTheKeysDid) {
    CaptureZone zone = dragged(10, 20, 14, 24);
    for (int i = 0; i < 2; ++i)
        zone.moveByKey(ZoneKey::Home, true, false);
    // The second corner is now above and to the left of the first.
    EXPECT_EQ(zone.copyRect(), QRect(-6, 4, 17, 17));
}

TEST(CaptureZone, HandlesSitFivePixelsOutAndReshapeTheZone) {
    CaptureZone zone = dragged(10, 20, 50, 60);
    const auto nodes = zone.nodeCorners();
    EXPECT_EQ(nodes[0], QPoint(5, 15));
    EXPECT_EQ(nodes[1], QPoint(55, 15));
    EXPECT_EQ(nodes[2], QPoint(55, 65));
    EXPECT_EQ(nodes[3], QPoint(5, 65));
    EXPECT_EQ(zone.nodeAt(QPoint(57, 63), 3), 2);
    EXPECT_EQ(zone.nodeAt(QPoint(30, 30), 3), -1);

    // The lower left handle dragged out: the upper right corner holds still.
    zone.grabNode(3);
    zone.drag(0, 80);
    zone.release(0, 80);
    expectCorners(zone, {0, 20, 50, 80, 51, 61});
}

} // namespace

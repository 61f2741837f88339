#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

#include <array>
#include <cstdint>

namespace capture {

// The keys that move the zone on the overlay.
enum class ZoneKey { Right, Left, Down, Up, PageUp, PageDown, End, Home };

// The zone chosen on the frozen picture of the desktop, in its pixels. The first corner is
// where the mouse went down, the second where it is or went up; `width` and `height` are what
// the copy takes, which after a plain click is one pixel less than the corners span.
class CaptureZone {
public:
    static constexpr int kDefaultSide = 35;
    static constexpr int kMinimumSide = 2;
    static constexpr int kNodeDistance = 5;
    static constexpr int kShiftStep = 10;

    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    int width = 0, height = 0;
    bool accepted = false;

    // The size label before anything was chosen.
    static QString initialSizeText() { return QStringLiteral("000x000"); }

    void press(double x, double y);
    // The second corner follows the pointer.
    void drag(double x, double y);
    // The corners are put in order and the sides kept to at least 2 pixels; a plain click
    // makes the default zone around the pointer.
    void release(double x, double y);
    // Shift steps 10 pixels instead of 1; Ctrl moves the first corner too.
    void moveByKey(ZoneKey key, bool shift, bool ctrl);

    // Width and height from the corners, as the label shows them while the zone changes.
    void measure();
    // "35 x 35".
    QString sizeText() const;
    // The corners of the frame of handles, 5 pixels outside the zone's corners: top left, top
    // right, bottom right, bottom left.
    std::array<QPoint, 4> nodeCorners() const;
    // Which handle (0 to 3) lies within `reach` pixels of the point, or -1.
    int nodeAt(QPoint point, int reach) const;
    // Starts dragging a handle: the opposite corner holds still, the handle's corner follows.
    void grabNode(int node);
    // The corners in order, as a rectangle of screen pixels.
    QRect cornerRect() const;
    // What the copy takes: width by height from the upper left corner.
    QRect copyRect() const;
    bool hasSize() const { return width > 0 && height > 0; }
};

} // namespace capture

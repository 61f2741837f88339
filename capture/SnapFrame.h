#pragma once

#include "icon/IconPlanes.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>

namespace capture {

// The editor's own capture: a square frame over the frozen desktop that follows the pointer and
// becomes the icon. At scale 1 it takes 32×32 screen pixels as they are; at scale n it takes
// 32n×32n pixels and shrinks them to the icon. The frame always lies wholly on the picture.
class SnapFrame {
public:
    static constexpr int kMaximumScale = 8;

    explicit SnapFrame(QSize desktop);

    // The pointer: the frame is centred on it, as far as the picture allows.
    void centreOn(QPoint point);
    // The keys move the frame by whole pixels.
    void moveBy(int dx, int dy);
    // Positive steps enlarge the frame, negative shrink it; false when nothing changed.
    bool zoom(int steps);

    int scale() const { return m_scale; }
    int side() const;
    QRect rect() const;
    // "32 x 32" for the frame's size on the screen.
    QString sizeText() const;

    // The frame's pixels as an opaque icon.
    static icon::IconPlanes planesFrom(const QImage& desktop, const QRect& frame);

private:
    void keepInside();
    int maximumScale() const;

    QSize m_desktop;
    QPoint m_centre;
    int m_scale = 1;
};

} // namespace capture

#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>

namespace editor::ui {

// The one-pixel edges of the pads: sunken (dark above and left, light below and right) or
// raised (the other way round), drawn inside the rectangle.
inline void drawEdge(QPainter& painter, const QRect& r, bool sunken) {
    const QColor dark(128, 128, 128);
    const QColor light(255, 255, 255);
    painter.setPen(sunken ? dark : light);
    painter.drawLine(r.left(), r.top(), r.right(), r.top());
    painter.drawLine(r.left(), r.top(), r.left(), r.bottom());
    painter.setPen(sunken ? light : dark);
    painter.drawLine(r.left(), r.bottom(), r.right(), r.bottom());
    painter.drawLine(r.right(), r.top(), r.right(), r.bottom());
}

} // namespace editor::ui

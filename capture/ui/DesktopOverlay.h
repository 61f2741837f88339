#pragma once

#include <QPoint>

class QRect;
class QSize;
class QWidget;

namespace capture::ui {

// Lays a window over the whole desktop, above every other window, without a frame and with a
// cross cursor, to show a frozen picture of the desktop the user marks a part of. Returns how
// many picture pixels stand in one window pixel (the screen may scale the picture).
double coverDesktop(QWidget& window, const QSize& picture);

// Where the label telling the zone's size goes: `gap` below the zone, or above it near the
// bottom of the window, and always inside the window.
QPoint sizeLabelPlace(const QRect& zone, int gap, const QSize& label, const QSize& window);

} // namespace capture::ui

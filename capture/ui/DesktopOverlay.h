#pragma once

class QSize;
class QWidget;

namespace capture::ui {

// Lays a window over the whole desktop, above every other window, without a frame and with a
// cross cursor, to show a frozen picture of the desktop the user marks a part of. Returns how
// many picture pixels stand in one window pixel (the screen may scale the picture).
double coverDesktop(QWidget& window, const QSize& picture);

} // namespace capture::ui

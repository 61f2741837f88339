#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace shell {

// Where a second window of the program first appears: beside `main` (to its right, else its
// left, else below, else above) when it fits on `screen` there; otherwise as close to the
// right of `main` as the screen allows, and never exactly over it.
QPoint placeBeside(const QRect& main, const QSize& window, const QRect& screen);

} // namespace shell

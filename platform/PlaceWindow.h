#pragma once

class QWidget;

namespace platform {

// Puts a window where it first appears: beside `main` when there is one, otherwise in the
// middle of the screen.
void placeWindow(QWidget& window, const QWidget* main);

} // namespace platform

#include "platform/PlaceWindow.h"

#include "shell/WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace platform {

void placeWindow(QWidget& window, const QWidget* main) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return;
    const QRect area = screen->availableGeometry();
    if (main != nullptr)
        window.move(shell::placeBeside(main->frameGeometry(), window.size(), area));
    else
        window.move(area.center() - window.rect().center());
}

} // namespace platform

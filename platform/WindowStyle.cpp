#include "platform/WindowStyle.h"

#include <QPalette>
#include <QWidget>

namespace platform {

void makeFrameless(QWidget& window) {
    window.setWindowFlag(Qt::FramelessWindowHint, true);
}

void setBackground(QWidget& widget, icon::Colour colour) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Window, toQColor(colour));
    palette.setColor(QPalette::Base, toQColor(colour));
    widget.setPalette(palette);
    widget.setAutoFillBackground(true);
}

void setTextColour(QWidget& widget, icon::Colour colour) {
    QPalette palette = widget.palette();
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, toQColor(colour));
    widget.setPalette(palette);
}

} // namespace platform

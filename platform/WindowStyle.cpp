#include "platform/WindowStyle.h"

#include "platform/TitleButton.h"

#include <QPalette>
#include <QWidget>

namespace platform {

void makeFrameless(QWidget& window) {
    window.setWindowFlag(Qt::FramelessWindowHint, true);
}

TitleButton* setUpWindow(QWidget& window, const char* name, const QString& title, QSize size,
                         int reserved) {
    window.setObjectName(QString::fromLatin1(name));
    window.setWindowTitle(title);
    makeFrameless(window);
    window.setFixedSize(size);
    auto* button = new TitleButton(title, &window);
    button->setGeometry(4, 4, size.width() - 8 - reserved, 22);
    return button;
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

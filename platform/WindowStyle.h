#pragma once

#include "icon/Colour.h"

#include <QColor>
#include <QSize>
#include <QtGlobal>

class QWidget;

namespace platform {

class TitleButton;

// Window layouts are measured in twips, 15 to a pixel.
constexpr int twips(int value) {
    return (value + 7) / 15;
}

inline QColor toQColor(icon::Colour colour) {
    return QColor(icon::redOf(colour), icon::greenOf(colour), icon::blueOf(colour));
}

// A window without the window system's title bar: its own title button moves it.
void makeFrameless(QWidget& window);
// Sets up one of the program's fixed-size windows: its name and title, no system title bar,
// and its title button across the top, `reserved` pixels left free at the right end of that
// row for a button of its own.
TitleButton* setUpWindow(QWidget& window, const char* name, const QString& title, QSize size,
                         int reserved = 0);
// Paints a widget's background with one colour.
void setBackground(QWidget& widget, icon::Colour colour);
// Sets a widget's text colour (labels, lists, check boxes).
void setTextColour(QWidget& widget, icon::Colour colour);

} // namespace platform

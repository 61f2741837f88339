#pragma once

#include "icon/Colour.h"

#include <QColor>
#include <QtGlobal>

class QWidget;

namespace platform {

// Window layouts are measured in twips, 15 to a pixel.
constexpr int twips(int value) {
    return (value + 7) / 15;
}

inline QColor toQColor(icon::Colour colour) {
    return QColor(icon::redOf(colour), icon::greenOf(colour), icon::blueOf(colour));
}

// A window without the window system's title bar: its own title button moves it.
void makeFrameless(QWidget& window);
// Paints a widget's background with one colour.
void setBackground(QWidget& widget, icon::Colour colour);
// Sets a widget's text colour (labels, lists, check boxes).
void setTextColour(QWidget& widget, icon::Colour colour);

} // namespace platform

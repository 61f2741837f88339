#pragma once

#include <QRect>
#include <QString>

class QWidget;

namespace platform {

class GradientButton;

// A push button of the interface: named for the window's wiring, placed, with its help bubble.
GradientButton* makeButton(QWidget* parent, const char* name, const QString& caption,
                           const QString& help, const QRect& place);

} // namespace platform

#pragma once

#include <QString>

class QWidget;

namespace platform {

// Gives a control its help text. On every mouse move over it the control's tooltip becomes the
// help text when help bubbles are on and the empty text when they are off, so that switching
// them takes effect at the next mouse move.
void setHelpText(QWidget& control, const QString& text);
QString helpTextOf(const QWidget& control);

} // namespace platform

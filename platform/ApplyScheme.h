#pragma once

#include "shell/ColourScheme.h"

class QWidget;

namespace platform {

// What every window other than the main one does as it loads: the window background, the
// gradient, caption and light colours on its buttons and frames, the other-text colour on its
// labels and check boxes, the viewing colour on its text fields and lists.
void applyScheme(QWidget& window, const shell::ColourScheme& colours);
// The same with the colours in force for this run.
void applyScheme(QWidget& window);

} // namespace platform

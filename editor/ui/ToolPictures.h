#pragma once

#include "editor/Tool.h"

#include <QPixmap>

namespace editor::ui {

// The picture on a tool's button of the pad.
QPixmap toolPicture(Tool tool);

} // namespace editor::ui

#pragma once

#include <QPixmap>

namespace browser::ui {

enum class MovePicture { First, Previous, Next, Last };
enum class WindowPicture { Minimise, Close };

// The pictures of the move buttons: arrows up to the first icon and the previous page, down to
// the next page and the last icon.
QPixmap movePicture(MovePicture which);
// The pictures of the minimise and close buttons.
QPixmap windowPicture(WindowPicture which);

} // namespace browser::ui

#pragma once

#include <QImage>

namespace shell::ui {

// The program's own picture, 32×32 pixels: a grid of nine icons around a framed centre, as the
// browser shows them. The phase turns the colours of the tiles round (the About box animates it).
QImage programPicture(int phase);

} // namespace shell::ui

#pragma once

namespace platform {

// Bits per pixel of the screen the program shows on (32 for a true-colour screen).
int screenDepth();

// The switch of the display to a colour depth. A desktop under X or Wayland keeps the depth it
// was started with, so the switch succeeds only when the screen already has that depth or more.
bool switchScreenDepth(int bitsPerPixel);

} // namespace platform

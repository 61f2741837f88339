#pragma once

namespace platform {

// Bits per pixel of the screen the program shows on (32 for a true-colour screen).
int screenDepth();

// The switch of the display to a colour depth. A desktop under X or Wayland keeps the depth it
// was started with, so the switch succeeds only when the screen already has that depth.
bool switchScreenDepth(int bitsPerPixel);

// The display switch as the program's commands run it: the click when the screen is in that
// depth, and the "Erreur" message box when the depth cannot be had.
void changeDisplayDepth(int bitsPerPixel);

} // namespace platform

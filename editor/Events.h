#pragma once

namespace editor {

// What an engine call tells the window, as a set of bits.
enum Event : unsigned {
    kNoEvent = 0,
    kRedraw = 1u << 0,         // the planes, the selection or the figure changed: repaint them
    kBeep = 1u << 1,           // a transparent pixel was picked: sound the beep
    kHistoryFailed = 1u << 2,  // nothing to undo or redo: the keyboard shows its message
    kColoursChanged = 1u << 3, // a button colour changed: repaint the two swatches
    kToolChanged = 1u << 4,    // the current tool changed: repaint the tool pad
    kPaletteChanged = 1u << 5, // a palette cell was redefined: repaint the palette
    kPositionChanged = 1u << 6 // the position readout changed
};
using Events = unsigned;

// What the window's key handler shows when a command from the keyboard fails.
inline constexpr const char* kKeyboardErrorText = "Plus rien dans le clavier !";
inline constexpr const char* kKeyboardErrorTitle = "Orvanne® - Erreur";

} // namespace editor

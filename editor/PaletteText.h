#pragma once

namespace editor {

// The text of resources/palette.txt: lines "identifier value", identifiers 100 to 355.
extern const char* const kPaletteText;

} // namespace editor

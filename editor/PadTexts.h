#pragma once

namespace editor {

// Texts of the editor's window that are not commands (those are in EditorCommands).

// The paste dialog FrmClipData; its size line comes from pasteSizeText().
inline constexpr const char* kClipDataMessage = "L'image dans le presse-papiers est trop grande :";
inline constexpr const char* kClipDataProportional = "Réduire en respectant les proportions";
inline constexpr const char* kClipDataSquare = "Réduire en 32x32";

// The palette's check box.
inline constexpr const char* kTrueColours = "Couleurs vraies";

} // namespace editor

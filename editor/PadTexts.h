#pragma once

#include <array>

namespace editor {

// The texts of the editor's pads and lists, in the order of their indexes; the engine's
// commands take the same indexes.

// The edit options list (CmdEditOpts).
inline constexpr std::array<const char*, 11> kEditOptions = {
    "Annuler    Ctrl+Z",
    "Refaire    Ctrl+R",
    "Couper    Ctrl+X",
    "Copier    Ctrl+C",
    "Appel du presse-papiers    Ctrl+P",
    "Coller    Ctrl+V",
    "Collage opaque    Ctrl+O",
    "Capturer    Ctrl+K",
    "Supprimer la sélection    Ctrl+S",
    "Sélectionner tout    Ctrl+T",
    "Capturer une zone d'image    Ctrl+N",
};

// The Effets pad (CmdEffetsOpts): button, gradient, kaleidoscope, flips 3 and 4, turns 5 and 6.
inline constexpr std::array<const char*, 7> kEffectsPad = {
    "Effet bouton",     "Fond en dégradé",       "Fond 'kaléidoscope'",   "Mirroir horizontal",
    "Mirroir vertical", "Rotation 90° à gauche", "Rotation 90° à droite",
};

// The reflection pad (CmdMirrorOpts), indexes 0..3 of IconEditor::halfReflect.
inline constexpr std::array<const char*, 4> kMirrorPad = {
    "Reflet gauche/droite",
    "Reflet droite/gauche",
    "Reflet haut/bas",
    "Reflet bas/haut",
};

// The Couleurs pad (CmdColorOpts).
inline constexpr std::array<const char*, 4> kColoursPad = {
    "Niveaux de gris",
    "Icône en négatif",
    "Ajuster les couleurs",
    "Affichage en 16 millions de couleurs",
};

// The paste dialog FrmClipData; its size line comes from pasteSizeText().
inline constexpr const char* kClipDataMessage = "L'image dans le presse-papiers est trop grande :";
inline constexpr const char* kClipDataProportional = "Réduire en respectant les proportions";
inline constexpr const char* kClipDataSquare = "Réduire en 32x32";

// The palette's check box.
inline constexpr const char* kTrueColours = "Couleurs vraies";

} // namespace editor

#pragma once

namespace browser {

// The texts of the main window's file commands and outside tools.

inline constexpr const char* kCopyTitle = "Copier l'icône";
inline constexpr const char* kIconsFilter = "Icônes|*.ico";
inline constexpr const char* kRefusedTitle = "Erreur !";
inline constexpr const char* kRefusedText = "Ouvrez d'abord un dossier...\nou modifiez le nom de "
                                            "l'icône.";
inline constexpr const char* kExplorerTitle = "Ouvrir un dossier contenant des icônes";
inline constexpr const char* kExplorerFilter = "Icônes|*.ico|Tous fichiers|*.*";
inline constexpr const char* kExistsTitle = "Existe déjà";
inline constexpr const char* kExistsText = "Une icône portant ce nom\nexiste déjà dans le "
                                           "dossier.";
inline constexpr const char* kProgramTitle = "Orvanne®";
inline constexpr const char* kErrorTitle = "Orvanne® - Erreur";

// The paint programs the "Dessin" command looks for on the PATH, in this order: the closest
// to a simple paint program first, the heavy editors last.
inline constexpr const char* kPaintPrograms[] = {"kolourpaint", "pinta", "mtpaint", "drawing",
                                                 "gimp"};
inline constexpr const char* kNoPaintText =
    "Aucun programme de dessin n'a été trouvé.\nInstallez-en un, par exemple KolourPaint "
    "(paquet kolourpaint), Pinta (pinta), mtPaint (mtpaint), Drawing (drawing) ou GIMP (gimp), "
    "puis cliquez de nouveau sur « Dessin ».";

} // namespace browser

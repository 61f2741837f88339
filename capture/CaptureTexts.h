#pragma once

namespace capture {

// The words of the capture windows, exactly as the program shows them.
inline constexpr const char* kHelpStart = "Lancer la capture de zone";
inline constexpr const char* kHelpCopy = "Copier la zone capturée dans le presse-papiers";
inline constexpr const char* kHelpSave = "Enregistrer la zone capturée en BMP";
inline constexpr const char* kHelpEdit = "Affichage de l'éditeur";
inline constexpr const char* kHelpViewer = "Visualiseur d'images";
inline constexpr const char* kHelpClipboard = "Appel du presse-papiers";
inline constexpr const char* kHelpHelp = "Appel de la rubrique d'aide";
inline constexpr const char* kHelpClose = "Fermer";

inline constexpr const char* kSaveTitle = "Sauvegarde bitmap";
inline constexpr const char* kSaveFilter = "Images bitmap (*.BMP)|*.BMP";
inline constexpr const char* kSaveName = "*.BMP";

inline constexpr const char* kErrorTitle = "Orvanne® - Erreur";
inline constexpr const char* kSnapShootTitle = "Capture de zone";
inline constexpr const char* kViewerTitle = "Visualiseur d'images";
inline constexpr const char* kViewerOpenTitle = "Ouvrir une image";

} // namespace capture

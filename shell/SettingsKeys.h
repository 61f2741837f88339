#pragma once

#include <QString>

namespace shell {

// Where each preference lives in the store: section and key, exactly as the program has always
// written them (spaces, accents and apostrophes included).
struct SettingKey {
    const char* section;
    const char* key;
    QString sectionName() const { return QString::fromUtf8(section); }
    QString keyName() const { return QString::fromUtf8(key); }
};

inline constexpr char kApplicationName[] = "Orvanne®";

namespace keys {
inline constexpr char kColours[] = "Couleurs de l'interface";

inline constexpr SettingKey kGradientStart{kColours, "Début du dégradé"};
inline constexpr SettingKey kGradientEnd{kColours, "Fin du dégradé"};
inline constexpr SettingKey kButtonText{kColours, "Texte des boutons"};
// The light colour is read under one key and written under another: a light colour chosen by
// the user lasts until the program ends, and every start brings back the default. Kept on purpose.
inline constexpr SettingKey kButtonLightRead{kColours, "'Lumière' des boutons"};
inline constexpr SettingKey kButtonLightWritten{kColours, "Lumière des boutons"};
inline constexpr SettingKey kOtherText{kColours, "Autres textes"};
inline constexpr SettingKey kWindowBackground{kColours, "Fond des fenêtres"};
inline constexpr SettingKey kViewing{kColours, "Visualisation, dossiers, etc."};

inline constexpr SettingKey kIcons48{"Icônes 48x48", "Valeur"};
inline constexpr SettingKey kHelpBubbles{"Affichage des info-bulles", "Valeur"};
inline constexpr SettingKey kTipsAtStart{"Conseils du jour", "Conseil au démarrage"};
inline constexpr SettingKey kDepthWarning{"Avertissement", "Affichage"};
inline constexpr SettingKey kLastIcon{"Rappel de la dernière icône chargée ou sauvée",
                                      "Nom de l'icône"};
} // namespace keys

} // namespace shell

#pragma once

#include "shell/ColourScheme.h"
#include "shell/Settings.h"

#include <QString>

namespace shell {

// The preferences the program holds for the whole run, read from the store while the main
// window loads and written back the moment a command changes one of them.
struct Preferences {
    ColourScheme colours;
    bool icons48 = false;
    bool helpBubbles = true;
    bool tipsAtStart = true;

    // The colours, the grid view and the help-bubble flag, in the order the main window reads
    // them. The tips flag is read apart, once the folder lists are filled.
    static Preferences load(const Settings& settings);
    static bool loadTipsAtStart(const Settings& settings);

    // Writes the current value of one colour (the light colour under its written key).
    void saveColour(Settings& settings, SchemeColour which) const;
    // Back to the seven default colours, all written.
    void resetColours(Settings& settings);

    void setIcons48(Settings& settings, bool on);
    void setHelpBubbles(Settings& settings, bool on);
    void setTipsAtStart(Settings& settings, bool on);
};

// The key a colour is read under at start-up and the one it is written under.
const SettingKey& readKeyOf(SchemeColour which);
const SettingKey& writtenKeyOf(SchemeColour which);

// The caption of a toggle: a trailing " «" marks an option that is on.
QString toggleCaption(const QString& caption, bool on);

} // namespace shell

#pragma once

#include "shell/Preferences.h"

#include <QString>

#include <filesystem>

namespace shell {

// What the windows of one run share: the preferences in force and the program's own files.
// The main window loads it; every other window reads it when it loads.
struct AppState {
    Preferences preferences;
    // The program's own icon library, the picker's first file, and the help the program opens.
    QString iconLibraryPath;
    QString iconLibraryName = QStringLiteral("Orvanne®.icl");
    QString helpFile;
};

AppState& appState();

} // namespace shell

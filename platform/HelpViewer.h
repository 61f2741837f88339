#pragma once

#include <QString>

class QWidget;

namespace platform {

// Shows the program's own help pages (HTML files of the "help" data folder) in one window of
// its own, with the program's look; links between the pages stay in that window, links
// elsewhere go to the desktop.
class HelpViewer {
public:
    // Opens a page ("index.html", or "visualiseur.html#grille"); false when the help is missing.
    static bool showPage(const QString& page);
    // The folder of the help pages, empty when they are not installed.
    static QString helpFolder();
    // The help window while it is open, and the file name of the page it shows.
    static QWidget* window();
    static QString currentPage();
};

} // namespace platform

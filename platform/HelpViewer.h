#pragma once

#include <QPointer>
#include <QString>

class QTextBrowser;

namespace platform {

// Shows the program's own help pages (HTML files of the "help" data folder) in a window of
// its own; links between the pages stay in that window, links elsewhere go to the desktop.
class HelpViewer {
public:
    // Opens a page ("index.html", or "browser.html#grid"); false when the help is missing.
    static bool showPage(const QString& page);
    // The folder of the help pages, empty when they are not installed.
    static QString helpFolder();

private:
    static QPointer<QTextBrowser>& window();
};

} // namespace platform

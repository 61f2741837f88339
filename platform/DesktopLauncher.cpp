#include "platform/Launcher.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>

namespace platform {

bool DesktopLauncher::openDocument(const QUrl& url) {
    return QDesktopServices::openUrl(url);
}

bool DesktopLauncher::startProgram(const QString& program, const QStringList& arguments) {
    if (QStandardPaths::findExecutable(program).isEmpty() && !program.contains(QLatin1Char('/')))
        return false;
    return QProcess::startDetached(program, arguments);
}

} // namespace platform

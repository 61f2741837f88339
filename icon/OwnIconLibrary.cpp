#include "icon/OwnIconLibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace icon {

QString ownIconLibraryName() {
    return QStringLiteral("Orvanne®.icl");
}

QString ownIconLibraryPath() {
    // Without an application object there is no program folder to look in.
    const QString programFolder =
        QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QString();
    const QString beside = QDir(programFolder).filePath(ownIconLibraryName());
    if (!programFolder.isEmpty() && QFileInfo::exists(beside))
        return beside;
    const QString installed =
        QDir(QString::fromUtf8(ORVANNE_DATADIR)).filePath(ownIconLibraryName());
    return QFileInfo::exists(installed) ? installed : beside;
}

} // namespace icon

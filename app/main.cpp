// orvanne: the icon browser and editor.
#include "app/Startup.h"
#include "browser/ThumbnailProvider.h"
#include "platform/SingleInstance.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("Orvanne®"));
    QApplication::setDesktopFileName(QStringLiteral("orvanne"));

    // "Oui", "Non", "Annuler" and the common dialogs in French.
    QTranslator qtFrench;
    if (qtFrench.load(QStringLiteral("qtbase_fr"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&qtFrench);

    const platform::SingleInstance instance;
    const browser::IcoThumbnailProvider provider;
    // The arguments after the program's name, joined by spaces, are its command line.
    const QString commandLine = QApplication::arguments().mid(1).join(QLatin1Char(' '));
    app::Startup startup(provider, commandLine);
    if (!startup.begin(instance.anotherIsRunning()))
        return 0;
    return QApplication::exec();
}

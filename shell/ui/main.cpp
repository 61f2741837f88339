// orvanne: the icon browser and editor.
#include "browser/ThumbnailProvider.h"
#include "platform/SingleInstance.h"
#include "shell/ui/Startup.h"

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
    shell::ui::Startup startup(provider);
    if (!startup.begin(instance.anotherIsRunning()))
        return 0;
    return QApplication::exec();
}

// orvanne: the icon browser and editor.
#include "app/Startup.h"
#include "browser/ThumbnailProvider.h"
#include "platform/SingleInstance.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <cstdio>
#include <cstring>

namespace {

// "--help" and "--version" alone are answered on the terminal, before any window or display.
bool answeredOnTerminal(int argc, char** argv) {
    if (argc != 2)
        return false;
    if (std::strcmp(argv[1], "--version") == 0) {
        std::fputs("Orvanne " ORVANNE_VERSION "\n", stdout);
        return true;
    }
    if (std::strcmp(argv[1], "--help") == 0) {
        std::fputs("Usage : orvanne [/open FICHIER]\n"
                   "        orvanne --help | --version\n"
                   "\n"
                   "Parcourt les dossiers d'icônes Windows, extrait les icônes des fichiers EXE, "
                   "DLL, ICL et ANI et édite les icônes 32×32.\n"
                   "\n"
                   "  /open FICHIER   ouvre cette icône dans l'éditeur d'icônes au démarrage\n"
                   "  --help          affiche cette aide\n"
                   "  --version       affiche la version du programme\n",
                   stdout);
        return true;
    }
    return false;
}

} // namespace

int main(int argc, char** argv) {
    if (answeredOnTerminal(argc, argv))
        return 0;
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

// main() of every window test: the offscreen platform unless a display is asked for, a private
// home and configuration folder so that no test touches the developer's own settings, and
// Qt's French translations for the standard buttons.
#include <QApplication>
#include <QLibraryInfo>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", (home.path() + "/.config").toUtf8());
    qputenv("XDG_DATA_HOME", (home.path() + "/.local/share").toUtf8());
    qputenv("XDG_CACHE_HOME", (home.path() + "/.cache").toUtf8());

    QApplication app(argc, argv);
    QTranslator qtFrench;
    if (qtFrench.load(QStringLiteral("qtbase_fr"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&qtFrench);

    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

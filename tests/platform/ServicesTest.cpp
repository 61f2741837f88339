#include "platform/Services.h"
#include "platform/CanberraSound.h"
#include "platform/HelpViewer.h"
#include "platform/QtDialogs.h"
#include "platform/SingleInstance.h"
#include "shell/DataFiles.h"
#include "tests/support/TestData.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QThread>

#include <gtest/gtest.h>

namespace {

TEST(QtDialogs, TheProgramsFiltersBecomeQtFilters) {
    const struct {
        const char* filter;
        QStringList expected;
    } cases[] = {
        {"Icônes|*.ico", {QStringLiteral("Icônes (*.ico)")}},
        {"Icônes|*.ico|Tous fichiers|*.*",
         {QStringLiteral("Icônes (*.ico)"), QStringLiteral("Tous fichiers (*.*)")}},
        {"Images|*.bmp;*.dib", {QStringLiteral("Images (*.bmp *.dib)")}},
        {"Fichiers d'icônes (*.ico)|*.ico", {QStringLiteral("Fichiers d'icônes (*.ico)")}},
        {"", {QStringLiteral("* (*)")}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(platform::QtDialogs::qtFilters(QString::fromUtf8(c.filter)), c.expected)
            << c.filter;
}

TEST(SingleInstance, TheSecondInstanceOfAUserSeesTheFirst) {
    const QString name = QStringLiteral("orvanne-test-%1").arg(QCoreApplication::applicationPid());
    {
        platform::SingleInstance first(name);
        EXPECT_FALSE(first.anotherIsRunning());
        platform::SingleInstance second(name);
        EXPECT_TRUE(second.anotherIsRunning());
    }
    platform::SingleInstance afterwards(name);
    EXPECT_FALSE(afterwards.anotherIsRunning()) << "the lock goes with the first instance";
}

TEST(CanberraSound, TheClickReachesTheSoundOutput) {
    // No sound server here: the sound library goes through ALSA, whose configuration (in the
    // test's private home) sends the sound to a file.
    qputenv("CANBERRA_DRIVER", "alsa");
    const QString home = QDir::homePath();
    const QString output = home + QStringLiteral("/clic.raw");
    QFile config(home + QStringLiteral("/.asoundrc"));
    ASSERT_TRUE(config.open(QIODevice::WriteOnly));
    config.write("pcm.!default { type file; slave.pcm \"null\"; file \"" + output.toUtf8() +
                 "\"; format \"raw\" }\n");
    config.close();

    {
        platform::CanberraSound sound;
        sound.playClick();
        QFile played(output);
        for (int i = 0; i < 250 && played.size() < 200; ++i)
            QThread::msleep(20);
        EXPECT_GT(played.size(), 200) << "the click's samples went to the output";
    }
    QFile::remove(config.fileName());
    qunsetenv("CANBERRA_DRIVER");
}

TEST(HelpViewer, ShowsTheProgramsOwnPagesAndSaysWhenThereAreNone) {
    QTemporaryDir data;
    qputenv("ORVANNE_DATA_DIR", data.path().toUtf8());
    struct Unset {
        ~Unset() { qunsetenv("ORVANNE_DATA_DIR"); }
    } unset;
    QDir(data.path()).mkpath(QStringLiteral("help"));
    ASSERT_TRUE(testsupport::writeFile(
        data.filePath(QStringLiteral("help/index.html")),
        "<html><body><h1>Aide de Orvanne</h1><p>Le visualiseur.</p></body></html>"));
    EXPECT_EQ(platform::HelpViewer::helpFolder(), data.filePath(QStringLiteral("help")));
    EXPECT_TRUE(platform::HelpViewer::showPage(QStringLiteral("index.html")));
    QWidget* viewer = platform::HelpViewer::window();
    ASSERT_NE(viewer, nullptr);
    EXPECT_TRUE(viewer->isVisible());
    auto* text = viewer->findChild<QTextBrowser*>();
    ASSERT_NE(text, nullptr);
    EXPECT_TRUE(text->toPlainText().contains(QStringLiteral("Le visualiseur.")));
    // The program's look: a title button to move it, a close button, and Escape.
    EXPECT_TRUE(viewer->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_NE(viewer->findChild<QWidget*>(QStringLiteral("CmdDeplaceFen")), nullptr);
    QTest::keyClick(viewer, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(platform::HelpViewer::window(), nullptr);
    EXPECT_TRUE(platform::HelpViewer::showPage(QStringLiteral("index.html")));
    QTest::mouseClick(
        platform::HelpViewer::window()->findChild<QAbstractButton*>(QStringLiteral("CmdFermer")),
        Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(platform::HelpViewer::window(), nullptr);
    qunsetenv("ORVANNE_DATA_DIR");
    if (platform::HelpViewer::helpFolder().isEmpty()) {
        EXPECT_FALSE(platform::HelpViewer::showPage(QStringLiteral("index.html")));
    }
}

} // namespace

#include "platform/Services.h"
#include "platform/AlsaSound.h"
#include "platform/HelpViewer.h"
#include "platform/QtDialogs.h"
#include "platform/SingleInstance.h"
#include "platform/Trash.h"
#include "shell/DataFiles.h"
#include "tests/support/TestData.h"

#include "icon/FileBytes.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
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

TEST(Trash, AFileGoesToTheUsersTrashEvenBeforeTheDataFolderExists) {
    QTemporaryDir work;
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    QDir(data).removeRecursively();
    const QString path = work.filePath(QStringLiteral("vieille.ico"));
    ASSERT_TRUE(testsupport::writeFile(path, {}));
    const QString before = QDir::currentPath();
    QDir::setCurrent(work.path());
    EXPECT_TRUE(platform::moveToTrash(path));
    QDir::setCurrent(before);
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_TRUE(QFileInfo::exists(data + QStringLiteral("/Trash/files/vieille.ico")));
    EXPECT_FALSE(QFileInfo::exists(work.filePath(QStringLiteral("files"))))
        << "no trash in the working folder";
}

TEST(AlsaSound, TheClickIsAShortWaveAndBrokenFilesAreRefused) {
    const QString path = shell::DataFiles::find(QStringLiteral("clic.wav"));
    ASSERT_FALSE(path.isEmpty());
    const auto bytes = icon::readFileBytes(path);
    ASSERT_TRUE(bytes);
    platform::AlsaSound::Wave wave;
    ASSERT_TRUE(platform::AlsaSound::parseWave(*bytes, wave));
    EXPECT_EQ(wave.channels, 1);
    EXPECT_GT(wave.samples.size(), 100u);
    EXPECT_LT(wave.samples.size(), static_cast<std::size_t>(wave.rate)) << "under a second";

    for (std::size_t cut : {0, 11, 30, 44, 60}) {
        std::vector<std::uint8_t> truncated(bytes->begin(),
                                            bytes->begin() + static_cast<long>(cut));
        platform::AlsaSound::Wave w;
        EXPECT_FALSE(platform::AlsaSound::parseWave(truncated, w)) << cut;
    }
    std::vector<std::uint8_t> eightBit = *bytes;
    eightBit[34] = 8;
    platform::AlsaSound::Wave w;
    EXPECT_FALSE(platform::AlsaSound::parseWave(eightBit, w));
}

TEST(AlsaSound, TheClickReachesTheSoundDevice) {
    // The user's ALSA configuration (in the test's private home) sends the sound to a file.
    const QString home = QDir::homePath();
    const QString output = home + QStringLiteral("/clic.raw");
    const QString config = home + QStringLiteral("/.asoundrc");
    ASSERT_TRUE(
        testsupport::writeFile(config, "pcm.!default { type file; slave.pcm \"null\"; file \"" +
                                           output.toUtf8() + "\"; format \"raw\" }\n"));
    const auto bytes = icon::readFileBytes(shell::DataFiles::find(QStringLiteral("clic.wav")));
    ASSERT_TRUE(bytes);
    platform::AlsaSound::Wave wave;
    ASSERT_TRUE(platform::AlsaSound::parseWave(*bytes, wave));
    const qint64 expected = static_cast<qint64>(wave.samples.size() * 2);

    platform::AlsaSound sound;
    sound.playClick();
    QFile played(output);
    for (int i = 0; i < 250 && played.size() < expected; ++i)
        QThread::msleep(20);
    EXPECT_EQ(played.size(), expected) << "every sample of the click, 16 bits each";
    QFile::remove(config);
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
    QTextBrowser* viewer = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        viewer = viewer ? viewer : qobject_cast<QTextBrowser*>(w);
    ASSERT_NE(viewer, nullptr);
    EXPECT_TRUE(viewer->isVisible());
    EXPECT_TRUE(viewer->toPlainText().contains(QStringLiteral("Le visualiseur.")));
    viewer->close();
    qunsetenv("ORVANNE_DATA_DIR");
    if (platform::HelpViewer::helpFolder().isEmpty()) {
        EXPECT_FALSE(platform::HelpViewer::showPage(QStringLiteral("index.html")));
    }
}

} // namespace

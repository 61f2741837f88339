#include "platform/Services.h"
#include "platform/CanberraSound.h"
#include "platform/HelpViewer.h"
#include "platform/QtDialogs.h"
#include "platform/ScriptedDialogs.h"
#include "platform/SingleInstance.h"
#include "platform/Trash.h"
#include "shell/DataFiles.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QThread>

#include <gtest/gtest.h>

namespace {

using platform::Answer;
using platform::MessageButtons;

TEST(ScriptedDialogs, AnswersInOrderAndRecordsWhatWasAsked) {
    platform::ScriptedDialogs scripted;
    platform::ServicesOverride services(&scripted);
    scripted.answer(Answer::Yes);
    scripted.chooseColourValue(0x0000FF);
    scripted.chooseFile(QStringLiteral("/tmp/a.ico"), 2);

    platform::Message message{QStringLiteral("Orvanne®"), QStringLiteral("un\ndeux"),
                              platform::MessageIcon::Exclamation, MessageButtons::YesNo, 2};
    EXPECT_EQ(platform::dialogs().message(message), Answer::Yes);
    EXPECT_EQ(platform::dialogs().chooseColour(0x808000), std::optional<icon::Colour>(0x0000FF));
    const auto file = platform::dialogs().saveFile(
        {QStringLiteral("Copier l'icône"), {}, {}, QStringLiteral("Icônes|*.ico"), 1});
    ASSERT_TRUE(file);
    EXPECT_EQ(file->path, QStringLiteral("/tmp/a.ico"));
    EXPECT_EQ(file->filterIndex, 2);

    ASSERT_EQ(scripted.asked().size(), 3u);
    EXPECT_EQ(scripted.asked()[0].text, QStringLiteral("un\ndeux"));
    EXPECT_EQ(scripted.asked()[0].defaultButton, 2);
    EXPECT_EQ(scripted.asked()[1].colour, 0x808000u);
    EXPECT_EQ(scripted.asked()[2].title, QStringLiteral("Copier l'icône"));
}

TEST(ScriptedDialogs, WithNothingScriptedMessagesGetTheirDefaultAndDialogsAreCancelled) {
    platform::ScriptedDialogs scripted;
    const struct {
        MessageButtons buttons;
        int preferred;
        Answer expected;
    } cases[] = {{MessageButtons::Ok, 1, Answer::Ok},
                 {MessageButtons::YesNo, 2, Answer::No},
                 {MessageButtons::YesNo, 1, Answer::Yes},
                 {MessageButtons::OkCancel, 2, Answer::Cancel},
                 {MessageButtons::YesNoCancel, 3, Answer::Cancel},
                 {MessageButtons::YesNo, 9, Answer::No}};
    for (const auto& c : cases) {
        platform::Message m;
        m.buttons = c.buttons;
        m.defaultButton = c.preferred;
        EXPECT_EQ(scripted.message(m), c.expected);
    }
    EXPECT_FALSE(scripted.chooseColour(0));
    EXPECT_FALSE(scripted.openFile({}));
    EXPECT_FALSE(scripted.chooseFolder(QStringLiteral("t"), QStringLiteral("/")));
    QDialog window;
    window.setObjectName(QStringLiteral("FenRen"));
    EXPECT_EQ(scripted.runModal(window), QStringLiteral("Cancelled"));
    EXPECT_FALSE(window.isVisible());
    scripted.onModal([](QDialog& shown) {
        EXPECT_TRUE(shown.isVisible());
        shown.accept();
    });
    EXPECT_EQ(scripted.runModal(window), QStringLiteral("Ok"));
    EXPECT_EQ(scripted.last().title, QStringLiteral("FenRen"));
}

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
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    const QString before = QDir::currentPath();
    QDir::setCurrent(work.path());
    EXPECT_TRUE(platform::moveToTrash(path));
    QDir::setCurrent(before);
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_TRUE(QFileInfo::exists(data + QStringLiteral("/Trash/files/vieille.ico")));
    EXPECT_FALSE(QFileInfo::exists(work.filePath(QStringLiteral("files"))))
        << "no trash in the working folder";
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

TEST(CanberraSound, WithoutAnyOutputTheClickIsDroppedQuietly) {
    // The test machine has neither a sound server nor a sound card.
    {
        platform::CanberraSound sound;
        for (int i = 0; i < 3; ++i)
            sound.playClick();
        QThread::msleep(50);
    }
    SUCCEED();
}

TEST(HelpViewer, ShowsTheProgramsOwnPagesAndSaysWhenThereAreNone) {
    QTemporaryDir data;
    qputenv("ORVANNE_DATA_DIR", data.path().toUtf8());
    struct Unset {
        ~Unset() { qunsetenv("ORVANNE_DATA_DIR"); }
    } unset;
    QDir(data.path()).mkpath(QStringLiteral("help"));
    QFile page(data.filePath(QStringLiteral("help/index.html")));
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    page.write("<html><body><h1>Aide de Orvanne</h1><p>Le visualiseur.</p></body></html>");
    page.close();
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

#include "platform/Services.h"
#include "platform/CanberraSound.h"
#include "platform/HelpViewer.h"
#include "platform/QtDialogs.h"
#include "platform/ScriptedDialogs.h"
#include "platform/SingleInstance.h"
#include "shell/DataFiles.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
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

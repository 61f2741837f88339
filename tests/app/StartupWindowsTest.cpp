#include "app/Startup.h"
#include "browser/ThumbnailProvider.h"
#include "platform/DisplayMode.h"
#include "platform/GradientButton.h"
#include "platform/Services.h"
#include "shell/AppState.h"
#include "shell/Settings.h"
#include "shell/ui/Apropos.h"
#include "shell/ui/Avertis.h"
#include "shell/ui/Conseils.h"
#include "shell/ui/Demarre2.h"
#include "tests/support/Recorders.h"
#include "tests/support/Screenshot.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestData.h"
#include "tests/support/Widgets.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using platform::Asked;
using testsupport::child;
using testsupport::click;

class StartupWindows : public ::testing::Test {
protected:
    void SetUp() override { shell::Settings().deleteAll(); }
    void TearDown() override { shell::Settings().deleteAll(); }
    platform::ScriptedDialogs m_dialogs;
    platform::RecordingSound m_sound;
    platform::RecordingLauncher m_launcher;
    platform::ServicesOverride m_services{&m_dialogs, &m_sound, &m_launcher};
};

TEST_F(StartupWindows, Demarre2AsksBeforeASecondInstanceWithNoAsTheDefault) {
    shell::ui::Demarre2 splash;
    splash.show();
    testsupport::saveScreenshot(splash, QStringLiteral("Demarre2"));
    for (const auto answer : {platform::Answer::No, platform::Answer::Yes}) {
        m_dialogs.answer(answer);
        EXPECT_EQ(shell::ui::Demarre2::askForSecondInstance(), answer == platform::Answer::Yes);
        EXPECT_EQ(m_dialogs.last().buttons, platform::MessageButtons::YesNo);
        EXPECT_EQ(m_dialogs.last().defaultButton, 2);
    }
}

TEST_F(StartupWindows, NoToTheSecondInstanceEndsTheStart) {
    browser::IcoThumbnailProvider provider;
    app::Startup startup(provider);
    m_dialogs.answer(platform::Answer::No);
    EXPECT_FALSE(startup.begin(true));
    EXPECT_FALSE(startup.splash().isVisible());
}

TEST_F(StartupWindows, TheMainWindowComesOnTheCurrentFolderThenTheTipsUnlessTurnedOff) {
    QTemporaryDir folder;
    for (const QString& file : testsupport::testFiles(QStringLiteral("ico/valid")).mid(0, 9))
        QFile::copy(file, QDir(folder.path()).filePath(QFileInfo(file).fileName()));
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    for (const bool tips : {true, false}) {
        shell::Settings().save(shell::keys::kTipsAtStart,
                               tips ? QStringLiteral("Oui") : QStringLiteral("Non"));
        m_dialogs.clear();
        browser::IcoThumbnailProvider provider;
        app::Startup startup(provider);
        QSignalSpy shown(&startup, &app::Startup::mainWindowShown);
        ASSERT_TRUE(startup.begin(false));
        ASSERT_TRUE(shown.wait(3000));
        ASSERT_NE(startup.mainWindow(), nullptr);
        EXPECT_EQ(startup.mainWindow()->countText(), QStringLiteral("9 icônes"));
        QTest::qWait(20);
        ASSERT_EQ(m_dialogs.asked().size(), tips ? 1u : 0u) << tips;
        if (tips) {
            EXPECT_EQ(m_dialogs.last().kind, Asked::Kind::Modal);
            EXPECT_EQ(m_dialogs.last().title, QStringLiteral("Conseils"));
        }
    }
    QDir::setCurrent(before);
}

TEST_F(StartupWindows, ConseilsShowsTheTipChosenAndNextAndOkReachTheTips) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("Conseils.txt"));
    testsupport::writeFile(path, "Premier conseil\nDeuxième conseil\nTroisième conseil\n");
    shell::ui::Conseils tips(
        nullptr, [] { return 0.5; }, path);
    EXPECT_EQ(tips.tipText(), QStringLiteral("Deuxième conseil"));
    click(tips, "CmdNextTip");
    EXPECT_EQ(tips.tipText(), QStringLiteral("Troisième conseil"));
    // Return is its OK.
    tips.show();
    QTest::keyClick(&tips, Qt::Key_Return);
    EXPECT_FALSE(tips.isVisible());
    EXPECT_EQ(tips.result(), QDialog::Accepted);

    shell::ui::Conseils missing(
        nullptr, [] { return 0.0; }, QStringLiteral("/nonexistent/Conseils.txt"));
    EXPECT_EQ(missing.tipText(), shell::Tips::missingFileText());
    click(missing, "CmdNextTip");
    EXPECT_EQ(missing.tipText(), shell::Tips::missingFileText());
}

TEST_F(StartupWindows, ConseilsCheckBoxWritesTheTipsFlag) {
    shell::ui::Conseils tips(nullptr, [] { return 0.0; });
    auto* check = child<QCheckBox>(tips, "chkLoadTipsAtStartup");
    EXPECT_TRUE(check->isChecked());
    check->click();
    EXPECT_EQ(shell::Settings().read(shell::keys::kTipsAtStart), QStringLiteral("Non"));
    EXPECT_FALSE(shell::appState().preferences.tipsAtStart);
    shell::ui::Conseils again(nullptr, [] { return 0.0; });
    EXPECT_FALSE(child<QCheckBox>(again, "chkLoadTipsAtStartup")->isChecked());
    child<QCheckBox>(again, "chkLoadTipsAtStartup")->click();
    EXPECT_EQ(shell::Settings().read(shell::keys::kTipsAtStart), QStringLiteral("Oui"));
    again.show(); // with the program's own tips
    testsupport::saveScreenshot(again, QStringLiteral("Conseils"));
}

TEST_F(StartupWindows, AproposDrawsItsLinesAnimatesAndOpensTheProgramsPage) {
    shell::ui::Apropos about;
    about.show();
    const int phase = about.phase();
    QTest::qWait(150);
    EXPECT_NE(about.phase(), phase) << "Minuterie1 animates the box";
    click(about, "CmdSite");
    ASSERT_EQ(m_launcher.documents.size(), 1);
    EXPECT_TRUE(m_launcher.documents[0].isLocalFile());
    EXPECT_TRUE(QFileInfo::exists(m_launcher.documents[0].toLocalFile()));
    testsupport::saveScreenshot(about, QStringLiteral("Apropos"));
    click(about, "CmdFermer");
    EXPECT_FALSE(about.isVisible());
}

TEST_F(StartupWindows, AvertisTicksFromTheSettingAndStoresTheAnswer) {
    // Ticking it is checked where the editor brings it up; here, the way back.
    shell::Settings().save(shell::keys::kDepthWarning, QStringLiteral("Non"));
    shell::ui::Avertis warning;
    auto* check = child<QCheckBox>(warning, "Coche1");
    EXPECT_TRUE(check->isChecked());
    check->click();
    EXPECT_EQ(shell::Settings().read(shell::keys::kDepthWarning), QStringLiteral("Oui"));
}

TEST_F(StartupWindows, AvertisOkSwitchesToTrueColourOrSaysItCannot) {
    shell::ui::Avertis warning;
    warning.show();
    click(warning, "CmdOK");
    EXPECT_FALSE(warning.isVisible());
    if (platform::screenDepth() == 32) {
        EXPECT_EQ(m_sound.clicks, 1) << "already in true colour: nothing to switch";
        EXPECT_TRUE(m_dialogs.asked().empty());
    } else {
        ASSERT_EQ(m_dialogs.asked().size(), 1u);
    }
}

} // namespace

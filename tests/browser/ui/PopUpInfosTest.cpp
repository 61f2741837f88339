#include "tests/browser/ui/FenPrinFixture.h"

#include "browser/ui/IconGridView.h"
#include "browser/ui/PopUpInfos.h"
#include "shell/AppState.h"
#include "tests/support/Screenshot.h"

#include <QFileInfo>
#include <QSignalSpy>

namespace {

using browsertest::FenPrinFixture;
using shell::SchemeColour;

class PopUpInfosTest : public FenPrinFixture {
protected:
    void openPanel() {
        if (!control("PopUpInfos")->isVisible())
            click("CmdApropos");
    }
    shell::Preferences& prefs() { return shell::appState().preferences; }
};

TEST_F(PopUpInfosTest, OptionsOpensThePanelInItsPlaceAndEveryCommandClosesIt) {
    QWidget* panel = control("PopUpInfos");
    EXPECT_FALSE(panel->isVisible());
    click("CmdApropos");
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->pos(), QPoint(267, 16));
    click("CmdApropos");
    EXPECT_FALSE(panel->isVisible());
    openPanel();
    click("CmdFerMnu");
    EXPECT_FALSE(panel->isVisible());
    m_window->openFolder(iconFolder(50));
    openPanel();
    click("DeplaceHaut");
    EXPECT_FALSE(panel->isVisible());
    QSignalSpy about(m_window.get(), &browser::ui::FenPrin::aboutRequested);
    openPanel();
    click("CmdApropos2");
    EXPECT_EQ(about.count(), 1);
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(PopUpInfosTest, TogglesFlipWriteAndMarkTheirCaption) {
    openPanel();
    click("CmdBulAide");
    EXPECT_FALSE(control("PopUpInfos")->isVisible());
    EXPECT_FALSE(prefs().helpBubbles);
    EXPECT_EQ(shell::Settings().read(shell::keys::kHelpBubbles), QStringLiteral("Non"));
    EXPECT_EQ(button("CmdBulAide")->text(), QStringLiteral("Affichage des info-bulles"));
    openPanel();
    click("CmdConseilDem");
    EXPECT_EQ(shell::Settings().read(shell::keys::kTipsAtStart), QStringLiteral("Non"));
    EXPECT_EQ(button("CmdConseilDem")->text(), QStringLiteral("Conseils au démarrage"));
    openPanel();
    click("CmdBulAide");
    EXPECT_EQ(shell::Settings().read(shell::keys::kHelpBubbles), QStringLiteral("Oui"));
    EXPECT_TRUE(prefs().helpBubbles);
}

TEST_F(PopUpInfosTest, AChosenColourIsWrittenAndAppliedAndACancelRewritesTheOldOne) {
    const struct {
        SchemeColour which;
        const char* key;
    } cases[] = {{SchemeColour::GradientStart, "Début du dégradé"},
                 {SchemeColour::ButtonLight, "Lumière des boutons"},
                 {SchemeColour::Viewing, "Visualisation, dossiers, etc."}};
    for (const auto& c : cases) {
        openPanel();
        m_dialogs.chooseColourValue(0x0000FF);
        click(browser::ui::PopUpInfos::colourButtonName(c.which).toLatin1().constData());
        EXPECT_EQ(m_dialogs.last().kind, platform::Asked::Kind::Colour);
        EXPECT_EQ(prefs().colours[c.which], 0x0000FFu);
        EXPECT_EQ(shell::Settings().read({"Couleurs de l'interface", c.key}), QStringLiteral("255"))
            << c.key;
        openPanel();
        m_dialogs.cancel();
        shell::Settings().deleteAll();
        click(browser::ui::PopUpInfos::colourButtonName(c.which).toLatin1().constData());
        EXPECT_EQ(shell::Settings().read({"Couleurs de l'interface", c.key}),
                  QStringLiteral("255"));
    }
    EXPECT_EQ(button("CmdCOPIER")->startColour(), 0x0000FFu);
    EXPECT_EQ(button("CmdDeplaceFen")->lightColour(), 0x0000FFu);
    auto* fond = m_window->findChild<browser::ui::IconGridView*>(QStringLiteral("Fond"));
    EXPECT_EQ(fond->background(), 0x0000FFu);
    EXPECT_EQ(
        m_window->findChild<platform::GradientPanel*>(QStringLiteral("NbrIco"))->startColour(),
        0x0000FFu);
}

TEST_F(PopUpInfosTest, ResetWritesAndShowsTheDefaultsAtOnce) {
    openPanel();
    m_dialogs.chooseColourValue(0x000000);
    click("CmdCoulFondFen");
    EXPECT_EQ(m_window->palette().color(QPalette::Window), QColor(0, 0, 0));
    openPanel();
    click("CmdReset");
    EXPECT_EQ(prefs().colours, shell::ColourScheme::defaults());
    EXPECT_EQ(shell::Settings().read(shell::keys::kGradientStart), QStringLiteral("8421376"));
    EXPECT_EQ(m_window->palette().color(QPalette::Window), QColor(0, 128, 128));
}

TEST_F(PopUpInfosTest, RemovingTheSettingsAsksFirstWithNoAsTheDefault) {
    openPanel();
    click("CmdBulAide"); // something stored
    const QString file = shell::Settings().fileName();
    ASSERT_TRUE(QFileInfo::exists(file));
    for (const auto answer : {platform::Answer::No, platform::Answer::Yes}) {
        openPanel();
        m_dialogs.answer(answer);
        click("CmdSupprCle");
        EXPECT_EQ(m_dialogs.last().buttons, platform::MessageButtons::YesNo);
        EXPECT_EQ(m_dialogs.last().defaultButton, 2);
        EXPECT_EQ(QFileInfo::exists(file), answer == platform::Answer::No);
    }
    EXPECT_FALSE(prefs().helpBubbles) << "the values in memory stay as they were";
}

TEST_F(PopUpInfosTest, The65536ColourModeCannotBeHadOnATrueColourScreen) {
    openPanel();
    click("cmd65536");
    EXPECT_FALSE(control("PopUpInfos")->isVisible());
    EXPECT_EQ(m_dialogs.asked().size(), 1u);
    EXPECT_EQ(m_sound.clicks, 0);
}

using browsertest::RealIconsFenPrin;

TEST_F(RealIconsFenPrin, PopUpInfosScreenshot) {
    m_window->openFolder(realIconFolder());
    click("CmdApropos");
    testsupport::saveScreenshot(*m_window, QStringLiteral("PopUpInfos"));
}

} // namespace

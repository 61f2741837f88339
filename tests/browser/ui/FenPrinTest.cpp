#include "icon/FileBytes.h"
#include "tests/browser/ui/FenPrinFixture.h"

#include "browser/ui/CentrePicture.h"
#include "browser/ui/IconGridView.h"
#include "shell/AppState.h"
#include "tests/support/Screenshot.h"

#include <QComboBox>
#include <QListWidget>

namespace {

using browsertest::FenPrinFixture;
using browsertest::RealIconsFenPrin;
using platform::Asked;

TEST_F(FenPrinFixture, TheWindowHasItsSizeAndShowsTheFolderCountAndPath) {
    EXPECT_EQ(m_window->size(), QSize(524, 363));
    EXPECT_TRUE(m_window->windowFlags() & Qt::FramelessWindowHint);
    const QString folder = iconFolder(12);
    m_window->openFolder(folder);
    EXPECT_EQ(m_window->countText(), QStringLiteral("12 icônes"));
    EXPECT_EQ(m_window->pathText(), (folder + QStringLiteral("/icon0001.ico")).toLower());
    auto* list = m_window->findChild<QListWidget*>(QStringLiteral("Repertoire"));
    EXPECT_EQ(list->currentItem()->text(), QStringLiteral("icônes12"));
    auto* drives = m_window->findChild<QComboBox*>(QStringLiteral("Lecteur"));
    EXPECT_GT(drives->count(), 0);
    EXPECT_TRUE(button("DeplaceHaut")->isEnabled());
}

TEST_F(FenPrinFixture, ChoosingADriveOpensItsRoot) {
    m_window->openFolder(iconFolder(4));
    auto* drives = m_window->findChild<QComboBox*>(QStringLiteral("Lecteur"));
    ASSERT_EQ(drives->itemData(0).toString(), QStringLiteral("/"));
    emit drives->activated(0);
    EXPECT_EQ(m_window->grid().folder(), QStringLiteral("/"));
    auto* list = m_window->findChild<QListWidget*>(QStringLiteral("Repertoire"));
    EXPECT_EQ(list->currentItem()->text(), QStringLiteral("/"));
    EXPECT_TRUE(m_dialogs.asked().empty());
}

TEST_F(FenPrinFixture, AnEmptyFolderDisablesTheFileCommandsAndTheMoves) {
    m_window->openFolder(iconFolder(5));
    m_window->openFolder(iconFolder(0));
    EXPECT_EQ(m_window->countText(), QStringLiteral("Dossier vide..."));
    EXPECT_EQ(m_window->pathText(),
              QStringLiteral("Sélectionnez un dossier contenant des icônes (*.ico)"));
    for (const char* name : {"CmdCOPIER", "CmdRename", "CmdSuppr", "CmdIcoBmp", "CmdCopImg",
                             "DeplaceDebut", "DeplaceHaut", "DeplaceBas", "DeplaceFin"})
        EXPECT_FALSE(button(name)->isEnabled()) << name;
    EXPECT_TRUE(button("CmdIco48")->isEnabled());
    EXPECT_TRUE(button("CmdCoulFond")->isEnabled());
}

TEST_F(FenPrinFixture, CommandsOfLaterWindowsAreInPlaceButDisabled) {
    m_window->openFolder(iconFolder(3));
    for (const char* name :
         {"CmdCOPIER", "CmdRename", "CmdSuppr", "CmdCopImg", "CmdIcoBmp", "CmdVisuBmp", "CmdDLL",
          "CmdIcoBmpDLL", "CmdEditer", "CmdPaint", "CmdPressPap", "CmdAide"}) {
        ASSERT_NE(button(name), nullptr) << name;
        EXPECT_FALSE(button(name)->isEnabled()) << name;
    }
    m_window->setCommandReady(QStringLiteral("CmdRename"));
    EXPECT_TRUE(button("CmdRename")->isEnabled());
    m_window->openFolder(iconFolder(0));
    EXPECT_FALSE(button("CmdRename")->isEnabled()) << "a file command needs an icon";
}

TEST_F(FenPrinFixture, TheMoveButtonsWithTheirLeftAndRightButtons) {
    m_window->openFolder(iconFolder(100));
    const struct {
        const char* name;
        bool right;
        int expected;
    } steps[] = {
        {"DeplaceHaut", false, 43}, {"DeplaceHaut", false, 85}, {"DeplaceHaut", false, 100},
        {"DeplaceBas", false, 58},  {"DeplaceBas", true, 51},   {"DeplaceHaut", true, 58},
        {"DeplaceDebut", false, 1}, {"DeplaceBas", true, 1},    {"DeplaceFin", false, 100}};
    for (const auto& step : steps) {
        if (step.right)
            rightPress(step.name);
        else
            click(step.name);
        EXPECT_EQ(m_window->grid().current(), step.expected)
            << step.name << (step.right ? " right" : "");
    }
    EXPECT_EQ(m_window->pathText(),
              (m_window->grid().folder() + QStringLiteral("icon0100.ico")).toLower());
}

TEST_F(FenPrinFixture, AClickOnACellCentresItsIcon) {
    m_window->openFolder(iconFolder(100));
    click("DeplaceHaut"); // 43
    auto* fond = m_window->findChild<browser::ui::IconGridView*>(QStringLiteral("Fond"));
    QTest::mouseClick(fond, Qt::LeftButton, {}, QPoint(8 + 5, 8 + 5)); // cell 0
    EXPECT_EQ(m_window->grid().current(), 19);
    QTest::mouseClick(fond, Qt::LeftButton, {}, QPoint(41, 10)); // between two cells
    EXPECT_EQ(m_window->grid().current(), 19);
    QTest::mouseClick(fond, Qt::LeftButton, {}, QPoint(8 + 36 * 6 + 3, 8 + 36 * 6 + 3)); // cell 48
    EXPECT_EQ(m_window->grid().current(), 43);
}

TEST_F(FenPrinFixture, TheFortyEightSwitchShowsItsGridAndRemembersIt) {
    m_window->openFolder(iconFolder(100));
    click("DeplaceHaut"); // 43 at 32×32
    auto* fond48 = control("Fond48");
    EXPECT_FALSE(fond48->isVisible());
    click("CmdIco48");
    EXPECT_TRUE(fond48->isVisible());
    EXPECT_EQ(fond48->pos(), QPoint(219, 56));
    EXPECT_EQ(button("CmdIco48")->text(), QStringLiteral("Icônes 48x48 «"));
    EXPECT_EQ(shell::Settings().read(shell::keys::kIcons48), QStringLiteral("Oui"));
    EXPECT_EQ(m_window->grid().current(), 1);
    click("DeplaceHaut");
    EXPECT_EQ(m_window->grid().current(), 21);
    auto* grid48 = static_cast<browser::ui::IconGridView*>(fond48);
    QTest::mouseClick(grid48, Qt::LeftButton, {}, QPoint(4 + 2, 4 + 2)); // cell 0
    EXPECT_EQ(m_window->grid().current(), 9);
    click("CmdIco48");
    EXPECT_FALSE(fond48->isVisible());
    EXPECT_EQ(button("CmdIco48")->text(), QStringLiteral("Icônes 48x48"));
    EXPECT_EQ(shell::Settings().read(shell::keys::kIcons48), QStringLiteral("Non"));
    EXPECT_EQ(m_window->grid().current(), 43);
}

TEST_F(FenPrinFixture, AFileRemovedBehindTheProgramsBackIsReported) {
    const QString folder = iconFolder(100);
    m_window->openFolder(folder);
    QFile::remove(QDir(folder).filePath(QStringLiteral("icon0050.ico")));
    click("DeplaceHaut");
    ASSERT_EQ(m_dialogs.asked().size(), 1u);
    const Asked& asked = m_dialogs.last();
    EXPECT_EQ(asked.title, QStringLiteral("Fichier non trouvé"));
    EXPECT_EQ(asked.text, QStringLiteral("Vous avez probablement supprimé une icône depuis "
                                         "l'Explorateur.\nCliquez sur le nom du dossier ouvert "
                                         "pour réactualiser la fenêtre d'affichage."));
    EXPECT_EQ(asked.icon, platform::MessageIcon::Exclamation);
    EXPECT_EQ(asked.buttons, platform::MessageButtons::Ok);
    // A click on the open folder's name lists it again.
    auto* list = m_window->findChild<QListWidget*>(QStringLiteral("Repertoire"));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->currentItem()).center());
    EXPECT_EQ(m_window->countText(), QStringLiteral("99 icônes"));
    click("DeplaceHaut");
    EXPECT_EQ(m_dialogs.asked().size(), 1u);
}

TEST_F(FenPrinFixture, AFolderRemovedBehindTheProgramsBackIsReportedAndTheGridStays) {
    const QString parent = iconFolder(7);
    QDir().mkpath(parent + QStringLiteral("/sous-dossier"));
    m_window->openFolder(parent);
    auto* list = m_window->findChild<QListWidget*>(QStringLiteral("Repertoire"));
    QListWidgetItem* child = list->item(list->count() - 1);
    ASSERT_EQ(child->text(), QStringLiteral("sous-dossier"));
    QDir(parent + QStringLiteral("/sous-dossier")).removeRecursively();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(child).center());
    ASSERT_EQ(m_dialogs.asked().size(), 1u);
    EXPECT_EQ(m_dialogs.last().title, QStringLiteral("Chemin d'accès introuvable"));
    EXPECT_EQ(m_dialogs.last().text, QStringLiteral("Vous avez probablement supprimé ce dossier "
                                                    "depuis l'Explorateur.\nCliquez sur un nom de "
                                                    "dossier valide."));
    EXPECT_EQ(m_dialogs.last().icon, platform::MessageIcon::Exclamation);
    EXPECT_EQ(m_window->countText(), QStringLiteral("7 icônes"));
}

TEST_F(FenPrinFixture, GridAndCentreBackgrounds) {
    m_window->openFolder(iconFolder(3));
    auto* fond = m_window->findChild<browser::ui::IconGridView*>(QStringLiteral("Fond"));
    m_dialogs.chooseColourValue(0x0000FF);
    click("CmdCoulFond");
    EXPECT_EQ(fond->background(), 0x0000FFu);
    m_dialogs.chooseColourValue(0x00FF00);
    rightPress("CmdCoulFond");
    EXPECT_EQ(fond->centre().background(), 0x00FF00u);
    m_dialogs.cancel();
    click("CmdCoulFond");
    EXPECT_EQ(fond->background(), 0x0000FFu) << "a cancel changes nothing";
    QTest::mousePress(fond, Qt::RightButton, {}, QPoint(2, 2));
    EXPECT_EQ(fond->background(), 0xD2D200u);
    EXPECT_EQ(fond->centre().background(), 0xD2D200u);
    EXPECT_EQ(shell::Settings().read(shell::keys::kViewing), QString()) << "never stored";
}

TEST_F(FenPrinFixture, TheCentrePictureHandsTheRealPathToTheEditor) {
    const QString folder = iconFolder(2);
    QFile::rename(QDir(folder).filePath(QStringLiteral("icon0001.ico")),
                  QDir(folder).filePath(QStringLiteral("Grand.ICO")));
    m_window->openFolder(folder);
    int shown = 0;
    m_window->setEditorLauncher([&] { ++shown; });
    QWidget* centre = control("Picture24");
    QTest::mousePress(centre, Qt::RightButton);
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(m_sound.clicks, 1);
    EXPECT_EQ(shell::appState().iconToEdit,
              icon::pathFromText(QDir(folder).filePath(QStringLiteral("Grand.ICO"))));
    EXPECT_EQ(m_window->pathText(), QDir(folder).filePath(QStringLiteral("grand.ico")).toLower());
}

TEST_F(FenPrinFixture, ADoubleClickOnTheCentreReadsItsFileAgain) {
    const QString folder = iconFolder(3);
    m_window->openFolder(folder);
    const int before = m_fake.decoded;
    QWidget* centre = control("Picture24");
    QTest::mouseDClick(centre, Qt::LeftButton);
    EXPECT_EQ(m_fake.decoded, before + 1);
    EXPECT_TRUE(m_dialogs.asked().empty());
    QFile::remove(QDir(folder).filePath(QStringLiteral("icon0001.ico")));
    QTest::mouseDClick(centre, Qt::LeftButton);
    ASSERT_EQ(m_dialogs.asked().size(), 1u);
    EXPECT_EQ(m_dialogs.last().title, QStringLiteral("Fichier non trouvé"));
}

TEST_F(RealIconsFenPrin, ShowsRealIconsAt32And48) {
    const QString folder = realIconFolder();
    m_window->openFolder(folder);
    const int count = m_window->grid().count();
    EXPECT_GT(count, 100);
    EXPECT_EQ(m_window->countText(), QStringLiteral("%1 icônes").arg(count));
    click("DeplaceHaut");
    auto* fond = m_window->findChild<browser::ui::IconGridView*>(QStringLiteral("Fond"));
    int drawn = 0;
    for (int k = 0; k < 49; ++k)
        drawn += fond->cellImage(k).isNull() ? 0 : 1;
    EXPECT_GT(drawn, 40) << "the reader shows nearly every cell";
    EXPECT_EQ(fond->cellImage(0).size(), QSize(32, 32));
    testsupport::saveScreenshot(*m_window, QStringLiteral("FenPrin-32"));

    click("CmdIco48");
    click("DeplaceHaut");
    auto* fond48 = m_window->findChild<browser::ui::IconGridView*>(QStringLiteral("Fond48"));
    EXPECT_EQ(fond48->cellImage(0).size(), QSize(48, 48));
    testsupport::saveScreenshot(*m_window, QStringLiteral("FenPrin-48"));
}

} // namespace

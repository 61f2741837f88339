#include "icon/FileBytes.h"
#include "iconqt/Paths.h"
#include "tests/browser/ui/FenPrinFixture.h"

#include "browser/ui/CentrePicture.h"
#include "browser/ui/IconGridView.h"
#include "shell/AppState.h"
#include "tests/support/Screenshot.h"

#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QFontMetrics>
#include <QListWidget>
#include <QMimeData>
#include <QUrl>

namespace {

using browsertest::FenPrinFixture;
using browsertest::RealIconsFenPrin;

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

TEST_F(FenPrinFixture, EveryCaptionFitsItsButton) {
    for (auto* b : m_window->findChildren<platform::GradientButton*>()) {
        const int room = b->width() - 8;
        EXPECT_LE(QFontMetrics(b->captionFont()).horizontalAdvance(b->text()), room)
            << b->objectName().toStdString() << " \"" << b->text().toStdString() << "\"";
    }
    EXPECT_EQ(button("CmdCoulFond")->text(), QStringLiteral("Couleur du fond"))
        << "as the tips name it";
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

TEST_F(FenPrinFixture, WhatWaitsForAnotherWindowStaysDisabled) {
    m_window->openFolder(iconFolder(3));
    // The editor comes with whoever composes the program; the taken icon with the picker.
    for (const char* name : {"CmdIcoBmpDLL", "CmdEditer"}) {
        ASSERT_NE(button(name), nullptr) << name;
        EXPECT_FALSE(button(name)->isEnabled()) << name;
    }
    for (const char* name :
         {"CmdCOPIER", "CmdRename", "CmdSuppr", "CmdCopImg", "CmdPaint", "CmdPressPap", "CmdAide"})
        EXPECT_TRUE(button(name)->isEnabled()) << name;
    m_window->setCommandReady(QStringLiteral("CmdIcoBmp"));
    EXPECT_TRUE(button("CmdIcoBmp")->isEnabled());
    m_window->openFolder(iconFolder(0));
    EXPECT_FALSE(button("CmdIcoBmp")->isEnabled()) << "a file command needs an icon";
    EXPECT_TRUE(button("CmdPaint")->isEnabled()) << "an outside tool does not";
}

TEST_F(FenPrinFixture, TheMoveButtonsWithTheirLeftAndRightButtons) {
    m_window->openFolder(iconFolder(100));
    const struct {
        const char* name;
        bool right;
        int expected;
    } steps[] = {{"DeplaceHaut", false, 43}, {"DeplaceBas", false, 1},
                 {"DeplaceHaut", true, 8},   {"DeplaceBas", true, 1},
                 {"DeplaceFin", false, 100}, {"DeplaceDebut", false, 1}};
    for (const auto& step : steps) {
        if (step.right)
            rightPress(step.name);
        else
            click(step.name);
        EXPECT_EQ(m_window->grid().current(), step.expected)
            << step.name << (step.right ? " right" : "");
    }
}

TEST_F(FenPrinFixture, GridKeysReachTheGridFromTheListsReturnTheEditor) {
    const QString folder = iconFolder(100);
    m_window->openFolder(folder);
    std::filesystem::path edited;
    m_window->setEditorLauncher([&](const std::filesystem::path& icon) { edited = icon; });
    for (const char* list : {"Repertoire", "Lecteur"}) {
        QWidget* focus = control(list);
        focus->setFocus();
        const int row =
            m_window->findChild<QListWidget*>(QStringLiteral("Repertoire"))->currentRow();
        QTest::keyClick(focus, Qt::Key_End);
        EXPECT_EQ(m_window->grid().current(), 100) << list;
        QTest::keyClick(focus, Qt::Key_Home);
        QTest::keyClick(focus, Qt::Key_PageDown);
        EXPECT_EQ(m_window->grid().current(), 43) << list;
        EXPECT_EQ(m_window->findChild<QListWidget*>(QStringLiteral("Repertoire"))->currentRow(),
                  row)
            << "the folder list's highlight stays";
    }
    QTest::keyClick(control("Repertoire"), Qt::Key_Return);
    EXPECT_EQ(edited, testsupport::pathOf(QDir(folder).filePath(QStringLiteral("icon0043.ico"))));
}

TEST_F(FenPrinFixture, AnIconDroppedShowsItsFolderCentredOnIt) {
    m_window->openFolder(iconFolder(3));
    const QString other = iconFolder(60);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QDir(other).filePath(QStringLiteral("icon0050.ico")))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &drop);
    EXPECT_EQ(m_window->grid().count(), 60);
    EXPECT_EQ(m_window->grid().current(), 50);
}

TEST_F(FenPrinFixture, AClickOnACellCentresItsIcon) {
    m_window->openFolder(iconFolder(100));
    click("DeplaceHaut"); // 43
    auto* fond = m_window->findChild<browser::ui::IconGridView*>(QStringLiteral("Fond"));
    QTest::mouseClick(fond, Qt::LeftButton, {}, QPoint(8 + 5, 8 + 5)); // cell 0
    EXPECT_EQ(m_window->grid().current(), 19);
    QTest::mouseClick(fond, Qt::LeftButton, {}, QPoint(41, 10)); // between two cells
    EXPECT_EQ(m_window->grid().current(), 19);
}

TEST_F(FenPrinFixture, TheFortyEightSwitchShowsItsGridAndRemembersIt) {
    m_window->openFolder(iconFolder(100));
    click("DeplaceHaut"); // 43 at 32×32
    auto* fond48 = control("Fond48");
    EXPECT_FALSE(fond48->isVisible());
    click("CmdIco48");
    EXPECT_TRUE(fond48->isVisible());
    EXPECT_EQ(button("CmdIco48")->text(), QStringLiteral("Icônes 48x48 «"));
    EXPECT_EQ(shell::Settings().read(shell::keys::kIcons48), QStringLiteral("Oui"));
    click("DeplaceHaut");
    QTest::mouseClick(fond48, Qt::LeftButton, {}, QPoint(4 + 2, 4 + 2)); // cell 0
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
    EXPECT_EQ(m_dialogs.last().title, QStringLiteral("Fichier non trouvé"));
    EXPECT_EQ(m_window->pathText(), (folder + QStringLiteral("/icon0043.ico")).toLower())
        << "the grid shows the page it moved to";
    // A click on the open folder's name lists it again.
    auto* list = m_window->findChild<QListWidget*>(QStringLiteral("Repertoire"));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->currentItem()).center());
    EXPECT_EQ(m_window->countText(), QStringLiteral("99 icônes"));
    EXPECT_EQ(m_window->grid().current(), 43) << "the refresh keeps the index";
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
    std::filesystem::path handed;
    m_window->setEditorLauncher([&](const std::filesystem::path& icon) {
        ++shown;
        handed = icon;
    });
    QWidget* centre = control("Picture24");
    QTest::mousePress(centre, Qt::RightButton);
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(m_sound.clicks, 1);
    EXPECT_EQ(handed, iconqt::pathFromText(QDir(folder).filePath(QStringLiteral("Grand.ICO"))));
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
    // Cells are decoded at the screen's own pixels (QT_SCALE_FACTOR=2: 64 for a 32 cell).
    const double scale = m_window->devicePixelRatioF();
    EXPECT_EQ(fond->cellImage(0).size(), QSize(32, 32) * scale);
    testsupport::saveScreenshot(*m_window, QStringLiteral("FenPrin-32"));

    click("CmdIco48");
    click("DeplaceHaut");
    auto* fond48 = m_window->findChild<browser::ui::IconGridView*>(QStringLiteral("Fond48"));
    EXPECT_EQ(fond48->cellImage(0).size(), QSize(48, 48) * scale);
    testsupport::saveScreenshot(*m_window, QStringLiteral("FenPrin-48"));
}

} // namespace

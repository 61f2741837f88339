// The main window's file commands and outside tools: each control reaches its command.
#include "tests/browser/ui/FenPrinFixture.h"

#include "browser/ui/CentrePicture.h"
#include "browser/ui/FenRen.h"
#include "platform/ClipboardViewer.h"
#include "platform/HelpViewer.h"
#include "tests/support/Screenshot.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QStandardPaths>

namespace {

using browsertest::FenPrinFixture;
using platform::Asked;

class FenPrinCommands : public FenPrinFixture {
protected:
    void SetUp() override {
        FenPrinFixture::SetUp();
        m_folder = iconFolder(5);
        m_window->openFolder(m_folder);
    }
    QString iconPath(int number) const {
        return QDir(m_folder).filePath(QStringLiteral("icon%1.ico").arg(number, 4, 10, QChar('0')));
    }
    void centre(int index) {
        click("DeplaceDebut");
        for (int i = 1; i < index; ++i)
            QTest::mouseClick(control("Fond"), Qt::LeftButton, {},
                              QPoint(8 + 36 * 4 + 5, 8 + 36 * 3 + 5)); // cell 25
        ASSERT_EQ(m_window->grid().current(), index);
    }
    QString m_folder;
};

TEST_F(FenPrinCommands, CopyProposesTheNameCopiesAndRemembersTheFolder) {
    QTemporaryDir other;
    m_dialogs.chooseFile(other.filePath(QStringLiteral("copie.ico")));
    click("CmdCOPIER");
    ASSERT_EQ(m_dialogs.asked().size(), 1u);
    const Asked& asked = m_dialogs.last();
    EXPECT_EQ(asked.kind, Asked::Kind::SaveFile);
    EXPECT_EQ(asked.file.fileName, QStringLiteral("icon0001.ico"));
    EXPECT_EQ(asked.file.folder, QString()) << "no copy yet";
    QFile copy(other.filePath(QStringLiteral("copie.ico")));
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    QFile source(iconPath(1));
    ASSERT_TRUE(source.open(QIODevice::ReadOnly));
    EXPECT_EQ(copy.readAll(), source.readAll());

    m_dialogs.cancel();
    click("CmdCOPIER");
    EXPECT_EQ(m_dialogs.last().file.folder, other.path() + QLatin1Char('/'));
    EXPECT_EQ(m_dialogs.asked().size(), 2u) << "a cancel ends the command";
}

TEST_F(FenPrinCommands, ARefusedCopyAsksAgainUntilCancelled) {
    centre(3);
    m_dialogs.chooseFile(iconPath(3)); // onto itself
    m_dialogs.answer(platform::Answer::Ok);
    m_dialogs.chooseFile(iconPath(3));
    m_dialogs.answer(platform::Answer::Cancel);
    click("CmdCOPIER");
    ASSERT_EQ(m_dialogs.asked().size(), 4u);
    EXPECT_EQ(m_dialogs.asked()[1].buttons, platform::MessageButtons::OkCancel);
    EXPECT_EQ(m_dialogs.asked()[2].kind, Asked::Kind::SaveFile) << "OK shows the dialog again";

    m_dialogs.clear();
    m_dialogs.chooseFile(QDir(m_folder).filePath(QStringLiteral("absent/x.ico")));
    click("CmdCOPIER");
    EXPECT_EQ(m_dialogs.asked().size(), 2u) << "the failure is reported";
}

TEST_F(FenPrinCommands, TheRightButtonOnCopyShowsTheFolderInAnOpenDialog) {
    rightPress("CmdCOPIER");
    ASSERT_EQ(m_dialogs.asked().size(), 1u);
    EXPECT_EQ(m_dialogs.last().kind, Asked::Kind::OpenFile);
    EXPECT_EQ(m_dialogs.last().file.folder, m_window->grid().folder().chopped(1));
}

TEST_F(FenPrinCommands, RenameThroughFenRenAndATakenNameKeepsTheWindowOpen) {
    centre(2);
    bool stayedOpen = false;
    m_dialogs.onModal([&](QDialog& window) {
        auto* oldName = window.findChild<QLabel*>(QStringLiteral("AncNom"));
        auto* newName = window.findChild<QLineEdit*>(QStringLiteral("NouvNom"));
        auto* ok = window.findChild<QAbstractButton*>(QStringLiteral("CmdOK"));
        const QString old = oldName->text();
        EXPECT_EQ(QLatin1Char('/') + old, iconPath(2));
        EXPECT_EQ(newName->text(), old);
        newName->clear();
        EXPECT_FALSE(ok->isEnabled()) << "no name, no OK";
        const QString folders = old.left(old.lastIndexOf(QLatin1Char('/')) + 1);
        newName->setText(folders + QStringLiteral("icon0004"));
        QTest::mouseClick(ok, Qt::LeftButton);
        stayedOpen = window.isVisible();
        EXPECT_EQ(newName->text(), old) << "the old name is put back";
        testsupport::saveScreenshot(window, QStringLiteral("FenRen"));
        newName->setText(folders + QStringLiteral("neuf"));
        QTest::keyClick(newName, Qt::Key_Return);
    });
    click("CmdRename");
    EXPECT_TRUE(stayedOpen);
    EXPECT_EQ(m_dialogs.asked().size(), 2u) << "the taken name is reported";
    EXPECT_FALSE(QFileInfo::exists(iconPath(2)));
    EXPECT_TRUE(QFileInfo::exists(QDir(m_folder).filePath(QStringLiteral("neuf.ico"))));
    EXPECT_EQ(m_window->grid().current(), 2) << "refreshed, keeping the index";
    EXPECT_EQ(m_window->grid().count(), 5);
}

TEST_F(FenPrinCommands, DeleteSendsTheCentredIconToTheTrashAndKeepsTheIndex) {
    const QString trash =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Trash";
    centre(2);
    click("CmdSuppr");
    EXPECT_TRUE(m_dialogs.asked().empty()) << "nothing is asked";
    EXPECT_FALSE(QFileInfo::exists(iconPath(2)));
    EXPECT_TRUE(QFileInfo::exists(trash + QStringLiteral("/files/icon0002.ico")));
    EXPECT_EQ(m_window->countText(), QStringLiteral("4 icônes"));
    EXPECT_EQ(m_window->pathText(), iconPath(3).toLower()) << "the next icon takes its place";
    click("DeplaceFin");
    click("CmdSuppr");
    EXPECT_EQ(m_window->grid().current(), 3);
    EXPECT_EQ(m_window->pathText(), iconPath(4).toLower()) << "the new last one";
}

TEST_F(FenPrinCommands, ThePictureGoesToTheClipboardWithItsBackgroundAndAClick) {
    click("CmdCopImg");
    const QImage copied = QGuiApplication::clipboard()->image();
    auto* centre = m_window->findChild<browser::ui::CentrePicture*>(QStringLiteral("Picture24"));
    EXPECT_EQ(copied.convertToFormat(QImage::Format_RGB32), centre->picture());
    EXPECT_EQ(m_sound.clicks, 1);
}

TEST_F(FenPrinCommands, PaintStartsTheFirstProgramFoundOrSaysWhatToInstall) {
    click("CmdPaint");
    EXPECT_EQ(m_launcher.programs, QStringList{QStringLiteral("kolourpaint")});
    m_launcher.programs.clear();
    m_launcher.startsPrograms = false;
    click("CmdPaint");
    EXPECT_EQ(m_launcher.programs.size(), 5);
    ASSERT_EQ(m_dialogs.asked().size(), 1u);
    EXPECT_TRUE(m_dialogs.last().text.contains(QStringLiteral("kolourpaint")));
    EXPECT_EQ(m_dialogs.last().icon, platform::MessageIcon::Exclamation);
}

TEST_F(FenPrinCommands, TheClipboardViewerFollowsTheClipboard) {
    click("CmdCopImg");
    click("CmdPressPap");
    platform::ClipboardViewer* viewer = platform::ClipboardViewer::current();
    ASSERT_NE(viewer, nullptr);
    EXPECT_EQ(viewer->picture().size(), QSize(36, 36));
    testsupport::saveScreenshot(*viewer, QStringLiteral("ClipboardViewer"));
    QGuiApplication::clipboard()->setText(QStringLiteral("Bonjour"));
    EXPECT_EQ(viewer->summary(), QStringLiteral("Texte"));
    click("CmdPressPap");
    EXPECT_EQ(platform::ClipboardViewer::current(), viewer) << "one viewer for the run";
    QTest::keyClick(viewer, Qt::Key_Escape);
    EXPECT_FALSE(viewer->isVisible());
}

TEST_F(FenPrinCommands, HelpOpensTheGeneralPageAndTheRightButtonTheBrowsersPage) {
    click("CmdAide");
    EXPECT_EQ(platform::HelpViewer::currentPage(), QStringLiteral("index.html"));
    rightPress("CmdAide");
    EXPECT_EQ(platform::HelpViewer::currentPage(), QStringLiteral("visualiseur.html"));
    testsupport::saveScreenshot(*platform::HelpViewer::window(), QStringLiteral("HelpViewer"));
    platform::HelpViewer::window()->close();
}

} // namespace

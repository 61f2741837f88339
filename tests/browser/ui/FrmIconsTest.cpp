#include "browser/ui/FrmIcons.h"
#include "browser/PickerLayout.h"
#include "browser/ui/IcoWinPanel.h"
#include "platform/Services.h"
#include "platform/TitleButton.h"
#include "tests/support/Screenshot.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/SharedIconsPe.h"
#include "tests/support/TestData.h"
#include "tests/support/Widgets.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <fstream>

namespace {

using testsupport::child;
using testsupport::click;
using testsupport::pathOf;

using browser::PickerState;
using browser::ui::FrmIcons;
namespace fs = std::filesystem;

class FrmIconsTest : public ::testing::Test {
protected:
    fs::path writeFile(const char* name, const std::vector<std::uint8_t>& bytes) {
        const fs::path path = pathOf(m_dir.path()) / name;
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
        return path;
    }
    std::unique_ptr<FrmIcons> open(const fs::path& file, std::vector<fs::path> folders = {}) {
        m_state = PickerState::startingOn(file);
        auto window = std::make_unique<FrmIcons>(m_state, shell::ColourScheme{}, folders);
        window->show();
        return window;
    }
    QTemporaryDir m_dir;
    PickerState m_state;
    platform::ScriptedDialogs m_dialogs;
    platform::ServicesOverride m_services{&m_dialogs};
};

TEST_F(FrmIconsTest, ShowsAFilesIconsAndSelectsOnRelease) {
    const QString firefox = testsupport::testData("pe/penet_firefox_x64.exe");
    auto window = open(pathOf(firefox));
    EXPECT_EQ(window->findChild<platform::TitleButton*>()->text(),
              browser::picker::windowTitle(QStringLiteral("penet_firefox_x64.exe"), 6));
    EXPECT_FALSE(child<QScrollBar>(*window, "Vsb")->isEnabled());
    EXPECT_TRUE(window->cells()->isDecoded(6));

    QTest::mouseRelease(child(*window, "PicIcons"), Qt::LeftButton, {}, QPoint(3 * 38 + 10, 10));
    EXPECT_EQ(child<QLabel>(*window, "LblInfo")->text(), browser::picker::infoText(4));
    EXPECT_EQ(window->takenIcon(), 4);
    QTest::mouseRelease(child(*window, "PicIcons"), Qt::LeftButton, {}, QPoint(10, 50));
    EXPECT_EQ(window->selected(), 4) << "below the last icon nothing is selected";
    testsupport::saveScreenshot(*window, QStringLiteral("FrmIcons"));
}

TEST_F(FrmIconsTest, SixRowsScrollOverThirtyEightPixels) {
    auto window = open(writeFile("soixante.dll", testsupport::sharedIconsPe(60, 32)));
    EXPECT_EQ(child<QScrollBar>(*window, "Vsb")->maximum(), browser::PickerLayout::scrollRange(60));
    QWheelEvent wheel(QPointF(20, 20), QPointF(20, 20), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(window.get(), &wheel);
    EXPECT_EQ(child<QScrollBar>(*window, "Vsb")->value(), 38) << "the wheel turns the bar";
    EXPECT_EQ(child(*window, "PicIcons")->y(), -38);
    EXPECT_TRUE(window->cells()->isDecoded(60)) << "the last row came into view";
}

TEST_F(FrmIconsTest, AHugeFileDecodesOnlyTheRowsInView) {
    auto window = open(writeFile("immense.dll", testsupport::sharedIconsPe(30000, 256)));
    EXPECT_EQ(window->count(), 30000);
    EXPECT_TRUE(window->cells()->isDecoded(50));
    EXPECT_FALSE(window->cells()->isDecoded(61));
    auto* bar = child<QScrollBar>(*window, "Vsb");
    bar->setValue(bar->maximum());
    EXPECT_TRUE(window->cells()->isDecoded(30000));
    testsupport::saveScreenshot(*window, QStringLiteral("FrmIcons-immense"));
}

TEST_F(FrmIconsTest, AFileWithoutIconsIsReportedAndThePreviousOneStays) {
    const fs::path firefox = pathOf(testsupport::testData("pe/penet_firefox_x64.exe"));
    auto window = open(firefox);
    const QString title = window->windowTitle();
    const fs::path empty = pathOf(testsupport::testData("pe/aclock-x64-win64_no_resources.exe"));
    m_dialogs.chooseFile(QFile::decodeName(QByteArray::fromStdString(empty.native())), 3);
    click(*window, "CmdBrowse");

    ASSERT_EQ(m_dialogs.asked().size(), 2u);
    EXPECT_EQ(pathOf(m_dialogs.asked()[0].file.folder), firefox.parent_path());
    EXPECT_EQ(m_dialogs.last().text,
              browser::picker::noIconText(QStringLiteral("aclock-x64-win64_no_resources.exe")));
    EXPECT_EQ(window->windowTitle(), title);
    EXPECT_EQ(m_state.file, firefox);
    EXPECT_EQ(m_state.filterIndex, 3) << "the filter used is remembered all the same";

    const QString ani = testsupport::testData("ani/breeze_wait.ani");
    m_dialogs.chooseFile(ani, 2);
    click(*window, "CmdBrowse");
    EXPECT_EQ(m_state.file, pathOf(ani));
    testsupport::saveScreenshot(*window, QStringLiteral("FrmIcons-ani"));
}

TEST_F(FrmIconsTest, ThePanelOpensTheSystemFilesFoundAndDisablesTheOthers) {
    const fs::path windows = pathOf(m_dir.path()) / "drive_c" / "windows";
    fs::create_directories(windows / "system32");
    fs::copy_file(pathOf(testsupport::testData("pe/penet_firefox_x64.exe")),
                  windows / "system32" / "shell32.dll");
    auto window =
        open(pathOf(testsupport::testData("pe/penet_pidgin.exe")), {windows, windows / "system32"});
    auto* panel = window->findChild<browser::ui::IcoWinPanel*>();
    EXPECT_FALSE(panel->isVisible());
    click(*window, "CmdIcoWin");
    EXPECT_TRUE(panel->isVisible());
    testsupport::saveScreenshot(*window, QStringLiteral("FrmIcons-IcoWinOpts"));

    EXPECT_FALSE(child(*window, "IcoWinOpts0")->isEnabled()); // Explorer.exe
    auto* shell32 = child(*window, "IcoWinOpts13");
    ASSERT_TRUE(shell32->isEnabled());
    QTest::mouseClick(shell32, Qt::LeftButton);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(m_state.file, windows / "system32" / "shell32.dll");
    EXPECT_EQ(m_state.lastFolder, windows / "system32");
    EXPECT_EQ(window->count(), 6);
    EXPECT_TRUE(m_dialogs.asked().empty());

    click(*window, "CmdIcoWin");
    click(*window, "CmdFerMnu");
    EXPECT_FALSE(panel->isVisible());
}

} // namespace

#include "capture/ui/FrmSnap.h"
#include "capture/ui/FrmSnapShoot.h"
#include "capture/ui/VisuImg.h"
#include "platform/Services.h"
#include "tests/support/FakeDesktopGrabber.h"
#include "tests/support/Recorders.h"
#include "tests/support/Screenshot.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/Widgets.h"

#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using capture::ui::FrmSnap;
using capture::ui::FrmSnapShoot;
using capture::ui::VisuImg;
using platform::Asked;
using testsupport::child;

QSize screenSize() {
    return QGuiApplication::primaryScreen()->virtualGeometry().size();
}

void click(QWidget& window, const char* name) {
    testsupport::click(window, QString::fromLatin1(name));
}

bool enabled(QWidget& window, const char* name) {
    return child(window, QString::fromLatin1(name))->isEnabled();
}

// On the overlay: a drag from one point to another, then Enter.
platform::ScriptedDialogs::ModalScript dragThenEnter(QPoint from, QPoint to,
                                                     QString* sizeWhileDragging = nullptr) {
    return [=](QDialog& overlay) {
        QWidget* pic = overlay.findChild<QWidget*>(QStringLiteral("pic"));
        auto* size = overlay.findChild<QLabel*>(QStringLiteral("lblSize"));
        EXPECT_EQ(size->text(), QStringLiteral("000x000"));
        QTest::mousePress(pic, Qt::LeftButton, {}, from);
        QTest::mouseMove(pic, (from + to) / 2);
        QTest::mouseMove(pic, to);
        if (sizeWhileDragging)
            *sizeWhileDragging = size->text();
        QTest::mouseRelease(pic, Qt::LeftButton, {}, to);
        testsupport::saveScreenshot(overlay, QStringLiteral("capture-FrmFullScr"));
        QTest::keyClick(&overlay, Qt::Key_Return);
    };
}

class SnapShootWindow : public ::testing::Test {
protected:
    SnapShootWindow()
        : m_desktop(testsupport::patternedDesktop(screenSize()))
        , m_grabber(m_desktop)
        , m_override(&m_dialogs, &m_sound)
        , m_window(m_grabber, shell::ColourScheme()) {}

    QImage m_desktop;
    testsupport::FakeDesktopGrabber m_grabber;
    platform::ScriptedDialogs m_dialogs;
    platform::RecordingSound m_sound;
    platform::ServicesOverride m_override;
    FrmSnapShoot m_window;
};

TEST_F(SnapShootWindow, TheZoneChosenOnTheOverlayIsShownCopiedAndSaved) {
    m_window.show();
    QString sizeWhileDragging;
    m_dialogs.onModal(dragThenEnter({60, 40}, {20, 10}, &sizeWhileDragging));
    click(m_window, "CmdStart");
    EXPECT_EQ(m_dialogs.last().title, QStringLiteral("FrmFullScr"));
    EXPECT_EQ(sizeWhileDragging, QStringLiteral("41 x 31"));
    EXPECT_EQ(m_window.picture(), m_desktop.copy(20, 10, 41, 31));
    EXPECT_TRUE(enabled(m_window, "CmdCopy"));
    EXPECT_TRUE(enabled(m_window, "CmdSave"));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    testsupport::saveScreenshot(m_window, QStringLiteral("capture-FrmSnapShoot"));

    click(m_window, "CmdCopy");
    EXPECT_EQ(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32),
              m_window.picture());
    EXPECT_EQ(m_sound.clicks, 1);

    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("zone"));
    m_dialogs.cancel();
    click(m_window, "CmdSave");
    EXPECT_TRUE(QDir(folder.path()).isEmpty()) << "a cancelled save writes nothing";
    m_dialogs.chooseFile(path);
    click(m_window, "CmdSave");
    const QImage saved(path + QStringLiteral(".BMP"));
    EXPECT_EQ(saved.convertToFormat(QImage::Format_RGB32), m_window.picture());
}

TEST_F(SnapShootWindow, EscapeOrNoDesktopLeavesTheWindowAsItWas) {
    m_dialogs.onModal(dragThenEnter({10, 10}, {30, 30}));
    click(m_window, "CmdStart");
    const QImage before = m_window.picture();

    m_dialogs.onModal([](QDialog& overlay) { QTest::keyClick(&overlay, Qt::Key_Escape); });
    click(m_window, "CmdStart");
    EXPECT_EQ(m_window.picture(), before);
    EXPECT_FALSE(m_window.zone().accepted);
    EXPECT_TRUE(enabled(m_window, "CmdCopy"));

    m_grabber.fails = true;
    click(m_window, "CmdStart");
    EXPECT_EQ(m_dialogs.last().kind, Asked::Kind::Message);
    EXPECT_EQ(m_window.picture(), before);
}

TEST_F(SnapShootWindow, KeysMoveTheZoneOnTheOverlay) {
    m_dialogs.onModal([](QDialog& overlay) {
        QWidget* pic = overlay.findChild<QWidget*>(QStringLiteral("pic"));
        QTest::mouseClick(pic, Qt::LeftButton, {}, QPoint(100, 100));
        EXPECT_TRUE(overlay.findChild<QWidget*>(QStringLiteral("Node"))->isVisible());
        QTest::keyClick(&overlay, Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(&overlay, Qt::Key_Return);
    });
    click(m_window, "CmdStart");
    capture::CaptureZone expected;
    expected.press(100, 100);
    expected.release(100, 100);
    expected.moveByKey(capture::ZoneKey::Right, true, true);
    EXPECT_EQ(m_window.zone().copyRect(), expected.copyRect());
    EXPECT_EQ(m_window.picture().size(), expected.copyRect().size());
}

TEST_F(SnapShootWindow, EditorAndClipboardViewerAreReachedThroughTheirCommands) {
    int editor = 0;
    int viewer = 0;
    EXPECT_FALSE(enabled(m_window, "CmdPressPap"));
    m_window.setEditorCommand([&] { ++editor; });
    m_window.setClipboardViewerCommand([&] { ++viewer; });
    m_window.show();
    click(m_window, "CmdEdit");
    click(m_window, "CmdPressPap");
    EXPECT_EQ(editor, 1);
    EXPECT_EQ(viewer, 1);
    click(m_window, "CmdFermer");
    EXPECT_FALSE(m_window.isVisible());
    EXPECT_EQ(editor, 2);

    m_dialogs.cancel();
    click(m_window, "CmdVisuImg");
    EXPECT_EQ(m_dialogs.last().kind, Asked::Kind::OpenFile);
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String("VisuImg"))
            window->close();
}

TEST(FrmSnapOverlay, TheFrameUnderTheClickBecomesTheIcon) {
    const QImage desktop = testsupport::patternedDesktop(screenSize());
    platform::ScriptedDialogs dialogs;
    dialogs.onModal([](QDialog& overlay) {
        QTest::mouseMove(&overlay, QPoint(100, 60));
        QTest::keyClick(&overlay, Qt::Key_Right, Qt::ShiftModifier);
        testsupport::saveScreenshot(overlay, QStringLiteral("capture-FrmSnap"));
        QTest::mouseClick(&overlay, Qt::LeftButton, {}, QPoint(50, 70));
    });
    const auto planes = FrmSnap::run(desktop, dialogs);
    ASSERT_TRUE(planes);
    EXPECT_EQ(planes->image.at(0, 0), icon::rgb(34, 54, 0)) << "the frame centred on the click";

    dialogs.onModal([](QDialog& overlay) { QTest::keyClick(&overlay, Qt::Key_Escape); });
    EXPECT_FALSE(FrmSnap::run(desktop, dialogs));
    dialogs.onModal(
        [](QDialog& overlay) { QTest::mouseClick(&overlay, Qt::RightButton, {}, QPoint(50, 70)); });
    EXPECT_FALSE(FrmSnap::run(desktop, dialogs));
}

TEST(VisuImgWindow, ShowsAPictureAtItsSizeOrSaysWhyNot) {
    platform::ScriptedDialogs dialogs;
    platform::ServicesOverride services(&dialogs);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("grande image.png"));
    ASSERT_TRUE(testsupport::patternedDesktop(QSize(900, 700)).save(path));

    VisuImg viewer{shell::ColourScheme()};
    viewer.show();
    dialogs.chooseFile(path);
    click(viewer, "CmdOuvrir");
    EXPECT_EQ(viewer.picture().size(), QSize(900, 700));
    EXPECT_EQ(viewer.caption(), QStringLiteral("grande image.png  -  900 x 700 pixels"));
    EXPECT_TRUE(child(viewer, QStringLiteral("HScroll"))->isVisible());
    testsupport::saveScreenshot(viewer, QStringLiteral("capture-VisuImg"));

    EXPECT_FALSE(viewer.open(std::filesystem::path("/nulle/part.bmp")));
    EXPECT_EQ(viewer.picture().size(), QSize(900, 700));
}

} // namespace

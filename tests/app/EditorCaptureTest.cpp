#include "app/EditorHost.h"
#include "capture/ui/FrmSnapShoot.h"
#include "editor/ui/FrmIcoEd.h"
#include "platform/Services.h"
#include "tests/support/FakeDesktopGrabber.h"
#include "tests/support/ScriptedDialogs.h"

#include <QDialog>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// The editor's two captures, wired the way the program wires them.
class EditorCapture : public ::testing::Test {
protected:
    EditorCapture()
        : m_grabber(testsupport::patternedDesktop(
              QGuiApplication::primaryScreen()->virtualGeometry().size()))
        , m_override(&m_dialogs)
        , m_host([] { return 32; }) {
        m_host.setDesktopGrabber(m_grabber);
        m_host.bringUp();
    }

    editor::ui::FrmIcoEd& editor() { return m_host.editor(); }

    testsupport::FakeDesktopGrabber m_grabber;
    platform::ScriptedDialogs m_dialogs;
    platform::ServicesOverride m_override;
    app::EditorHost m_host;
};

TEST_F(EditorCapture, KTakesTheFramedZoneAsOneStepOfTheHistory) {
    bool editorHidden = false;
    m_dialogs.onModal([&](QDialog& overlay) {
        editorHidden = !editor().isVisible();
        QTest::mouseClick(&overlay, Qt::LeftButton, {}, QPoint(50, 70));
    });
    QTest::keyClick(&editor(), Qt::Key_K);
    EXPECT_TRUE(editorHidden);
    EXPECT_TRUE(editor().isVisible());
    EXPECT_EQ(m_dialogs.last().title, QStringLiteral("FrmSnap"));
    EXPECT_EQ(editor().engine().planes().image.at(0, 0), icon::rgb(34, 54, 0));
    EXPECT_TRUE(editor().engine().isModified());

    QTest::keyClick(&editor(), Qt::Key_Z);
    EXPECT_EQ(editor().engine().planes(), icon::IconPlanes::blank());
}

TEST_F(EditorCapture, GivingUpOrNoDesktopLeavesTheIconAndItsHistory) {
    m_dialogs.onModal([](QDialog& overlay) { QTest::keyClick(&overlay, Qt::Key_Escape); });
    QTest::keyClick(&editor(), Qt::Key_K);
    m_grabber.fails = true;
    QTest::keyClick(&editor(), Qt::Key_K);
    EXPECT_EQ(m_dialogs.last().title, QStringLiteral("Orvanne® - Erreur"));
    EXPECT_EQ(editor().engine().planes(), icon::IconPlanes::blank());
    EXPECT_FALSE(editor().engine().isModified());
    EXPECT_TRUE(editor().isVisible());
}

TEST_F(EditorCapture, NOpensTheCaptureWindowWhichLeadsBackToTheEditor) {
    QTest::keyClick(&editor(), Qt::Key_N);
    capture::ui::FrmSnapShoot* window = m_host.snapShoot();
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(editor().isVisible());

    QTest::mouseClick(window->findChild<QWidget*>(QStringLiteral("CmdEdit")), Qt::LeftButton);
    EXPECT_TRUE(editor().isVisible());
    EXPECT_TRUE(window->isVisible());

    QTest::keyClick(&editor(), Qt::Key_N);
    EXPECT_EQ(m_host.snapShoot(), window);
    QTest::mouseClick(window->findChild<QWidget*>(QStringLiteral("CmdFermer")), Qt::LeftButton);
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(editor().isVisible());
}

} // namespace

#include "app/EditorHost.h"
#include "app/MainWindowClose.h"
#include "browser/ThumbnailProvider.h"
#include "browser/ui/FenPrin.h"
#include "editor/ui/FrmIcoEd.h"
#include "platform/HelpViewer.h"
#include "platform/Services.h"
#include "shell/Settings.h"
#include "tests/support/Recorders.h"
#include "tests/support/Screenshot.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestData.h"

#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using platform::Asked;

class EditorHostTest : public ::testing::Test {
protected:
    void SetUp() override { shell::Settings().deleteAll(); }
    void TearDown() override { shell::Settings().deleteAll(); }

    // A folder of one real icon, shown in a main window.
    QString showFolder(const QString& name) {
        const QString path = QDir(m_dir.path()).filePath(name);
        QFile::copy(testsupport::testData(QStringLiteral("ico/valid/moz_ico-size-32x32-24bpp.ico")),
                    path);
        m_main = std::make_unique<browser::ui::FenPrin>(m_provider);
        m_main->openFolder(m_dir.path());
        m_main->show();
        return path;
    }

    QTemporaryDir m_dir;
    browser::IcoThumbnailProvider m_provider;
    platform::ScriptedDialogs m_dialogs;
    platform::RecordingSound m_sound;
    platform::RecordingLauncher m_launcher;
    platform::ServicesOverride m_services{&m_dialogs, &m_sound, &m_launcher};
    std::unique_ptr<browser::ui::FenPrin> m_main;
};

TEST_F(EditorHostTest, CmdEditerBringsAnEmptyEditorAndTheCentrePictureOneWithItsIcon) {
    const QString icon = showFolder(QStringLiteral("centre.ico"));
    app::EditorHost host([] { return 24; });
    host.attach(*m_main);
    QTest::mouseClick(m_main->findChild<QWidget*>(QStringLiteral("CmdEditer")), Qt::LeftButton);
    ASSERT_TRUE(host.hasEditor());
    editor::ui::FrmIcoEd& editor = host.editor();
    EXPECT_TRUE(editor.isVisible());
    EXPECT_FALSE(editor.document().hasOpenRequest());
    EXPECT_EQ(editor.windowTitle(), QStringLiteral("Orvanne® - Sans nom"));

    QTest::mousePress(m_main->findChild<QWidget*>(QStringLiteral("Picture24")), Qt::RightButton);
    EXPECT_EQ(m_sound.clicks, 1);
    EXPECT_EQ(editor.document().openFolder(), m_dir.path());
    // The editor's own test opens a handed-over icon from the pad; here, that it is this one.
    QTest::mousePress(editor.findChild<QWidget*>(QStringLiteral("CmdFichier")), Qt::RightButton);
    EXPECT_EQ(editor.document().iconPath(), icon);
    editor.close();
}

TEST_F(EditorHostTest, ClosingTheMainWindowClosesTheEditorThroughItsQuestionAndTheOthers) {
    showFolder(QStringLiteral("une.ico"));
    app::EditorHost host([] { return 32; });
    host.attach(*m_main);
    new app::MainWindowClose(*m_main, [&] { return host.closeEditor(); });
    host.bringUp();
    EXPECT_NE(host.editor().pos(), m_main->pos()) << "beside the browser, not over it";
    host.editor().apply(host.editor().engine().applyEffect(editor::PixelEffect::Negative));
    ASSERT_TRUE(host.editor().engine().isModified());
    ASSERT_TRUE(platform::HelpViewer::showPage(QStringLiteral("index.html")));

    m_dialogs.answer(platform::Answer::Cancel);
    m_main->close();
    ASSERT_EQ(m_dialogs.asked().size(), 1u) << "the editor's unsaved-changes prompt";
    EXPECT_TRUE(m_main->isVisible()) << "Annuler keeps both open";
    EXPECT_TRUE(host.editor().isVisible());
    EXPECT_TRUE(platform::HelpViewer::window()->isVisible());

    m_dialogs.answer(platform::Answer::No);
    m_main->close();
    EXPECT_FALSE(m_main->isVisible());
    EXPECT_FALSE(host.editor().isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(platform::HelpViewer::window(), nullptr);
}

TEST_F(EditorHostTest, AvertisComesAtTheEditorsLoadOnADisplayOfFewerColours) {
    struct Case {
        int depth;
        const char* setting; // nullptr: never set
        bool warns;
    } cases[] = {{16, nullptr, true}, {24, nullptr, false}, {16, "Non", false}};
    for (const Case& c : cases) {
        shell::Settings().deleteAll();
        if (c.setting != nullptr)
            shell::Settings().save(shell::keys::kDepthWarning, QString::fromLatin1(c.setting));
        m_dialogs.clear();
        if (c.warns)
            m_dialogs.onModal([](QDialog& dialog) {
                testsupport::saveScreenshot(dialog, QStringLiteral("Avertis"));
                dialog.findChild<QCheckBox*>(QStringLiteral("Coche1"))->click();
                dialog.reject();
            });
        const int depth = c.depth;
        app::EditorHost host([depth] { return depth; });
        host.bringUp();
        ASSERT_EQ(m_dialogs.asked().size(), c.warns ? 1u : 0u) << c.depth;
        if (c.warns) {
            EXPECT_EQ(m_dialogs.last().kind, Asked::Kind::Modal);
            EXPECT_EQ(m_dialogs.last().title, QStringLiteral("Avertis"));
            // "Ne plus poser la question" was ticked.
            EXPECT_EQ(shell::Settings().read(shell::keys::kDepthWarning), QStringLiteral("Non"));
        }
        host.editor().close();
    }
}

TEST_F(EditorHostTest, TheEffectEntriesOpenTheirDialogsOverTheEditor) {
    app::EditorHost host([] { return 24; });
    host.bringUp();
    editor::ui::FrmIcoEd& editor = host.editor();
    const std::size_t steps = editor.engine().history().undoCount();
    const struct {
        const char* pad;
        const char* list;
        int index;
        const char* dialog;
        const char* answer;
    } uses[] = {
        {"CmdCouleur", "CmdColorOpts", 2, "FrmColAdj", "CmdAnnul"},
        {"CmdEffets", "CmdEffetsOpts", 1, "FrmShades", "CmdCancel"},
        {"CmdEffets", "CmdEffetsOpts", 2, "FrmRndIcon", "CmdOK"},
    };
    for (const auto& use : uses) {
        m_dialogs.onModal([&](QDialog& d) {
            EXPECT_EQ(d.objectName(), QString::fromLatin1(use.dialog));
            EXPECT_EQ(d.parentWidget(), &editor);
            QTest::mouseClick(d.findChild<QWidget*>(QString::fromLatin1(use.answer)),
                              Qt::LeftButton);
        });
        QTest::mouseClick(editor.findChild<QWidget*>(QString::fromLatin1(use.pad)), Qt::LeftButton);
        for (auto* b : editor.findChildren<QWidget*>(QString::fromLatin1(use.list)))
            if (b->property("index").toInt() == use.index)
                QTest::mouseClick(b, Qt::LeftButton);
        EXPECT_EQ(m_dialogs.remaining(), 0) << use.dialog;
    }
    // Only the confirmed kaleidoscope became a step of the history.
    EXPECT_EQ(editor.engine().history().undoCount(), steps + 1);
    editor.engine().setModified(false);
    editor.close();
}

} // namespace

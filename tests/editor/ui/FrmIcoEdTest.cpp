#include "editor/ui/CanvasView.h"
#include "editor/ui/FrmClipData.h"
#include "editor/ui/FrmIcoEd.h"
#include "icon/FileBytes.h"
#include "icon/IcoReader.h"
#include "iconqt/Paths.h"
#include "platform/ClipboardViewer.h"
#include "platform/GradientButton.h"
#include "platform/GradientPanel.h"
#include "platform/HelpViewer.h"
#include "platform/Services.h"
#include "shell/AppState.h"
#include "shell/Settings.h"
#include "tests/support/Recorders.h"
#include "tests/support/Screenshot.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestData.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QMimeData>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace {

using editor::ui::FrmIcoEd;
using platform::Asked;

constexpr icon::Colour kRed = 0x0000FF;

class FrmIcoEdTest : public ::testing::Test {
protected:
    void SetUp() override {
        shell::Settings().deleteAll();
        m_window = std::make_unique<FrmIcoEd>();
        m_window->show();
    }
    void TearDown() override {
        m_window->engine().setModified(false);
        m_window.reset();
        shell::Settings().deleteAll();
    }

    QWidget* canvas() { return m_window->findChild<QWidget*>(QStringLiteral("PicMain")); }
    platform::GradientButton* button(const char* name) {
        return m_window->findChild<platform::GradientButton*>(QString::fromLatin1(name));
    }
    platform::GradientButton* entry(const char* name, int index) {
        for (auto* b : m_window->findChildren<platform::GradientButton*>(QString::fromLatin1(name)))
            if (b->property("index").toInt() == index)
                return b;
        return nullptr;
    }
    void click(QWidget* w) { QTest::mouseClick(w, Qt::LeftButton); }
    void click(const char* name) { click(button(name)); }
    // An entry of a pop-up pad, chosen as the user does: the pad first, then the entry.
    void choose(const char* pad, const char* name, int index) {
        click(pad);
        click(entry(name, index));
    }
    void key(Qt::Key k, Qt::KeyboardModifiers m = Qt::NoModifier) {
        QTest::keyClick(m_window.get(), k, m);
    }
    void mouse(QEvent::Type type, Qt::MouseButton b, QPoint p) {
        const Qt::MouseButtons held =
            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(b);
        QMouseEvent event(type, QPointF(p), canvas()->mapToGlobal(QPointF(p)),
                          type == QEvent::MouseMove ? Qt::NoButton : b, held, Qt::NoModifier);
        QApplication::sendEvent(canvas(), &event);
    }
    // A press, moves through the points and a release, all with one button.
    void drag(std::initializer_list<QPoint> points, Qt::MouseButton b = Qt::LeftButton) {
        mouse(QEvent::MouseButtonPress, b, *points.begin());
        for (const QPoint& p : points)
            mouse(QEvent::MouseMove, b, p);
        mouse(QEvent::MouseButtonRelease, b, *(points.end() - 1));
    }
    void chooseTool(editor::Tool tool) {
        const int n = static_cast<int>(tool) - 1;
        QTest::mouseClick(m_window->findChild<QWidget*>(QStringLiteral("PicTools")), Qt::LeftButton,
                          {}, QPoint((n % 4) * 28 + 10, (n / 4) * 26 + 10));
    }
    void pickPalette(int index, Qt::MouseButton b = Qt::LeftButton) {
        QTest::mouseClick(m_window->findChild<QWidget*>(QStringLiteral("PicPal")), b, {},
                          QPoint((index % 16) * 13 + 6, (index / 16) * 13 + 6));
    }
    QString copyOf(const QString& name) { return testsupport::copyValidIcon(name, m_dir.path()); }
    void openThroughDialog(const QString& path) {
        m_dialogs.chooseFile(path);
        choose("CmdFichier", "CmdOpen", 0);
        QTRY_VERIFY(canvas()->isEnabled());
    }
    const Asked& lastMessage() { return m_dialogs.last(); }
    const icon::IconPlanes& planes() { return m_window->engine().planes(); }

    QTemporaryDir m_dir;
    platform::ScriptedDialogs m_dialogs;
    platform::RecordingSound m_sound;
    platform::RecordingLauncher m_launcher;
    platform::ServicesOverride m_services{&m_dialogs, &m_sound, &m_launcher};
    std::unique_ptr<FrmIcoEd> m_window;
};

TEST_F(FrmIcoEdTest, TheTypicalEditEndsInA3262ByteFileWithTheDrawnPixels) {
    const QString source = copyOf(QStringLiteral("moz_ico-size-32x32-24bpp.ico"));
    openThroughDialog(source);
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("Orvanne® - moz_ico-size-32x32-24bpp.ico"));
    const icon::IconPlanes opened = planes();

    chooseTool(editor::Tool::Pencil);
    pickPalette(16 * 15 + 9); // red
    EXPECT_EQ(m_window->engine().buttonColour(0), kRed);
    drag({{55, 55}, {65, 55}, {75, 55}, {85, 55}, {95, 55}});
    for (int x = 5; x <= 9; ++x)
        EXPECT_EQ(planes().image.at(x, 5), kRed) << x;
    const icon::IconPlanes drawn = planes();

    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(planes(), opened);
    key(Qt::Key_R);
    EXPECT_EQ(planes(), drawn);

    const QString target = m_dir.filePath(QStringLiteral("dessin.ico"));
    m_dialogs.chooseFile(target);
    choose("CmdFichier", "CmdSaveAs", 0);
    ASSERT_EQ(QFileInfo(target).size(), 3262);
    const auto bytes = icon::readFileBytes(iconqt::pathFromText(target));
    const auto saved = icon::decodeIconPlanes(*bytes);
    ASSERT_TRUE(saved);
    for (int x = 5; x <= 9; ++x) {
        EXPECT_EQ(saved->image.at(x, 5), kRed);
        EXPECT_FALSE(saved->isTransparent(x, 5));
    }
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("Orvanne® - dessin.ico"));
    EXPECT_EQ(shell::Settings().read(shell::keys::kLastIcon), target);
}

TEST_F(FrmIcoEdTest, KeysUndoWithOrWithoutCtrlAndReportAnEmptyHistory) {
    chooseTool(editor::Tool::Pencil);
    drag({{15, 15}});
    key(Qt::Key_Z); // no Ctrl
    EXPECT_TRUE(planes().isTransparent(1, 1));
    EXPECT_TRUE(m_dialogs.asked().empty());
    key(Qt::Key_Z, Qt::ControlModifier);
    ASSERT_EQ(m_dialogs.asked().size(), 1u);
    EXPECT_EQ(lastMessage().text, QStringLiteral("Plus rien dans le clavier !"));
    // The list's redo: the base first (left on the redo stack by the failed undo), then the stroke.
    for (int i = 0; i < 2; ++i)
        choose("CmdEdition", "CmdEditOpts", 1);
    EXPECT_FALSE(planes().isTransparent(1, 1));
}

TEST_F(FrmIcoEdTest, CopyCutDeleteAndSelectAllWorkFromKeysAndList) {
    chooseTool(editor::Tool::Pencil);
    pickPalette(16 * 15 + 9);
    drag({{15, 15}, {25, 15}, {35, 15}}); // cells (1,1)..(3,1)
    key(Qt::Key_T);
    EXPECT_EQ(m_window->engine().selectionState(), editor::SelectionState::Drawn);
    EXPECT_EQ(m_window->engine().tool(), editor::Tool::Selection);
    key(Qt::Key_C);
    const QImage copied = QGuiApplication::clipboard()->image();
    ASSERT_EQ(copied.size(), QSize(32, 32));
    EXPECT_EQ(copied.pixelColor(2, 1), QColor(Qt::red));
    EXPECT_EQ(copied.pixelColor(0, 0), QColor(Qt::white));

    choose("CmdEdition", "CmdEditOpts", 8); // "Supprimer la sélection"
    EXPECT_TRUE(planes().isTransparent(2, 1));
    key(Qt::Key_Z);
    EXPECT_FALSE(planes().isTransparent(2, 1));

    QGuiApplication::clipboard()->clear();
    choose("CmdEdition", "CmdEditOpts", 9);
    choose("CmdEdition", "CmdEditOpts", 2); // cut
    EXPECT_TRUE(planes().isTransparent(2, 1));
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(32, 32));
    choose("CmdEdition", "CmdEditOpts", 6); // opaque paste
    EXPECT_EQ(m_window->engine().selectionState(), editor::SelectionState::Floating);
}

TEST_F(FrmIcoEdTest, ALargePictureAsksHowToShrinkAndCancelPastesNothing) {
    QImage big(64, 48, QImage::Format_RGB32);
    big.fill(Qt::blue);
    QGuiApplication::clipboard()->setImage(big);
    struct Case {
        const char* option; // nullptr: cancel
        QSize pasted;
    } cases[] = {{nullptr, {}}, {"Opt32x32", {32, 32}}, {"OptProportions", {32, 24}}};
    for (const Case& c : cases) {
        m_window->engine().NewIcon();
        m_dialogs.onModal([&](QDialog& dialog) {
            EXPECT_EQ(dialog.objectName(), QStringLiteral("FrmClipData"));
            if (c.option == nullptr) {
                testsupport::saveScreenshot(dialog, QStringLiteral("FrmClipData"));
                click(dialog.findChild<QWidget*>(QStringLiteral("CmdAnnul")));
                return;
            }
            dialog.findChild<QRadioButton*>(QString::fromLatin1(c.option))->setChecked(true);
            click(dialog.findChild<QWidget*>(QStringLiteral("CmdOK")));
        });
        key(Qt::Key_O);
        const auto& rect = m_window->engine().selectionRect();
        if (c.option == nullptr) {
            EXPECT_EQ(m_window->engine().selectionState(), editor::SelectionState::None);
        } else {
            EXPECT_EQ(QSize(rect.width() / 10, rect.height() / 10), c.pasted);
        }
    }
    // The picture floats over the icon, framed, until it is settled.
    testsupport::saveScreenshot(*m_window, QStringLiteral("FrmIcoEd-collage-flottant"));
}

TEST_F(FrmIcoEdTest, TheColourAndEffectPadsChangeTheIconAndEnableWhatTheyCan) {
    chooseTool(editor::Tool::Pencil);
    pickPalette(16 * 15 + 9);
    drag({{15, 15}});
    choose("CmdCouleur", "CmdColorOpts", 1); // negative
    EXPECT_EQ(planes().image.at(1, 1), 0xFFFF00u);
    choose("CmdEffets", "CmdEffetsOpts", 3); // left–right
    EXPECT_FALSE(planes().isTransparent(30, 1));
    choose("CmdCouleur", "CmdColorOpts", 3); // already 16 million colours
    EXPECT_EQ(m_sound.clicks, 1);

    // What waits for other windows stays disabled until it is given a command.
    click("CmdEffets");
    EXPECT_FALSE(entry("CmdEffetsOpts", 1)->isEnabled());
    bool called = false;
    m_window->setCommand(editor::Command::Gradient, [&] { called = true; });
    choose("CmdEffets", "CmdEffetsOpts", 1);
    EXPECT_TRUE(called);
}

TEST_F(FrmIcoEdTest, TrueColoursRedefineTheCellThroughTheColourDialog) {
    auto* check = m_window->findChild<QCheckBox*>(QStringLiteral("ChkPal"));
    check->setChecked(true);
    m_dialogs.cancel();
    pickPalette(1, Qt::RightButton);
    EXPECT_EQ(m_window->engine().buttonColour(1), icon::kWhite);
    m_dialogs.chooseColourValue(0x123456);
    pickPalette(1, Qt::RightButton);
    EXPECT_EQ(m_window->engine().buttonColour(1), 0x123456u);
    // A new icon brings back black and white and unticks the box.
    click("CmdFichier");
    click("CmdNew");
    EXPECT_FALSE(check->isChecked());
    EXPECT_EQ(m_window->engine().buttonColour(1), icon::kWhite);
}

TEST_F(FrmIcoEdTest, ClosingAsksFirstAndCancelKeepsTheWindowOpen) {
    struct Case {
        platform::Answer answer;
        bool closes;
    } cases[] = {
        {platform::Answer::Cancel, false},
        {platform::Answer::No, true},
    };
    chooseTool(editor::Tool::Pencil);
    for (const Case& c : cases) {
        m_window->show();
        drag({{15, 15}});
        m_dialogs.clear();
        m_dialogs.answer(c.answer);
        click("CmdFermer");
        EXPECT_EQ(m_dialogs.asked()[0].buttons, platform::MessageButtons::YesNoCancel);
        EXPECT_EQ(m_window->isVisible(), !c.closes);
    }
    EXPECT_EQ(shell::Settings().read(shell::keys::kLastIcon), QStringLiteral("Sans nom"));
    m_window->bringUp(m_dir.path());
    EXPECT_TRUE(button("CmdRappel")->isEnabled());
}

TEST_F(FrmIcoEdTest, ACentreIconHandedOverOpensFromTheFichierPadAndWarnsAtItsSave) {
    const QString world = copyOf(QStringLiteral("qt_WORLD.ico"));
    m_window->handOver(iconqt::pathFromText(world));
    QTest::mousePress(button("CmdFichier"), Qt::RightButton);
    QTest::mouseRelease(button("CmdFichier"), Qt::RightButton);
    EXPECT_TRUE(m_dialogs.asked().empty());
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("Orvanne® - qt_WORLD.ico"));
    EXPECT_FALSE(canvas()->isEnabled());
    QTRY_VERIFY(canvas()->isEnabled());
    // Its file holds several images: Save warns, and Annuler goes to Save As.
    m_dialogs.answer(platform::Answer::Cancel);
    choose("CmdFichier", "CmdSave", 0);
    EXPECT_EQ(m_dialogs.last().kind, Asked::Kind::SaveFile);
}

TEST_F(FrmIcoEdTest, AnIconDroppedOnTheWindowOpensThroughTheUnsavedChangesPrompt) {
    const QString world = copyOf(QStringLiteral("qt_WORLD.ico"));
    const auto drop = [this](const QString& file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        const QPointF at(150, 150);
        QDragEnterEvent enter(at.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(m_window.get(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent dropped(at, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(m_window.get(), &dropped);
        QTest::qWait(10);
        return true;
    };
    EXPECT_FALSE(drop(m_dir.path())) << "what is not an icon file is not taken";
    chooseTool(editor::Tool::Pencil);
    drag({{15, 15}});
    m_dialogs.answer(platform::Answer::Cancel);
    ASSERT_TRUE(drop(world));
    EXPECT_EQ(m_dialogs.asked().size(), 1u) << "the unsaved-changes prompt";
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("Orvanne® - Sans nom"));

    m_dialogs.answer(platform::Answer::No);
    ASSERT_TRUE(drop(world));
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("Orvanne® - qt_WORLD.ico"));
    EXPECT_EQ(m_window->document().iconPath(), world);
}

TEST_F(FrmIcoEdTest, TheHelpButtonsOpenTheEditorsPages) {
    const struct {
        const char* button;
        const char* page;
    } cases[] = {{"CmdAide", "editeur.html"},
                 {nullptr, "editeur.html"}, // F1
                 {"BasFichier", "editeur-fichier.html"},
                 {"BasEdition", "editeur-edition.html"},
                 {"BasEffets", "editeur-effets.html"},
                 {"BasCouleur", "editeur-couleurs.html"}};
    for (const auto& c : cases) {
        if (c.button != nullptr)
            click(c.button);
        else
            key(Qt::Key_F1);
        ASSERT_NE(platform::HelpViewer::window(), nullptr) << c.button;
        EXPECT_EQ(platform::HelpViewer::currentPage(), QString::fromLatin1(c.page));
    }
}

TEST_F(FrmIcoEdTest, TheClipboardViewerComesFromTheListAndFromP) {
    choose("CmdEdition", "CmdEditOpts", 4);
    ASSERT_NE(platform::ClipboardViewer::current(), nullptr);
    platform::ClipboardViewer::current()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(platform::ClipboardViewer::current(), nullptr);
    key(Qt::Key_P);
    ASSERT_NE(platform::ClipboardViewer::current(), nullptr);
    platform::ClipboardViewer::current()->close();
}

TEST_F(FrmIcoEdTest, ScreenshotsWithAnIconOpenAndEachPadShown) {
    openThroughDialog(copyOf(QStringLiteral("qt_WORLD.ico")));
    chooseTool(editor::Tool::Pencil);
    drag({{5, 5}, {15, 5}, {25, 15}, {35, 25}}); // x = 5 > 0: cell (0,0) painted
    testsupport::saveScreenshot(*m_window, QStringLiteral("FrmIcoEd"));
    const struct {
        const char* pad;
        const char* shot;
    } pads[] = {{"CmdFichier", "FrmIcoEd-Fichier"},
                {"CmdEdition", "FrmIcoEd-Edition"},
                {"CmdCouleur", "FrmIcoEd-Couleurs"},
                {"CmdEffets", "FrmIcoEd-Effets"}};
    for (const auto& p : pads) {
        click(p.pad);
        testsupport::saveScreenshot(*m_window, QString::fromLatin1(p.shot));
    }
    click("CmdEffets");
    EXPECT_FALSE(m_window->findChild<QWidget*>(QStringLiteral("PopUpEffets"))->isVisible());
}

} // namespace

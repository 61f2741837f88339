#include "app/EditorHost.h"

#include "browser/ui/FenPrin.h"
#include "capture/CaptureTexts.h"
#include "capture/ui/FrmSnap.h"
#include "capture/ui/FrmSnapShoot.h"
#include "effects/ui/FrmColAdj.h"
#include "effects/ui/FrmRndIcon.h"
#include "effects/ui/FrmShades.h"
#include "platform/ClipboardViewer.h"
#include "platform/DisplayMode.h"
#include "platform/GradientButton.h"
#include "platform/PlaceWindow.h"
#include "platform/Services.h"
#include "shell/AppState.h"
#include "shell/ui/Avertis.h"

#include <QDir>

namespace app {

namespace {
// A display of 24 bits or more shows 16 million colours.
constexpr int kFullColourDepth = 24;
} // namespace

EditorHost::EditorHost(std::function<int()> depth)
    : m_depth(depth ? std::move(depth) : std::function<int()>(platform::screenDepth))
    , m_grabber(&platform::desktopGrabber())
    , m_clipboardViewer([] { platform::ClipboardViewer::showViewer(); }) {}

EditorHost::~EditorHost() = default;

void EditorHost::attach(browser::ui::FenPrin& main) {
    m_main = &main;
    main.setEditorLauncher([this](const std::filesystem::path& icon) { bringUpWith(icon); });
    main.setCommandReady(QStringLiteral("CmdEditer"));
    if (auto* edit = main.findChild<platform::GradientButton*>(QStringLiteral("CmdEditer")))
        connect(edit, &QAbstractButton::clicked, this, &EditorHost::bringUp);
}

editor::ui::FrmIcoEd& EditorHost::editor() {
    if (!m_editor) {
        m_editor = std::make_unique<editor::ui::FrmIcoEd>(
            [this](QWidget& window) { warnAboutDepth(window); });
        // It first comes beside the browser; later it comes back where the user left it.
        platform::placeWindow(*m_editor,
                              m_main != nullptr && m_main->isVisible() ? m_main : nullptr);
        connectEffectDialogs(*m_editor);
        m_editor->setCaptureCommands([this] { return captureIcon(); }, [this] { showSnapShoot(); });
    }
    return *m_editor;
}

void EditorHost::connectEffectDialogs(editor::ui::FrmIcoEd& window) {
    using editor::Command;
    // Each dialog lives for one use. The canvas is redrawn whatever the answer: the colour
    // adjustment settles a floating picture before its dialog opens.
    auto* editor = &window;
    editor->setCommand(Command::AdjustColours, [editor] {
        effects::ui::FrmColAdj::run(editor->engine(), platform::dialogs(), editor);
        editor->apply(editor::kRedraw);
    });
    editor->setCommand(Command::Gradient, [editor] {
        effects::ui::FrmShades::run(editor->engine(), platform::dialogs(), editor);
        editor->apply(editor::kRedraw);
    });
    editor->setCommand(Command::Kaleidoscope, [this, editor] {
        effects::ui::FrmRndIcon::run(editor->engine(), platform::dialogs(), m_random, editor);
        editor->apply(editor::kRedraw);
    });
}

bool EditorHost::closeEditor() {
    if (!m_editor || !m_editor->isVisible())
        return true;
    return m_editor->close();
}

void EditorHost::setClipboardViewer(std::function<void()> viewer) {
    m_clipboardViewer = std::move(viewer);
    if (m_snapShoot)
        m_snapShoot->setClipboardViewerCommand(m_clipboardViewer);
}

std::optional<icon::IconPlanes> EditorHost::captureIcon() {
    // The editor has just hidden itself: the screen is read once it is gone.
    platform::letWindowsVanish();
    const platform::DesktopPicture desktop = m_grabber->grab();
    if (!desktop.ok()) {
        platform::Message message;
        message.title = QString::fromUtf8(capture::kErrorTitle);
        message.text = desktop.error;
        message.icon = platform::MessageIcon::Exclamation;
        platform::dialogs().message(message);
        return std::nullopt;
    }
    return capture::ui::FrmSnap::run(desktop.picture, platform::dialogs());
}

void EditorHost::showSnapShoot() {
    // A capture window that was closed is loaded afresh; an open one is only brought forward.
    if (!m_snapShoot || !m_snapShoot->isVisible()) {
        m_snapShoot = std::make_unique<capture::ui::FrmSnapShoot>(
            *m_grabber, shell::appState().preferences.colours);
        m_snapShoot->setEditorCommand([this] { bringUp(); });
        if (m_clipboardViewer)
            m_snapShoot->setClipboardViewerCommand(m_clipboardViewer);
        platform::placeWindow(*m_snapShoot, nullptr);
    }
    if (m_editor)
        m_editor->hide();
    m_snapShoot->show();
    m_snapShoot->raise();
    m_snapShoot->activateWindow();
}

void EditorHost::warnAboutDepth(QWidget& editor) {
    if (m_depth() >= kFullColourDepth)
        return;
    shell::ui::Avertis warning(&editor);
    platform::dialogs().runModal(warning);
}

QString EditorHost::currentFolder() const {
    return m_main != nullptr ? m_main->grid().folder() : QDir::currentPath();
}

void EditorHost::bringUp() {
    editor().bringUp(currentFolder());
}

void EditorHost::bringUpWith(const std::filesystem::path& path) {
    editor::ui::FrmIcoEd& window = editor();
    window.bringUp(currentFolder());
    window.handOver(path);
}

void EditorHost::openAtStart(const QString& commandLine) {
    if (!editor::Document::openArgument(commandLine))
        return;
    editor::ui::FrmIcoEd& window = editor();
    window.bringUp(currentFolder());
    window.readCommandLine(commandLine);
}

} // namespace app

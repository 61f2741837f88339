#include "shell/ui/EditorHost.h"

#include "browser/ui/FenPrin.h"
#include "platform/DisplayMode.h"
#include "platform/GradientButton.h"
#include "platform/Services.h"
#include "shell/AppState.h"
#include "shell/ui/Avertis.h"

#include <QDir>
#include <QGuiApplication>
#include <QScreen>

namespace shell::ui {

namespace {
// A display of 24 bits or more shows 16 million colours.
constexpr int kFullColourDepth = 24;
} // namespace

EditorHost::EditorHost(std::function<int()> depth)
    : m_depth(depth ? std::move(depth) : std::function<int()>(platform::screenDepth)) {}

EditorHost::~EditorHost() = default;

void EditorHost::attach(browser::ui::FenPrin& main) {
    m_main = &main;
    main.setEditorLauncher([this] { bringUpWith(shell::appState().iconToEdit); });
    main.setCommandReady(QStringLiteral("CmdEditer"));
    if (auto* edit = main.findChild<platform::GradientButton*>(QStringLiteral("CmdEditer")))
        connect(edit, &QAbstractButton::clicked, this, &EditorHost::bringUp);
}

editor::ui::FrmIcoEd& EditorHost::editor() {
    if (!m_editor) {
        m_editor = std::make_unique<editor::ui::FrmIcoEd>(
            [this](QWidget& window) { warnAboutDepth(window); });
        if (const QScreen* screen = QGuiApplication::primaryScreen())
            m_editor->move(screen->availableGeometry().center() - m_editor->rect().center());
    }
    return *m_editor;
}

void EditorHost::warnAboutDepth(QWidget& editor) {
    if (m_depth() >= kFullColourDepth)
        return;
    Avertis warning(&editor);
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

} // namespace shell::ui

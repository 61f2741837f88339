#pragma once

#include "editor/ui/FrmIcoEd.h"

#include <QObject>

#include <functional>
#include <memory>

namespace browser::ui {
class FenPrin;
}

namespace shell::ui {

// The icon editor of the run: created the first time it is wanted, brought up by the main
// window's `CmdEditer` and by the right button on its centre picture, and opened at start on
// the icon of "/open <path>". As it loads it warns about a display in fewer than 16 million
// colours.
class EditorHost : public QObject {
    Q_OBJECT
public:
    // `depth` gives the display's bits per pixel.
    explicit EditorHost(std::function<int()> depth = {});
    ~EditorHost() override;

    // Wires the main window's commands to the editor.
    void attach(browser::ui::FenPrin& main);
    // The editor, loading it on first use.
    editor::ui::FrmIcoEd& editor();
    bool hasEditor() const { return m_editor != nullptr; }
    // The editor's caption, empty before it exists.
    QString caption() const { return m_editor ? m_editor->windowTitle() : QString(); }
    // `CmdEditer`: the editor comes up without a path.
    void bringUp();
    // The centre picture's right button: the path is handed to the editor's Fichier pad.
    void bringUpWith(const std::filesystem::path& path);
    // The start with "/open <path>" on the command line.
    void openAtStart(const QString& commandLine);

private:
    void warnAboutDepth(QWidget& editor);
    QString currentFolder() const;

    std::function<int()> m_depth;
    browser::ui::FenPrin* m_main = nullptr;
    std::unique_ptr<editor::ui::FrmIcoEd> m_editor;
};

} // namespace shell::ui

#pragma once

#include "editor/ui/FrmIcoEd.h"
#include "effects/UniformGenerator.h"
#include "platform/DesktopGrab.h"

#include <QObject>

#include <functional>
#include <memory>

namespace browser::ui {
class FenPrin;
}

namespace capture::ui {
class FrmSnapShoot;
}

namespace app {

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
    // Closes the editor when it is open, through its question about unsaved changes; false
    // when the user chose to keep it open.
    bool closeEditor();

    // Where the captures read the desktop (the session's own way unless a test gives one).
    void setDesktopGrabber(platform::DesktopGrabber& grabber) { m_grabber = &grabber; }
    // The clipboard viewer of the capture window's `CmdPressPap` (the program's own unless a
    // test gives another).
    void setClipboardViewer(std::function<void()> viewer);
    // The capture window while it is loaded.
    capture::ui::FrmSnapShoot* snapShoot() const { return m_snapShoot.get(); }

private:
    void warnAboutDepth(QWidget& editor);
    void connectEffectDialogs(editor::ui::FrmIcoEd& editor);
    std::optional<icon::IconPlanes> captureIcon();
    void showSnapShoot();
    QString currentFolder() const;

    std::function<int()> m_depth;
    browser::ui::FenPrin* m_main = nullptr;
    std::unique_ptr<editor::ui::FrmIcoEd> m_editor;
    // The kaleidoscope's dots, seeded from the clock once for the run.
    effects::StdUniformGenerator m_random;
    platform::DesktopGrabber* m_grabber = nullptr;
    std::function<void()> m_clipboardViewer;
    std::unique_ptr<capture::ui::FrmSnapShoot> m_snapShoot;
};

} // namespace app

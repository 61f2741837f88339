#pragma once

#include "capture/CaptureZone.h"
#include "platform/DesktopGrab.h"
#include "shell/ColourScheme.h"

#include <QImage>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

namespace platform {
class GradientButton;
}

namespace capture::ui {

class ScrolledPicture;
class VisuImg;

// The capture window: "Lancer la capture de zone" freezes the desktop and lets the user pick
// a zone on the full-screen overlay; the zone is then shown in `picS` and can be copied to the
// clipboard, saved as a bitmap, or taken to the editor.
class FrmSnapShoot : public QWidget {
    Q_OBJECT
public:
    // The desktop is taken through `grabber`, which the window does not own; `colours` is the
    // interface scheme in force.
    FrmSnapShoot(platform::DesktopGrabber& grabber, const shell::ColourScheme& colours,
                 QWidget* parent = nullptr);
    ~FrmSnapShoot() override;

    // `CmdEdit` and `CmdFermer` bring the editor back; `CmdPressPap` opens the program's
    // clipboard viewer. The button stays disabled while its command is not given.
    void setEditorCommand(std::function<void()> command);
    void setClipboardViewerCommand(std::function<void()> command);

    const QImage& picture() const;
    const CaptureZone& zone() const { return m_zone; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    platform::GradientButton* addButton(const char* name, const QString& caption, const char* help,
                                        int row);
    void start();
    void copyPicture();
    void savePicture();
    void openViewer();
    void showHelp();
    void showPicture(const QImage& picture);

    platform::DesktopGrabber& m_grabber;
    shell::ColourScheme m_colours;
    CaptureZone m_zone;
    ScrolledPicture* m_picture = nullptr;
    platform::GradientButton* m_copy = nullptr;
    platform::GradientButton* m_save = nullptr;
    platform::GradientButton* m_edit = nullptr;
    platform::GradientButton* m_clipboard = nullptr;
    std::function<void()> m_editor;
    std::function<void()> m_clipboardViewer;
    std::unique_ptr<VisuImg> m_viewer;
};

} // namespace capture::ui

#pragma once

#include "editor/Document.h"
#include "editor/EditorCommands.h"
#include "editor/IconEditor.h"
#include "editor/ui/DialogDocumentHost.h"
#include "icon/IconPlanes.h"

#include <QWidget>

#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

class QCheckBox;
class QLabel;
class QMimeData;
class QTimer;

namespace platform {
class GradientButton;
class GradientPanel;
} // namespace platform

namespace editor::ui {

class CanvasView;
class PaletteView;
class PreviewView;
class ToolPadView;

// The icon editor: the canvas, the preview, the tool pad, the palette with its two swatches
// and the position readout, and the four pads Fichier, Edition, Couleurs and Effets. It turns
// mouse, keys and commands into calls on the engine and the document, and paints what they
// hold. One window serves the whole run; closing it unloads its document.
class FrmIcoEd : public QWidget {
    Q_OBJECT
public:
    // Run as the window loads when the colour-depth warning is asked for ("Affichage" at
    // "Oui"); it decides whether the display deserves the warning.
    using LoadNotice = std::function<void(QWidget& editor)>;

    explicit FrmIcoEd(LoadNotice notice = {}, QWidget* parent = nullptr);
    ~FrmIcoEd() override;

    IconEditor& engine() { return m_engine; }
    Document& document() { return *m_document; }

    // Brings the window up (restored when minimised), loading it first when it was closed;
    // the Open dialog then starts on `currentFolder`.
    void bringUp(const QString& currentFolder);
    // The browser's centre icon: the Fichier pad opens it without a dialog.
    void handOver(const std::filesystem::path& path);
    // The program's command line: "/open <path>" opens that icon at once.
    void readCommandLine(const QString& commandLine);
    // Gives a command that needs another window (a dialog, the clipboard viewer, a capture)
    // its action; its entry stays disabled until then, and an empty action disables it again.
    void setCommand(Command command, std::function<void()> run);
    // Runs a command of the pads as chosen from a pad or by its key; false when it has nothing
    // to run yet.
    bool runCommand(Command command, Origin origin);

    // The two captures come from the capture windows. "Capturer    Ctrl+K" hides the editor
    // and asks `screen` for an icon made from the desktop (nothing when the user gave up);
    // "Capturer une zone d'image    Ctrl+N" runs `zone`. An entry without its command stays
    // disabled.
    using ScreenCapture = std::function<std::optional<icon::IconPlanes>()>;
    void setCaptureCommands(ScreenCapture screen, std::function<void()> zone);

    // Acts on what the engine answered: repaints, beeps, swatches, tool pad, palette, readout.
    void apply(Events events);
    QString positionText() const;
    bool isLoaded() const { return m_loaded; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    static std::optional<std::filesystem::path> droppedPath(const QMimeData* data);
    void load();
    void buildTitleRow();
    void buildWorkArea();
    void buildPads();
    platform::GradientPanel* buildPad(const char* name, int x, int rows, int width);
    platform::GradientButton* addButton(QWidget* parent, const char* name, const QString& caption,
                                        const QString& help, const QRect& place);
    platform::GradientButton* addEntry(platform::GradientPanel* pad, const char* name, int index,
                                       const char* text, int row, int width);
    void showPad(platform::GradientPanel* pad);
    void hidePads();
    void applyColours();

    // Commands.
    enum class FileCommand { New, Open, Save };
    void runFileCommand(const std::function<bool()>& command, FileCommand kind);
    void cut();
    void copy();
    void paste(bool opaque);
    void CaptureScreenArea();
    void paletteReleased(int button, double x, double y);
    void showSixteenMillionColours();
    void showKeyboardError();
    void showHelp(int context);
    void refreshAll();

    IconEditor m_engine;
    DialogDocumentHost m_host;
    std::unique_ptr<Document> m_document;
    LoadNotice m_notice;
    bool m_loaded = false;

    CanvasView* m_canvas = nullptr;
    PreviewView* m_preview = nullptr;
    ToolPadView* m_tools = nullptr;
    PaletteView* m_palette = nullptr;
    QLabel* m_position = nullptr;
    QCheckBox* m_trueColours = nullptr;
    platform::GradientButton* m_title = nullptr;
    platform::GradientButton* m_recall = nullptr;
    platform::GradientPanel* m_filePad = nullptr;
    platform::GradientPanel* m_editPad = nullptr;
    platform::GradientPanel* m_colourPad = nullptr;
    platform::GradientPanel* m_effectsPad = nullptr;
    static constexpr std::size_t kCommandCount =
        static_cast<std::size_t>(Command::ReflectBottomOntoTop) + 1;
    std::array<platform::GradientButton*, kCommandCount> m_entries{};
    std::array<std::function<void()>, kCommandCount> m_commands;
    ScreenCapture m_screenCapture;
    QTimer* m_timer1 = nullptr;
};

} // namespace editor::ui

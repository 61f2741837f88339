#pragma once

#include "editor/Document.h"
#include "editor/IconEditor.h"
#include "editor/ui/DialogDocumentHost.h"
#include "effects/UniformGenerator.h"

#include <QWidget>

#include <array>
#include <functional>
#include <memory>

class QCheckBox;
class QLabel;
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

    // The effect entries that open a dialog of their own. The window connects them to its
    // effect dialogs as it is built; setDialogCommand() puts another command in an entry's
    // place, and an empty one disables the entry.
    enum class DialogEntry { AdjustColours, Gradient, Kaleidoscope };

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
    void setDialogCommand(DialogEntry entry, std::function<void()> command);

    // Acts on what the engine answered: repaints, beeps, swatches, tool pad, palette, readout.
    void apply(Events events);
    QString positionText() const;
    bool isLoaded() const { return m_loaded; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void load();
    void buildTitleRow();
    void buildWorkArea();
    void buildPads();
    void connectEffectDialogs();
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
    void runEditOption(int index);
    void runColourOption(int index);
    void runEffectOption(int index);
    void runMirrorOption(int index);
    void undoOrRedo(bool undo, bool dropSelectionFirst);
    void cut();
    void copy();
    void paste(bool opaque);
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
    std::array<platform::GradientButton*, 4> m_mirror{};
    std::array<platform::GradientButton*, 3> m_dialogEntries{};
    std::array<std::function<void()>, 3> m_dialogCommands;
    // The kaleidoscope's dots, seeded from the clock once, as the window loads.
    effects::StdUniformGenerator m_random;
    QTimer* m_timer1 = nullptr;
};

} // namespace editor::ui

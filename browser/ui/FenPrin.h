#pragma once

#include "browser/BmpExport.h"
#include "browser/IconGrid.h"
#include "browser/PickerState.h"
#include "browser/ThumbnailProvider.h"
#include "browser/Volumes.h"

#include <QPointer>
#include <QSet>
#include <QWidget>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QComboBox;
class QDragEnterEvent;
class QDropEvent;
class QKeyEvent;
class QShowEvent;
class QLabel;
class QListWidget;
class QListWidgetItem;

namespace platform {
class GradientButton;
class GradientPanel;
} // namespace platform

namespace browser::ui {

class IconGridView;
class PopUpInfos;
class VisuBMP;

// The main window: drive and folder lists, the grid of icons around the centred one, the
// commands on the centred icon and the pop-up panel of preferences.
class FenPrin : public QWidget {
    Q_OBJECT
public:
    // The provider decodes the cells; the window does not own it.
    explicit FenPrin(const ThumbnailProvider& provider, QWidget* parent = nullptr);
    ~FenPrin() override;

    enum class MissingFolder { Report, KeepQuiet };
    // Opens a folder as a click in the folder list does (the start-up folder, tests). A folder
    // that cannot be read is reported, or passed over in silence as a drive that cannot be read.
    void openFolder(const QString& folder, MissingFolder report = MissingFolder::Report);
    // The same for a folder named by the file system's bytes (its name need not be valid text).
    void openFolder(const std::filesystem::path& folder,
                    MissingFolder report = MissingFolder::Report);
    // The scan of the folder shown, keeping the index (after a copy, rename or delete).
    void reactualiser();
    // Applies the interface colours to every control of the window.
    void applyColours();

    const IconGrid& grid() const { return m_grid; }
    QString countText() const;
    QString pathText() const;
    // The icon editor, brought up by the centre picture's right button once it exists.
    void setEditorLauncher(std::function<void(const std::filesystem::path& icon)> launcher) {
        m_showEditor = std::move(launcher);
    }
    // Marks a command as working: it is enabled with the other file commands.
    void setCommandReady(const QString& name);

    // The icon last taken from an ANI, DLL, EXE or ICL file (`PicIcon`), and the picker's memory.
    const icon::Frame& takenIcon() const { return m_taken; }
    const PickerState& pickerState() const { return m_picker; }

signals:
    void aboutRequested();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void buildTitleRow();
    void buildLists();
    void buildCommands();
    void buildGrid();
    void buildMoves();
    platform::GradientButton* addCommand(const char* name, const QString& caption,
                                         const QString& help, const QRect& place);

    bool gridKeyPressed(QKeyEvent* event);
    void showFolderMissing();
    void showScanResult(ScanResult result);
    void displayGrid();
    void clearGrid();
    void enableCommands(bool on);
    void moveIndex(const std::function<void()>& step);
    void fillFolderList(const std::filesystem::path& folder);
    void folderItemClicked(QListWidgetItem* item);
    void driveChosen(int index);
    void switchView();
    void centreRightPressed();
    void reloadCentre();
    void chooseGridBackground(bool centre);
    void showFileMissing();
    void hidePopUp();
    void togglePopUp();
    void placeGrids();
    void buildExtraction();
    void takeIconFromFile();
    void iconToBmp();
    void takenIconToBmp();
    void saveBmp(const QString& proposed, const icon::Frame& picture);
    void showBmpViewer();

    // The commands on the centred icon and the outside tools.
    void connectFileCommands();
    void copyCentred();
    void showExplorer();
    void renameCentred();
    void trashCentred();
    void copyPicture();
    void startPaint();
    void showClipboard();
    void showHelp(bool browserPage);

    IconGrid m_grid;
    std::vector<Volume> m_volumes;
    QString m_folder;
    QComboBox* m_drives = nullptr;
    QListWidget* m_folders = nullptr;
    IconGridView* m_fond = nullptr;
    IconGridView* m_fond48 = nullptr;
    platform::GradientPanel* m_path = nullptr;
    platform::GradientPanel* m_count = nullptr;
    PopUpInfos* m_popUp = nullptr;
    QSet<QString> m_ready;
    std::function<void(const std::filesystem::path& icon)> m_showEditor;
    // Where the copy dialog opens: the folder of the last copy, for the whole run.
    QString m_copyFolder;
    PickerState m_picker;
    std::vector<std::filesystem::path> m_windowsFolders; // Wine's, for the picker's panel
    BmpExport m_bmp;
    QString m_bmpName;   // the name the save dialog was left with
    icon::Frame m_taken; // PicIcon
    QLabel* m_picIcon = nullptr;
    QPointer<VisuBMP> m_visuBmp;
    // The icon a drop asked to centre once its folder is listed.
    std::optional<std::filesystem::path> m_centreOn;
    bool m_followsScreen = false;
};

} // namespace browser::ui

#pragma once

#include "browser/PickerCells.h"
#include "browser/PickerState.h"
#include "shell/ColourScheme.h"

#include <QDialog>

#include <filesystem>
#include <optional>
#include <vector>

class QLabel;
class QScrollBar;

namespace platform {
class TitleButton;
}

namespace browser::ui {

class IcoWinPanel;
class PickerGrid;

// The icon picker: every icon of an ANI, DLL, EXE or ICL file in a scrolling grid, one of
// them selected. It opens on the file the run last showed; its open dialog and the panel of
// system files choose another. Accepted ("Ok"), it says which icon the user chose.
class FrmIcons : public QDialog {
    Q_OBJECT
public:
    FrmIcons(PickerState& state, const shell::ColourScheme& colours,
             const std::vector<std::filesystem::path>& windowsFolders, QWidget* parent = nullptr);
    ~FrmIcons() override;

    // Shows a file's icons; a file without any is reported and the previous one stays.
    bool openFile(const std::filesystem::path& file);
    void select(int number);

    int selected() const { return m_selected; }
    int count() const { return m_cells ? m_cells->count() : 0; }
    const PickerCells* cells() const { return m_cells ? &*m_cells : nullptr; }
    // The icon of the file the browser takes for the selection (from 1).
    int takenIcon() const;
    // Decodes the rows in view within one pass's budget; true when they are all there.
    bool decodeRowsInView();

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void browse();
    void scrolled(int value);
    void scheduleDecoding();

    PickerState& m_state;
    std::optional<PickerCells> m_cells;
    int m_selected = 0;
    bool m_decodingScheduled = false;
    platform::TitleButton* m_title = nullptr;
    QWidget* m_frame = nullptr;
    PickerGrid* m_grid = nullptr;
    QScrollBar* m_bar = nullptr;
    QLabel* m_info = nullptr;
    IcoWinPanel* m_panel = nullptr;
};

} // namespace browser::ui

#pragma once

#include "browser/FolderScan.h"
#include "browser/GridGeometry.h"
#include "browser/ThumbnailProvider.h"

#include "icon/IconBitmap.h"

#include <QString>

#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace browser {

// What a cell of the grid holds once loaded.
struct Thumbnail {
    enum class State { Icon, Unreadable, Missing };
    State state = State::Missing;
    icon::IconBitmap bitmap; // size×size when state is Icon
};

enum class ScanResult { Listed, Empty, FolderMissing };

// The rules of the browser's grid: the folder, the two views with their own list and index,
// paging and line moves, the texts under and above the grid, and the cells' pictures. Only the
// list of the view in use is filled; a view switch lists the folder again for the other view.
class IconGrid {
public:
    explicit IconGrid(const ThumbnailProvider& provider);

    GridView view() const { return m_view; }
    const GridGeometry& geometry() const;
    // Chooses the view without listing anything (used once, before the first folder).
    void setView(GridView view) { m_view = view; }

    // A change of folder: lists it and centres its first icon. When the folder cannot be read
    // everything stays as it was.
    ScanResult openFolder(const std::filesystem::path& folder);
    ScanResult openFolder(const QString& folder);
    // The same folder listed again, keeping the view's index within 1 .. count.
    ScanResult refresh();
    // Flips the view, then refreshes the new one (which comes back at its own last index).
    ScanResult switchView();

    // Moves, each clamped to 1 .. count. Nothing moves in an empty folder.
    void pageNext() { moveTo(current() + geometry().pageStep()); }
    void pagePrevious() { moveTo(current() - geometry().pageStep()); }
    void lineNext() { moveTo(current() + geometry().lineStep()); }
    void linePrevious() { moveTo(current() - geometry().lineStep()); }
    void first() { moveTo(1); }
    void last() { moveTo(count()); }
    void clickCell(int cell);

    // The folder shown, with its trailing "/": as text, and as the file system's bytes.
    QString folder() const;
    const std::filesystem::path& folderPath() const { return m_folder; }
    int count() const { return static_cast<int>(state().entries.size()); }
    int current() const { return state().current; }
    // The list entry (1-based) a cell shows, or nothing for an empty cell.
    std::optional<int> entryOfCell(int cell) const;
    const IconEntry* centred() const;
    const std::vector<IconEntry>& entries() const { return state().entries; }

    QString pathText() const;  // Etiquette1
    QString countText() const; // NbrIco

    // Loads every visible cell that is not loaded yet. False when one of their files has gone
    // (deleted behind the program's back): its cell stays empty.
    bool loadPage();
    // The picture of a cell: nothing for an empty cell or one not loaded.
    const Thumbnail* cell(int cell) const;
    // Reads the centred file again (the centre picture's double click).
    bool reloadCentre();

private:
    struct ViewState {
        std::vector<IconEntry> entries;
        int current = 0;
    };
    ViewState& state() { return m_states[m_view == GridView::Icons48 ? 1 : 0]; }
    const ViewState& state() const { return m_states[m_view == GridView::Icons48 ? 1 : 0]; }
    void moveTo(int index);
    ScanResult list(const std::filesystem::path& folder, bool keepIndex);
    Thumbnail load(const IconEntry& entry) const;

    const ThumbnailProvider& m_provider;
    GridView m_view = GridView::Icons32;
    std::filesystem::path m_folder;
    ViewState m_states[2];
    // Decoded pictures of the view in use, kept while the folder is shown.
    std::unordered_map<std::string, Thumbnail> m_cache;
};

} // namespace browser

#pragma once

#include "browser/FolderScan.h"
#include "browser/GridGeometry.h"
#include "browser/ThumbnailCache.h"
#include "browser/ThumbnailProvider.h"

#include <QString>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace browser {

enum class ScanResult { Listed, Empty, FolderMissing };

// The rules of the browser's grid: the folder, the two views with their own list and index,
// paging and line moves, the texts under and above the grid, and the cells' pictures. Only the
// list of the view in use is filled; a view switch lists the folder again for the other view.
class IconGrid {
public:
    // A few pages' worth of decoded cells is kept: paging back and forth is instant, and the
    // memory does not grow with the folder.
    static constexpr std::size_t kCacheBytes = 4u * 1024u * 1024u;
    explicit IconGrid(const ThumbnailProvider& provider, std::size_t cacheBytes = kCacheBytes);

    GridView view() const { return m_view; }
    const GridGeometry& geometry() const;
    // Chooses the view without listing anything (used once, before the first folder).
    void setView(GridView view) { m_view = view; }
    // Screen pixels per pixel of the window: cells are decoded at their size on the screen, so
    // that they stay sharp at any scale. A change drops what was decoded at the old scale.
    void setDeviceScale(double scale);
    double deviceScale() const { return m_scale; }
    // The side of a cell's picture in screen pixels.
    int deviceSide() const;

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
    // Centres the icon file `file` when the list holds it; false otherwise.
    bool centreOn(const std::filesystem::path& file);

    // The folder shown, with its trailing "/": as text, and as the file system's bytes.
    QString folder() const;
    const std::filesystem::path& folderPath() const { return m_folder; }
    int count() const { return static_cast<int>(state().entries.size()); }
    int current() const { return state().current; }
    // The list entry (1-based) a cell shows, or nothing for an empty cell.
    std::optional<int> entryOfCell(int cell) const;
    const IconEntry* centred() const;
    const std::vector<IconEntry>& entries() const { return state().entries; }
    // The subfolders found when the folder was last listed (unsorted, by their byte names).
    const std::vector<std::string>& subfolders() const { return m_subfolders; }

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
    void fitCacheBudget();

    const ThumbnailProvider& m_provider;
    std::size_t m_cacheBytes;
    GridView m_view = GridView::Icons32;
    std::filesystem::path m_folder;
    ViewState m_states[2];
    double m_scale = 1.0;
    std::vector<std::string> m_subfolders;
    // Decoded pictures of the view in use, the least recently shown dropped past a few MB.
    ThumbnailCache m_cache;
};

} // namespace browser

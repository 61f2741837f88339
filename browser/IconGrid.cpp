#include "browser/IconGrid.h"

#include "icon/FileBytes.h"
#include "iconqt/Paths.h"

#include <QFile>

#include <algorithm>
#include <cmath>

namespace browser {

IconGrid::IconGrid(const ThumbnailProvider& provider, std::size_t cacheBytes)
    : m_provider(provider)
    , m_cacheBytes(cacheBytes)
    , m_cache(cacheBytes) {
    fitCacheBudget();
}

void IconGrid::setDeviceScale(double scale) {
    if (!(scale > 0.0) || scale == m_scale)
        return;
    m_scale = scale;
    m_cache.clear();
    fitCacheBudget();
}

int IconGrid::deviceSide() const {
    constexpr int kLargest = 1024;
    const long side = std::lround(geometry().cellSize * m_scale);
    return static_cast<int>(std::clamp(side, 1L, static_cast<long>(kLargest)));
}

void IconGrid::fitCacheBudget() {
    // Whatever the budget, two pages of the view in use fit: the page shown is never dropped
    // while it is being loaded.
    const std::size_t side = static_cast<std::size_t>(deviceSide());
    const std::size_t page = static_cast<std::size_t>(geometry().cellCount()) * side * side * 4;
    m_cache.setBudget(std::max(m_cacheBytes, 2 * page + 64 * 1024));
}

const GridGeometry& IconGrid::geometry() const {
    static constexpr GridGeometry small = GridGeometry::of(GridView::Icons32);
    static constexpr GridGeometry large = GridGeometry::of(GridView::Icons48);
    return m_view == GridView::Icons48 ? large : small;
}

ScanResult IconGrid::openFolder(const std::filesystem::path& folder) {
    return list(folder, false);
}

ScanResult IconGrid::openFolder(const QString& folder) {
    return list(iconqt::pathFromText(folder), false);
}

ScanResult IconGrid::refresh() {
    return list(m_folder, true);
}

ScanResult IconGrid::switchView() {
    m_view = m_view == GridView::Icons48 ? GridView::Icons32 : GridView::Icons48;
    fitCacheBudget();
    return refresh();
}

QString IconGrid::folder() const {
    return QFile::decodeName(QByteArray::fromStdString(m_folder.native()));
}

ScanResult IconGrid::list(const std::filesystem::path& folder, bool keepIndex) {
    auto listing = readFolder(folder);
    if (!listing)
        return ScanResult::FolderMissing;
    m_folder = withTrailingSlash(folder);
    m_cache.clear();
    m_subfolders = std::move(listing->subfolders);
    ViewState& view = state();
    view.entries = std::move(listing->icons);
    const int total = count();
    if (total == 0)
        view.current = 0;
    else if (!keepIndex)
        view.current = 1;
    else
        view.current = std::clamp(view.current, 1, total);
    return total == 0 ? ScanResult::Empty : ScanResult::Listed;
}

void IconGrid::moveTo(int index) {
    if (count() == 0)
        return;
    state().current = std::clamp(index, 1, count());
}

void IconGrid::clickCell(int cell) {
    if (cell < 0 || cell >= geometry().cellCount())
        return;
    moveTo(current() + cell - geometry().centre);
}

bool IconGrid::centreOn(const std::filesystem::path& file) {
    const std::vector<IconEntry>& list = entries();
    const auto found = std::find_if(list.begin(), list.end(), [&](const IconEntry& entry) {
        return entry.file.lexically_normal() == file.lexically_normal();
    });
    if (found == list.end())
        return false;
    moveTo(static_cast<int>(found - list.begin()) + 1);
    return true;
}

std::optional<int> IconGrid::entryOfCell(int cell) const {
    if (cell < 0 || cell >= geometry().cellCount() || count() == 0)
        return std::nullopt;
    const int index = current() + cell - geometry().centre;
    if (index < 1 || index > count())
        return std::nullopt;
    return index;
}

const IconEntry* IconGrid::centred() const {
    if (count() == 0)
        return nullptr;
    return &state().entries[static_cast<std::size_t>(current() - 1)];
}

QString IconGrid::pathText() const {
    if (const IconEntry* entry = centred())
        return entry->shown;
    return QStringLiteral("Sélectionnez un dossier contenant des icônes (*.ico)");
}

QString IconGrid::countText() const {
    const int total = count();
    if (total == 0)
        return QStringLiteral("Dossier vide...");
    return QString::number(total) +
           (total == 1 ? QStringLiteral(" icône") : QStringLiteral(" icônes"));
}

Thumbnail IconGrid::load(const IconEntry& entry) const {
    Thumbnail thumbnail;
    // A cell reads at most this much: no icon file comes near it, and a huge file put in the
    // folder must not fill the memory of a window that only shows it small.
    constexpr std::size_t kMaxCellFileBytes = 64u * 1024u * 1024u;
    icon::ReadError error = icon::ReadError::None;
    const auto bytes = icon::readFileBytes(entry.file, kMaxCellFileBytes, &error);
    if (!bytes) {
        thumbnail.state = error == icon::ReadError::Missing ? Thumbnail::State::Missing
                                                            : Thumbnail::State::Unreadable;
        return thumbnail;
    }
    auto picture = m_provider.decode(*bytes, deviceSide());
    if (!picture || picture->isEmpty()) {
        thumbnail.state = Thumbnail::State::Unreadable;
        return thumbnail;
    }
    thumbnail.state = Thumbnail::State::Icon;
    thumbnail.picture = std::move(*picture);
    return thumbnail;
}

bool IconGrid::loadPage() {
    bool complete = true;
    for (int k = 0; k < geometry().cellCount(); ++k) {
        const auto index = entryOfCell(k);
        if (!index)
            continue;
        const IconEntry& entry = state().entries[static_cast<std::size_t>(*index - 1)];
        if (m_cache.use(entry.file.native()) != nullptr)
            continue;
        Thumbnail thumbnail = load(entry);
        // A file that has gone is never kept: it may come back before the next look. The
        // other cells are still loaded, so that the page is whole but for the missing files.
        if (thumbnail.state == Thumbnail::State::Missing) {
            complete = false;
            continue;
        }
        m_cache.put(entry.file.native(), std::move(thumbnail));
    }
    return complete;
}

const Thumbnail* IconGrid::cell(int cell) const {
    const auto index = entryOfCell(cell);
    if (!index)
        return nullptr;
    return m_cache.peek(state().entries[static_cast<std::size_t>(*index - 1)].file.native());
}

bool IconGrid::reloadCentre() {
    const IconEntry* entry = centred();
    if (entry == nullptr)
        return true;
    Thumbnail thumbnail = load(*entry);
    if (thumbnail.state == Thumbnail::State::Missing) {
        m_cache.erase(entry->file.native());
        return false;
    }
    m_cache.put(entry->file.native(), std::move(thumbnail));
    return true;
}

} // namespace browser

#include "browser/BrowserInput.h"

#include <Qt>

#include <algorithm>
#include <cctype>
#include <sys/stat.h>

namespace browser {

std::optional<GridKey> gridKey(int key) {
    switch (key) {
    case Qt::Key_PageDown:
        return GridKey::PageNext;
    case Qt::Key_PageUp:
        return GridKey::PagePrevious;
    case Qt::Key_Down:
        return GridKey::LineNext;
    case Qt::Key_Up:
        return GridKey::LinePrevious;
    case Qt::Key_Home:
        return GridKey::First;
    case Qt::Key_End:
        return GridKey::Last;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return GridKey::Edit;
    default:
        return std::nullopt;
    }
}

bool applyGridKey(IconGrid& grid, GridKey key) {
    switch (key) {
    case GridKey::PageNext:
        grid.pageNext();
        return true;
    case GridKey::PagePrevious:
        grid.pagePrevious();
        return true;
    case GridKey::LineNext:
        grid.lineNext();
        return true;
    case GridKey::LinePrevious:
        grid.linePrevious();
        return true;
    case GridKey::First:
        grid.first();
        return true;
    case GridKey::Last:
        grid.last();
        return true;
    case GridKey::Edit:
        return false;
    }
    return false;
}

std::optional<DropTarget> dropTarget(const std::filesystem::path& dropped) {
    if (!dropped.is_absolute())
        return std::nullopt;
    const std::filesystem::path clean = dropped.lexically_normal();
    struct stat info {};
    if (::stat(clean.c_str(), &info) != 0)
        return std::nullopt;
    if (S_ISDIR(info.st_mode))
        return DropTarget{clean, std::nullopt};
    std::string extension = clean.extension().native();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (!S_ISREG(info.st_mode) || extension != ".ico")
        return std::nullopt;
    return DropTarget{clean.parent_path(), clean};
}

} // namespace browser

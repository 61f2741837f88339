#pragma once

#include "browser/IconGrid.h"
#include "icon/Frame.h"

#include <QString>

#include <filesystem>

namespace browser {

// Icons written as BMP files from the browser: the picture as the browser shows it, at the
// size of the view, over the background behind it. The save dialog opens where the last BMP
// went.
struct BmpExport {
    std::filesystem::path folder; // empty until a first BMP is written

    static QString title();
    static QString filter();
    // The picture of a cell: its icon at size×size over the background; only the background
    // when the cell shows nothing.
    static icon::Frame picture(const Thumbnail* thumbnail, int size, icon::Colour background);
    // The folder of a written file is where the next one goes.
    void written(const std::filesystem::path& file) { folder = file.parent_path(); }
};

} // namespace browser

#include "browser/BmpViewer.h"

#include <QString>

#include <algorithm>
#include <system_error>

namespace browser {

namespace {

// Layouts were measured in twips, 15 to a pixel.
constexpr int pixels(int twips) {
    return (twips + 7) / 15;
}

QString lowered(const std::filesystem::path& name) {
    return QString::fromStdString(name.string()).toLower();
}

} // namespace

BmpViewer::Place BmpViewer::place(int side) {
    if (side == 48)
        return {pixels(225), pixels(150), 48};
    return {pixels(345), pixels(270), 32};
}

std::vector<std::filesystem::path> BmpViewer::files(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> out;
    std::error_code error;
    std::filesystem::directory_iterator it(folder, error);
    for (; !error && it != std::filesystem::directory_iterator(); it.increment(error)) {
        std::error_code typeError;
        if (!it->is_regular_file(typeError))
            continue;
        const std::filesystem::path name = it->path().filename();
        if (lowered(name.extension()) == QLatin1String(".bmp"))
            out.push_back(name);
    }
    std::sort(out.begin(), out.end(),
              [](const auto& a, const auto& b) { return lowered(a) < lowered(b); });
    return out;
}

} // namespace browser

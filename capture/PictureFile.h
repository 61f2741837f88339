#pragma once

#include <QImage>
#include <QString>

#include <filesystem>

namespace capture {

// A picture the viewer was asked to show, or why it cannot be shown.
struct LoadedPicture {
    QImage picture;
    QString error; // French, empty on success
};

// Reads a BMP, PNG or ICO file for the image viewer. Only regular files are opened, and both
// the file and the picture it decodes to are budgeted, so that a huge or hostile file gives a
// message rather than a stall.
class PictureFile {
public:
    static constexpr qint64 kMaximumFileBytes = 64LL * 1024 * 1024;
    static constexpr int kMaximumDecodedMegabytes = 256;

    static LoadedPicture load(const std::filesystem::path& path);
    // The open dialog's filter.
    static QString filter();
};

} // namespace capture

#pragma once

#include <filesystem>
#include <vector>

namespace browser {

// The rules of the BMP viewer: where its picture lies at each size, so that switching between
// 32×32 and 48×48 keeps the image centred on the same point, and which files it lists.
class BmpViewer {
public:
    struct Place {
        int left = 0;
        int top = 0;
        int side = 0;
        bool operator==(const Place&) const = default;
    };
    // The picture's place for a side of 32 or 48 pixels, in its frame.
    static Place place(int side);
    // The BMP files of a folder (any case of ".bmp"), by name without regard to case; none
    // when the folder cannot be read.
    static std::vector<std::filesystem::path> files(const std::filesystem::path& folder);
};

} // namespace browser

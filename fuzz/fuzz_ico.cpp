// The ICO and CUR reader on any bytes: it must never crash, hang or allocate without bound,
// and what it decodes must survive a save and a read back unchanged.
#include "icon/IcoReader.h"
#include "icon/IcoWriter.h"

#include <cstdlib>
#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span<const std::uint8_t> bytes(data, size);
    (void)icon::readHeaderCount(bytes);
    if (const std::optional<icon::IcoDirectory> directory = icon::readIcoDirectory(bytes)) {
        (void)icon::chooseImage(*directory, 48);
        // A few images at their own size: the limits hold whatever the headers say.
        for (std::size_t i = 0; i < directory->images.size() && i < 3; ++i)
            if (const auto image = icon::decodeImage(bytes, directory->images[i]))
                if (image->width() > icon::kMaxPngSide || image->height() > icon::kMaxPngSide ||
                    image->mask.width() != image->width())
                    std::abort();
    }
    if (const std::optional<icon::IconPlanes> planes = icon::decodeIconPlanes(bytes)) {
        // The writer keeps no colour under transparent pixels: they come back black.
        icon::IconPlanes expected = *planes;
        for (int y = 0; y < icon::kIconSize; ++y)
            for (int x = 0; x < icon::kIconSize; ++x)
                if (expected.isTransparent(x, y))
                    expected.image.set(x, y, icon::kBlack);
        const icon::IconFileBytes written = icon::encodeIconFile(*planes);
        if (icon::decodeIconPlanes(written) != expected)
            std::abort();
    }
    return 0;
}

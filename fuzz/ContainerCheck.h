#pragma once

// What the container targets check on any bytes: a reader never crashes, hangs or allocates
// without bound; what it finds lies inside the bytes; and the icon source built on it answers
// the picker's questions for the first icons.
#include "icon/ByteReader.h"
#include "icon/IcoAssembly.h"
#include "icon/IconSource.h"

#include <QtGlobal>

#include <cstdlib>
#include <optional>
#include <span>
#include <vector>

namespace fuzzcheck {

inline void quiet(QtMsgType, const QMessageLogContext&, const QString&) {}

inline void checkIcons(std::span<const std::uint8_t> bytes,
                       const std::optional<std::vector<icon::IconResource>>& icons) {
    if (!icons)
        return;
    const icon::ByteReader r(bytes);
    for (const icon::IconResource& found : *icons) {
        for (const icon::GroupImage& image : found.images)
            if (!r.contains(image.offset, image.size))
                std::abort();
        if (found.form == icon::IconResource::Form::Embedded &&
            !r.contains(found.offset, found.size))
            std::abort();
    }
    // Assembling every icon would be slow on inputs with thousands of groups: the first few.
    for (std::size_t i = 0; i < icons->size() && i < 4; ++i) {
        const std::vector<std::uint8_t> ico = icon::assembleIco(bytes, (*icons)[i]);
        if (ico.size() > icon::kMaxAssembledIcoBytes)
            std::abort();
    }
}

inline void checkSource(std::span<const std::uint8_t> bytes) {
    const std::optional<icon::IconSource> source =
        icon::IconSource::fromBytes(std::vector<std::uint8_t>(bytes.begin(), bytes.end()));
    if (!source)
        return;
    for (int n = 1; n <= source->count() && n <= 2; ++n) {
        (void)source->planes(n);
        (void)source->resourceName(n);
    }
}

} // namespace fuzzcheck

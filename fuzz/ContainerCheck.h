#pragma once

// What the container targets check on any bytes: a reader never crashes, hangs or allocates
// without bound; what it finds lies inside the bytes; and the icon source built on it answers
// the picker's questions for the first icons.
#include "icon/ByteReader.h"
#include "icon/IcoAssembly.h"
#include "icon/IcoReader.h"
#include "icon/IconSource.h"

#include <cstdlib>
#include <optional>
#include <span>
#include <vector>

namespace fuzzcheck {

// Assembling is checked on every icon of an input until this many bytes were assembled: enough
// for thousands of small icons, while an input naming one large image many times still ends fast.
inline constexpr std::size_t kAssemblyWorkPerInput = 4u * 1024u * 1024u;

// One icon as its reader found it: everything it names lies inside the bytes, and its size
// worked out without assembling is the size assembled, never past the limit. Assembling is
// skipped once `work` bytes were assembled for this input.
inline void checkIcon(std::span<const std::uint8_t> bytes, const icon::IconResource& found,
                      std::size_t& work) {
    const icon::ByteReader r(bytes);
    for (const icon::GroupImage& image : found.images)
        if (!r.contains(image.offset, image.size))
            std::abort();
    if (found.form == icon::IconResource::Form::Embedded && !r.contains(found.offset, found.size))
        std::abort();
    const std::size_t size = icon::assembledSize(bytes, found);
    if (size > icon::kMaxAssembledIcoBytes)
        std::abort();
    if (work + size > kAssemblyWorkPerInput)
        return;
    work += size;
    if (icon::assembleIco(bytes, found).size() != size)
        std::abort();
}

inline void checkIcons(std::span<const std::uint8_t> bytes,
                       const std::optional<std::vector<icon::IconResource>>& icons) {
    if (!icons)
        return;
    if (icons->size() > icon::kMaxIconsInFile)
        std::abort();
    std::size_t work = 0;
    for (const icon::IconResource& found : *icons)
        checkIcon(bytes, found, work);
}

// The icons of a source, checked as their reader found them, without reading the file again.
inline void checkIcons(std::span<const std::uint8_t> bytes, const icon::IconSource& source) {
    std::size_t work = 0;
    for (int n = 1; n <= source.count(); ++n)
        checkIcon(bytes, *source.resource(n), work);
}

// The source over the bytes answers for every icon: its directory read in place agrees with
// the assembled file's, and the first icons decode.
inline std::optional<icon::IconSource> checkSource(std::span<const std::uint8_t> bytes) {
    std::optional<icon::IconSource> source =
        icon::IconSource::fromBytes(std::vector<std::uint8_t>(bytes.begin(), bytes.end()));
    if (!source)
        return source;
    std::size_t work = 0;
    std::size_t total = 0;
    for (int n = 1; n <= source->count(); ++n) {
        const std::optional<icon::IcoDirectory> listed = source->directory(n);
        (void)source->resourceName(n);
        const std::size_t size = source->icoSize(n);
        total += size;
        if (work + size > kAssemblyWorkPerInput)
            continue;
        work += size;
        const icon::IcoView ico = source->ico(n);
        const std::optional<icon::IcoDirectory> assembled = icon::readIcoDirectory(ico.bytes);
        if (listed.has_value() != assembled.has_value() ||
            (listed && listed->images.size() != assembled->images.size()))
            std::abort();
        if (n <= 2)
            (void)source->planes(n);
    }
    if (total != source->totalIcoBytes() && total < SIZE_MAX / 4)
        std::abort();
    return source;
}

} // namespace fuzzcheck

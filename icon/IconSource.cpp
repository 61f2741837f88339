#include "icon/IconSource.h"

#include "icon/AniReader.h"
#include "icon/ByteReader.h"
#include "icon/FileBytes.h"
#include "icon/IcoAssembly.h"
#include "icon/IcoReader.h"
#include "icon/NeReader.h"
#include "icon/PeReader.h"

namespace icon {

namespace {

using Found = std::optional<std::pair<IconSource::Kind, std::vector<IconResource>>>;

// An icon or cursor file is one icon: the file itself.
Found readIconFile(std::span<const std::uint8_t> bytes) {
    const ByteReader r(bytes);
    const int type = r.u16(2);
    if (r.u16(0) != 0 || (type != 1 && type != 2) || r.failed() || !readIcoDirectory(bytes))
        return std::nullopt;
    IconResource icon;
    icon.form = IconResource::Form::Embedded;
    icon.size = bytes.size();
    return std::pair{type == 1 ? IconSource::Kind::Icon : IconSource::Kind::Cursor,
                     std::vector<IconResource>{icon}};
}

Found readExecutable(std::span<const std::uint8_t> bytes) {
    const ByteReader r(bytes);
    const std::size_t header = r.u32(0x3C);
    if (r.u32(header) == 0x00004550) { // "PE\0\0"
        if (auto icons = readPeIcons(bytes))
            return std::pair{IconSource::Kind::Pe, std::move(*icons)};
    } else if (r.u16(header) == 0x454E) { // "NE"
        if (auto icons = readNeIcons(bytes))
            return std::pair{IconSource::Kind::Ne, std::move(*icons)};
    }
    return std::nullopt;
}

Found identify(std::span<const std::uint8_t> bytes) {
    const ByteReader r(bytes);
    if (r.u16(0) == 0x5A4D) // "MZ"
        return readExecutable(bytes);
    if (r.u32(0) == 0x46464952) { // "RIFF"
        if (auto frames = readAniIcons(bytes))
            return std::pair{IconSource::Kind::AnimatedCursor, std::move(*frames)};
        return std::nullopt;
    }
    return readIconFile(bytes);
}

} // namespace

IconSource::IconSource(Kind kind, std::vector<std::uint8_t> bytes, std::vector<IconResource> icons)
    : m_kind(kind)
    , m_bytes(std::make_shared<const std::vector<std::uint8_t>>(std::move(bytes)))
    , m_icons(std::move(icons)) {}

std::optional<IconSource> IconSource::fromBytes(std::vector<std::uint8_t> bytes) {
    Found found = identify(bytes);
    if (!found)
        return std::nullopt;
    return IconSource(found->first, std::move(bytes), std::move(found->second));
}

std::optional<IconSource> IconSource::open(const QString& path) {
    std::optional<std::vector<std::uint8_t>> bytes = readFileBytes(path);
    if (!bytes)
        return std::nullopt;
    return fromBytes(std::move(*bytes));
}

const IconResource* IconSource::resource(int n) const {
    if (n < 1 || n > count())
        return nullptr;
    return &m_icons[static_cast<std::size_t>(n - 1)];
}

std::vector<std::uint8_t> IconSource::icoBytes(int n) const {
    const IconResource* icon = resource(n);
    if (!icon)
        return {};
    return assembleIco(*m_bytes, *icon);
}

IconPlanes IconSource::planes(int n) const {
    return decodeIconPlanes(icoBytes(n)).value_or(IconPlanes::blank());
}

QString IconSource::resourceName(int n) const {
    const IconResource* icon = resource(n);
    if (!icon || (m_kind != Kind::Pe && m_kind != Kind::Ne))
        return {};
    return icon->id >= 0 ? QString::number(icon->id) : icon->name;
}

} // namespace icon

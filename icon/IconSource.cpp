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

std::optional<IconSource> IconSource::build(std::shared_ptr<const Content> content) {
    const std::span<const std::uint8_t> bytes = content->bytes();
    IconSource source;
    const ByteReader r(bytes);
    if (r.u32(0) == 0x46464952 && r.u32(8) == 0x4E4F4341) { // "RIFF" .. "ACON"
        std::optional<std::vector<IconResource>> frames =
            readAniIcons(bytes, source.m_iconsLeftOut);
        if (!frames)
            return std::nullopt;
        source.m_kind = Kind::AnimatedCursor;
        source.m_icons = std::move(*frames);
    } else {
        Found found = identify(bytes);
        if (!found)
            return std::nullopt;
        source.m_kind = found->first;
        source.m_icons = std::move(found->second);
    }
    source.m_content = std::move(content);
    return source;
}

std::optional<IconSource> IconSource::fromBytes(std::vector<std::uint8_t> bytes) {
    auto content = std::make_shared<Content>();
    content->owned = std::move(bytes);
    return build(std::move(content));
}

std::optional<IconSource> IconSource::fromFile(std::shared_ptr<const MappedFile> file) {
    if (!file)
        return std::nullopt;
    auto content = std::make_shared<Content>();
    content->mapped = std::move(file);
    return build(std::move(content));
}

std::optional<IconSource> IconSource::open(const std::filesystem::path& path) {
    return fromFile(MappedFile::open(path));
}

const IconResource* IconSource::resource(int n) const {
    if (n < 1 || n > count())
        return nullptr;
    return &m_icons[static_cast<std::size_t>(n - 1)];
}

IcoView IconSource::ico(int n) const {
    IcoView view;
    const IconResource* icon = resource(n);
    if (!icon)
        return view;
    const ByteReader r(bytes());
    // An icon file lying whole in the file is its own ICO file: no copy.
    if (icon->form == IconResource::Form::Embedded && r.contains(icon->offset, icon->size) &&
        r.u16(icon->offset + 2) != 2) {
        view.bytes = bytes().subspan(icon->offset, icon->size);
        return view;
    }
    view.assembled = assembleIco(bytes(), *icon);
    view.bytes = view.assembled;
    return view;
}

std::span<const std::uint8_t> IconSource::cursorFile(int n) const {
    const IconResource* icon = resource(n);
    const ByteReader r(bytes());
    if (!icon || icon->form != IconResource::Form::Embedded ||
        !r.contains(icon->offset, icon->size) || r.u16(icon->offset + 2) != 2)
        return {};
    return bytes().subspan(icon->offset, icon->size);
}

std::vector<std::uint8_t> IconSource::icoBytes(int n) const {
    IcoView view = ico(n);
    if (!view.assembled.empty())
        return std::move(view.assembled);
    return {view.bytes.begin(), view.bytes.end()};
}

std::size_t IconSource::icoSize(int n) const {
    const IconResource* icon = resource(n);
    return icon ? assembledSize(bytes(), *icon) : 0;
}

std::size_t IconSource::totalIcoBytes() const {
    std::size_t total = 0;
    for (const IconResource& icon : m_icons)
        total = std::min(total + assembledSize(bytes(), icon), SIZE_MAX / 2);
    return total;
}

std::optional<IcoDirectory> IconSource::directory(int n) const {
    const IconResource* icon = resource(n);
    if (!icon)
        return std::nullopt;
    if (icon->form == IconResource::Form::Embedded)
        return readIcoDirectory(ByteReader(bytes()).slice(icon->offset, icon->size));
    if (assembledSize(bytes(), *icon) == 0)
        return std::nullopt;
    IcoDirectory directory;
    const std::size_t kept = keptImages(icon->images);
    directory.images.reserve(kept);
    for (std::size_t i = 0; i < kept; ++i) {
        const GroupImage& image = icon->images[i];
        directory.images.push_back(describeImage(bytes().subspan(image.offset, image.size),
                                                 image.width, image.height, image.bitCount));
    }
    if (directory.images.empty())
        return std::nullopt;
    return directory;
}

IconPlanes IconSource::planes(int n) const {
    return decodeIconPlanes(ico(n).bytes).value_or(IconPlanes::blank());
}

std::string IconSource::resourceName(int n) const {
    const IconResource* icon = resource(n);
    if (!icon || (m_kind != Kind::Pe && m_kind != Kind::Ne))
        return {};
    return icon->id >= 0 ? std::to_string(icon->id) : icon->name;
}

} // namespace icon

#pragma once

#include "icon/FileBytes.h"
#include "icon/IcoReader.h"
#include "icon/IconPlanes.h"
#include "icon/IconResource.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace icon {

// The most bytes the icons of one file may make when all are assembled: groups can name the
// same large image thousands of times, and a file that would make more is no icon library.
inline constexpr std::size_t kMaxIcoBytesPerFile = 1024u * 1024u * 1024u;

// One icon's ICO file: a view into the file itself when the icon is an ICO file lying in it,
// otherwise assembled (a group, a cursor made an icon).
struct IcoView {
    std::vector<std::uint8_t> assembled;
    std::span<const std::uint8_t> bytes; // valid while the IcoView and its IconSource live
};

// Any file that holds icons, opened by its content (never by its name): an icon or cursor
// file, a PE or NE executable or icon library, an animated cursor. It answers what the icon
// picker asks: how many icons the file holds and, for icon n (from 1), its complete ICO file
// and its two 32×32 planes as the editor would decode that ICO file.
class IconSource {
public:
    enum class Kind { Icon, Cursor, Pe, Ne, AnimatedCursor };

    // Nothing when the bytes are none of those formats or cannot be followed (refused). A file
    // of a known kind without icons is not refused: its count is 0.
    static std::optional<IconSource> fromBytes(std::vector<std::uint8_t> bytes);
    // The same over a file mapped in memory, looked at in place.
    static std::optional<IconSource> fromFile(std::shared_ptr<const MappedFile> file);
    // As fromFile; nothing also when the file cannot be read.
    static std::optional<IconSource> open(const std::filesystem::path& path);

    Kind kind() const { return m_kind; }
    int count() const { return static_cast<int>(m_icons.size()); }
    // Icons the file holds past the most a file may have, which are not counted nor read.
    std::size_t iconsLeftOut() const { return m_iconsLeftOut; }

    // Icon n (1..count()): its ICO file. Empty for a number out of range.
    std::vector<std::uint8_t> icoBytes(int n) const;
    IcoView ico(int n) const;
    // The bytes icon n's ICO file takes, and those of all icons together, without assembling.
    std::size_t icoSize(int n) const;
    std::size_t totalIcoBytes() const;
    // Icon n's images as its ICO file's directory would give them, read in place: nothing
    // when the icon has no image.
    std::optional<IcoDirectory> directory(int n) const;
    // Icon n at 32×32 as the editor takes an icon file. A group without a usable image, or a
    // number out of range, gives the blank (fully transparent) planes.
    IconPlanes planes(int n) const;
    // Icon n's resource name (UTF-8), or its number as text; empty when the file has no resources.
    std::string resourceName(int n) const;
    // Icon n's CUR file, hotspots and all, when it is one lying whole in the file (a cursor
    // file itself, an animated cursor's frame); empty otherwise.
    std::span<const std::uint8_t> cursorFile(int n) const;
    // How icon n was found in the file.
    const IconResource* resource(int n) const;

private:
    IconSource() = default;
    struct Content {
        std::vector<std::uint8_t> owned;
        std::shared_ptr<const MappedFile> mapped;
        std::span<const std::uint8_t> bytes() const {
            return mapped ? mapped->bytes() : std::span<const std::uint8_t>(owned);
        }
    };
    static std::optional<IconSource> build(std::shared_ptr<const Content> content);
    std::span<const std::uint8_t> bytes() const { return m_content->bytes(); }

    Kind m_kind = Kind::Icon;
    std::shared_ptr<const Content> m_content;
    std::vector<IconResource> m_icons;
    std::size_t m_iconsLeftOut = 0;
};

} // namespace icon

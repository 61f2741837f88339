#pragma once

#include "icon/IconPlanes.h"
#include "icon/IconResource.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace icon {

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
    // As fromBytes; nothing also when the file cannot be read.
    static std::optional<IconSource> open(const QString& path);

    Kind kind() const { return m_kind; }
    int count() const { return static_cast<int>(m_icons.size()); }

    // Icon n (1..count()): its ICO file. Empty for a number out of range.
    std::vector<std::uint8_t> icoBytes(int n) const;
    // Icon n at 32×32 as the editor takes an icon file. A group without a usable image, or a
    // number out of range, gives the blank (fully transparent) planes.
    IconPlanes planes(int n) const;
    // Icon n's resource name, or its number as text; empty when the file has no resources.
    QString resourceName(int n) const;
    // How icon n was found in the file.
    const IconResource* resource(int n) const;

private:
    IconSource(Kind kind, std::vector<std::uint8_t> bytes, std::vector<IconResource> icons);

    Kind m_kind = Kind::Icon;
    std::shared_ptr<const std::vector<std::uint8_t>> m_bytes;
    std::vector<IconResource> m_icons;
};

} // namespace icon

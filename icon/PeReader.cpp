#include "icon/PeReader.h"

#include "icon/ByteReader.h"
#include "icon/IconGroup.h"
#include "icon/Text.h"

#include <algorithm>
#include <cstdint>
#include <map>

namespace icon {

namespace {

constexpr std::uint32_t kRtIcon = 3;
constexpr std::uint32_t kRtGroupIcon = 14;
constexpr std::uint32_t kHighBit = 0x80000000u;
// Resource names are short; a longer one is cut rather than decoded at length again and again.
constexpr std::size_t kMaxNameChars = 256;
// How many languages of one icon are looked through for the group's own language.
constexpr std::size_t kMaxLanguagesSearched = 64;
// The system's loader refuses an image of more sections than this; so does this reader, which
// looks through them for every resource it follows.
constexpr std::size_t kMaxSections = 96;

struct Section {
    std::uint32_t virtualAddress = 0;
    std::uint32_t virtualSize = 0;
    std::uint32_t rawSize = 0;
    std::uint32_t rawOffset = 0;
};

// One entry of a resource directory.
struct DirEntry {
    bool named = false;
    std::uint32_t id = 0;         // when numbered
    std::uint32_t nameOffset = 0; // when named, from the start of the resource section
    bool subdirectory = false;
    std::uint32_t target = 0; // from the start of the resource section
};

class PeResources {
public:
    PeResources(const ByteReader& r, std::vector<Section> sections, std::size_t root)
        : m_r(r)
        , m_sections(std::move(sections))
        , m_root(root) {}

    // The file offset of [rva, rva + size), when it lies in one section's data.
    std::optional<ImagePlace> map(std::uint32_t rva, std::uint32_t size) const {
        for (const Section& s : m_sections) {
            const std::uint32_t span = std::max(s.virtualSize, s.rawSize);
            if (rva < s.virtualAddress || rva - s.virtualAddress >= span)
                continue;
            const std::size_t delta = rva - s.virtualAddress;
            if (delta > s.rawSize || size > s.rawSize - delta)
                return std::nullopt;
            const ImagePlace place{static_cast<std::size_t>(s.rawOffset) + delta, size};
            if (!m_r.contains(place.offset, place.size))
                return std::nullopt;
            return place;
        }
        return std::nullopt;
    }

    // The entries of the directory at `offset`; empty when it is not all inside the file.
    // At most `limit` entries are read.
    std::vector<DirEntry> directory(std::uint32_t offset, std::size_t limit = SIZE_MAX) const {
        const std::size_t at = m_root + offset;
        if (!m_r.contains(at, 16))
            return {};
        const std::size_t count = std::min(std::size_t{m_r.u16(at + 12)} + m_r.u16(at + 14), limit);
        if (!m_r.contains(at + 16, count * 8))
            return {};
        std::vector<DirEntry> entries(count);
        for (std::size_t i = 0; i < count; ++i) {
            const std::uint32_t name = m_r.u32(at + 16 + i * 8);
            const std::uint32_t data = m_r.u32(at + 20 + i * 8);
            DirEntry& e = entries[i];
            e.named = (name & kHighBit) != 0;
            e.id = e.named ? 0 : name;
            e.nameOffset = e.named ? (name & ~kHighBit) : 0;
            e.subdirectory = (data & kHighBit) != 0;
            e.target = data & ~kHighBit;
        }
        return entries;
    }

    std::string name(std::uint32_t offset) const {
        const std::size_t at = m_root + offset;
        const std::size_t length = std::min<std::size_t>(m_r.u16(at), kMaxNameChars);
        std::u16string text;
        for (std::size_t i = 0; i < length && m_r.contains(at + 2 + 2 * i, 2); ++i)
            text += static_cast<char16_t>(m_r.u16(at + 2 + 2 * i));
        return utf8FromUtf16(text);
    }

    // The data of a data entry (rva, size, code page, reserved).
    std::optional<ImagePlace> data(std::uint32_t entryOffset) const {
        const std::size_t at = m_root + entryOffset;
        if (!m_r.contains(at, 16))
            return std::nullopt;
        return map(m_r.u32(at), m_r.u32(at + 4));
    }

private:
    const ByteReader& m_r;
    std::vector<Section> m_sections;
    std::size_t m_root;
};

struct Language {
    std::uint32_t id = 0;
    std::uint32_t dataEntry = 0;
};

// The languages of one name, as data entries. The tree has three levels (type, name,
// language); a language entry that points to yet another directory is not followed.
std::vector<Language> languages(const PeResources& res, const DirEntry& nameEntry,
                                std::size_t limit) {
    std::vector<Language> out;
    if (!nameEntry.subdirectory)
        return out;
    for (const DirEntry& e : res.directory(nameEntry.target, limit)) {
        if (!e.subdirectory && !e.named)
            out.push_back({e.id, e.target});
    }
    return out;
}

std::optional<DirEntry> findType(const std::vector<DirEntry>& root, std::uint32_t type) {
    for (const DirEntry& e : root)
        if (!e.named && e.id == type && e.subdirectory && e.target != 0)
            return e;
    return std::nullopt;
}

// What the headers say: the sections, and where the resource directory starts (if anywhere).
struct PeLayout {
    std::vector<Section> sections;
    std::optional<std::size_t> resourceRoot;
};

std::optional<PeLayout> readLayout(const ByteReader& r) {
    if (r.u16(0) != 0x5A4D) // "MZ"
        return std::nullopt;
    const std::size_t pe = r.u32(0x3C);
    if (!r.contains(pe, 24) || r.u32(pe) != 0x00004550) // "PE\0\0"
        return std::nullopt;
    const std::size_t sectionCount = r.u16(pe + 6);
    const std::size_t optionalSize = r.u16(pe + 20);
    const std::size_t opt = pe + 24;
    std::size_t directories = 0;
    std::size_t directoryCount = 0;
    switch (r.u16(opt)) {
    case 0x10B: // PE32
        directoryCount = r.u32(opt + 92);
        directories = opt + 96;
        break;
    case 0x20B: // PE32+
        directoryCount = r.u32(opt + 108);
        directories = opt + 112;
        break;
    default:
        return std::nullopt;
    }
    const std::size_t sectionTable = opt + optionalSize;
    if (sectionCount > kMaxSections)
        return std::nullopt;
    if (!r.contains(sectionTable, sectionCount * 40) || r.failed())
        return std::nullopt;
    PeLayout layout;
    layout.sections.resize(sectionCount);
    for (std::size_t i = 0; i < sectionCount; ++i) {
        const std::size_t s = sectionTable + i * 40;
        layout.sections[i] = {r.u32(s + 12), r.u32(s + 8), r.u32(s + 16), r.u32(s + 20)};
    }
    // The resource directory is data directory 2; a file may have none.
    const bool hasEntry = directoryCount > 2 && directories + 24 <= opt + optionalSize;
    const std::uint32_t rva = hasEntry ? r.u32(directories + 16) : 0;
    if (rva == 0)
        return layout;
    const PeResources mapper(r, layout.sections, 0);
    const std::optional<ImagePlace> root = mapper.map(rva, 16);
    if (!root)
        return std::nullopt;
    layout.resourceRoot = root->offset;
    return layout;
}

// RT_ICON resources by number, each with its languages.
std::map<std::uint32_t, std::vector<Language>> iconsByNumber(const PeResources& res,
                                                             const std::vector<DirEntry>& root) {
    std::map<std::uint32_t, std::vector<Language>> icons;
    const std::optional<DirEntry> type = findType(root, kRtIcon);
    if (!type)
        return icons;
    for (const DirEntry& e : res.directory(type->target))
        if (!e.named && e.target != type->target && !icons.contains(e.id))
            icons.emplace(e.id, languages(res, e, kMaxLanguagesSearched));
    return icons;
}

// Named entries first in the directory's order, then numbered ones by number.
std::vector<DirEntry> groupOrder(std::vector<DirEntry> entries) {
    std::stable_partition(entries.begin(), entries.end(),
                          [](const DirEntry& e) { return e.named; });
    const auto firstNumbered =
        std::find_if(entries.begin(), entries.end(), [](const DirEntry& e) { return !e.named; });
    std::stable_sort(firstNumbered, entries.end(),
                     [](const DirEntry& a, const DirEntry& b) { return a.id < b.id; });
    return entries;
}

} // namespace

std::optional<std::vector<IconResource>> readPeIcons(std::span<const std::uint8_t> bytes) {
    const ByteReader r(bytes);
    const std::optional<PeLayout> layout = readLayout(r);
    if (!layout)
        return std::nullopt;
    std::vector<IconResource> icons;
    if (!layout->resourceRoot)
        return icons;
    const PeResources res(r, layout->sections, *layout->resourceRoot);
    const std::vector<DirEntry> root = res.directory(0);
    const std::optional<DirEntry> groups = findType(root, kRtGroupIcon);
    if (!groups)
        return icons;
    const std::map<std::uint32_t, std::vector<Language>> iconMap = iconsByNumber(res, root);

    const std::vector<DirEntry> names = groupOrder(res.directory(groups->target));
    if (names.size() > kMaxIconsInFile)
        return std::nullopt;
    std::size_t entryBudget = kMaxGroupEntriesInFile;
    icons.reserve(names.size());
    for (const DirEntry& entry : names) {
        if (entry.target == groups->target || entry.target == 0)
            continue; // a directory naming itself or the root: a loop, not a group
        IconResource icon;
        if (entry.named)
            icon.name = res.name(entry.nameOffset);
        else
            icon.id = static_cast<int>(entry.id);
        const std::vector<Language> groupLanguages = languages(res, entry, 1);
        if (!groupLanguages.empty()) {
            const std::uint32_t language = groupLanguages.front().id;
            const auto findIcon = [&](std::uint16_t number) -> std::optional<ImagePlace> {
                const auto it = iconMap.find(number);
                if (it == iconMap.end() || it->second.empty())
                    return std::nullopt;
                const auto same = std::find_if(it->second.begin(), it->second.end(),
                                               [&](const Language& l) { return l.id == language; });
                return res.data(same != it->second.end() ? same->dataEntry
                                                         : it->second.front().dataEntry);
            };
            const std::optional<ImagePlace> groupData = res.data(groupLanguages.front().dataEntry);
            if (groupData) {
                auto images =
                    readIconGroup(r, *groupData, findIcon, ImageSize::Resource, entryBudget);
                if (images)
                    icon.images = std::move(*images);
                else if (entryBudget == 0)
                    return std::nullopt; // groups sharing their data to name millions of images
            }
        }
        icons.push_back(std::move(icon));
    }
    return icons;
}

} // namespace icon

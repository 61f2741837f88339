#include "tests/icon/PeFiles.h"

namespace testfiles {

namespace {

void put(std::vector<std::uint8_t>& out, std::size_t at, std::uint32_t value, int bytes) {
    if (out.size() < at + static_cast<std::size_t>(bytes))
        out.resize(at + static_cast<std::size_t>(bytes));
    for (int i = 0; i < bytes; ++i)
        out[at + static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(value >> (8 * i));
}

// A resource directory of `ids`, every entry pointing at `target` (a subdirectory or not).
void directory(std::vector<std::uint8_t>& rsrc, std::size_t at,
               const std::vector<std::uint32_t>& ids, const std::vector<std::uint32_t>& targets) {
    put(rsrc, at + 14, static_cast<std::uint32_t>(ids.size()), 2);
    for (std::size_t i = 0; i < ids.size(); ++i) {
        put(rsrc, at + 16 + 8 * i, ids[i], 4);
        put(rsrc, at + 20 + 8 * i, targets[i], 4);
    }
}

} // namespace

std::vector<std::uint8_t> peFile(const PePlan& plan) {
    constexpr std::uint32_t kSub = 0x80000000u;
    constexpr std::uint32_t kRva = 0x1000;
    // The resource section: root, the two types, the icon's and the groups' name and language
    // levels, two data entries, the group directory and the image.
    std::vector<std::uint8_t> rsrc;
    const std::size_t root = 0, icons = 0x100, iconLang = 0x200, groupLang = 0x300;
    const std::size_t iconData = 0x400, groupData = 0x410;
    const std::size_t groupNames = 0x500;
    const std::size_t groupDir = groupNames + 16 + 8 * static_cast<std::size_t>(plan.groups);
    const std::size_t groupBytes = 6 + 14 * static_cast<std::size_t>(plan.entriesPerGroup);
    const std::size_t image = (groupDir + groupBytes + 15) / 16 * 16;
    directory(
        rsrc, root, {3, 14},
        {kSub | static_cast<std::uint32_t>(icons), kSub | static_cast<std::uint32_t>(groupNames)});
    directory(rsrc, icons, {1}, {kSub | static_cast<std::uint32_t>(iconLang)});
    directory(rsrc, iconLang, {0x409}, {static_cast<std::uint32_t>(iconData)});
    std::vector<std::uint32_t> ids, targets;
    for (int g = 0; g < plan.groups; ++g) {
        ids.push_back(static_cast<std::uint32_t>(g + 1));
        targets.push_back(kSub | static_cast<std::uint32_t>(groupLang));
    }
    directory(rsrc, groupNames, ids, targets);
    directory(rsrc, groupLang, {0x409}, {static_cast<std::uint32_t>(groupData)});
    put(rsrc, iconData, kRva + static_cast<std::uint32_t>(image), 4);
    put(rsrc, iconData + 4, static_cast<std::uint32_t>(plan.imageBytes), 4);
    put(rsrc, groupData, kRva + static_cast<std::uint32_t>(groupDir), 4);
    put(rsrc, groupData + 4, static_cast<std::uint32_t>(groupBytes), 4);
    put(rsrc, groupDir + 2, 1, 2);
    put(rsrc, groupDir + 4, static_cast<std::uint32_t>(plan.entriesPerGroup), 2);
    for (int e = 0; e < plan.entriesPerGroup; ++e) {
        const std::size_t at = groupDir + 6 + 14 * static_cast<std::size_t>(e);
        put(rsrc, at, 32, 1);
        put(rsrc, at + 1, 32, 1);
        put(rsrc, at + 4, 1, 2);
        put(rsrc, at + 6, 32, 2);
        put(rsrc, at + 8, static_cast<std::uint32_t>(plan.imageBytes), 4);
        put(rsrc, at + 12, 1, 2);
    }
    // The image: a bitmap header for 32×32 at 32 bits (colour and mask), the rest zeros.
    put(rsrc, image, 40, 4);
    put(rsrc, image + 4, 32, 4);
    put(rsrc, image + 8, 64, 4);
    put(rsrc, image + 12, 1, 2);
    put(rsrc, image + 14, 32, 2);
    rsrc.resize(image + plan.imageBytes);

    // Headers: MZ, PE, COFF, a PE32 optional header with 16 directories, the section table.
    std::vector<std::uint8_t> pe;
    put(pe, 0, 0x5A4D, 2);
    put(pe, 0x3C, 0x40, 4);
    put(pe, 0x40, 0x00004550, 4);
    put(pe, 0x44, 0x14C, 2);
    put(pe, 0x46, static_cast<std::uint32_t>(plan.sections), 2);
    put(pe, 0x54, 224, 2);
    const std::size_t opt = 0x58;
    put(pe, opt, 0x10B, 2);
    put(pe, opt + 92, 16, 4);
    put(pe, opt + 96 + 16, kRva, 4);
    put(pe, opt + 96 + 20, static_cast<std::uint32_t>(rsrc.size()), 4);
    const std::size_t table = opt + 224;
    const std::size_t rawAt =
        (table + 40 * static_cast<std::size_t>(plan.sections) + 0x1FF) / 0x200 * 0x200;
    for (int s = 0; s < plan.sections; ++s) {
        const std::size_t at = table + 40 * static_cast<std::size_t>(s);
        // The others lie past the resources in memory and hold no bytes of the file.
        const bool resources = s == 0;
        put(pe, at + 8, resources ? static_cast<std::uint32_t>(rsrc.size()) : 0x1000, 4);
        put(pe, at + 12, resources ? kRva : 0x10000000u + 0x1000u * static_cast<std::uint32_t>(s),
            4);
        put(pe, at + 16, resources ? static_cast<std::uint32_t>(rsrc.size()) : 0, 4);
        put(pe, at + 20, resources ? static_cast<std::uint32_t>(rawAt) : 0, 4);
    }
    pe.resize(rawAt);
    pe.insert(pe.end(), rsrc.begin(), rsrc.end());
    return pe;
}

} // namespace testfiles

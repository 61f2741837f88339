#include "tests/support/SharedIconsPe.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace testsupport {

namespace {

class Bytes {
public:
    void u8(std::uint8_t v) { m_out.push_back(v); }
    void u16(std::uint16_t v) {
        u8(static_cast<std::uint8_t>(v));
        u8(static_cast<std::uint8_t>(v >> 8));
    }
    void u32(std::uint32_t v) {
        u16(static_cast<std::uint16_t>(v));
        u16(static_cast<std::uint16_t>(v >> 16));
    }
    void padTo(std::size_t size) { m_out.resize(std::max(m_out.size(), size), 0); }
    std::size_t size() const { return m_out.size(); }
    std::vector<std::uint8_t>& out() { return m_out; }

private:
    std::vector<std::uint8_t> m_out;
};

constexpr std::uint32_t kSubdirectory = 0x80000000u;
constexpr std::uint32_t kSectionRva = 0x1000;
constexpr std::size_t kSectionFile = 0x200;

void directory(Bytes& b, std::uint16_t ids) {
    b.u32(0); // characteristics
    b.u32(0); // time stamp
    b.u32(0); // version
    b.u16(0); // named entries
    b.u16(ids);
}

} // namespace

std::vector<std::uint8_t> sharedIconsPe(int groups, int side, std::uint32_t argb) {
    const auto count = static_cast<std::uint16_t>(groups);
    // Where each part of the resource section lies, from the section's start.
    const std::uint32_t iconNames = 16 + 2 * 8;
    const std::uint32_t iconLanguages = iconNames + 16 + 8;
    const std::uint32_t groupNames = iconLanguages + 16 + 8;
    const std::uint32_t groupLanguages = groupNames + 16 + 8u * count;
    const std::uint32_t iconEntry = groupLanguages + 16 + 8;
    const std::uint32_t groupEntry = iconEntry + 16;
    const std::uint32_t groupData = groupEntry + 16;
    const std::uint32_t image = groupData + 20;
    const auto maskRow = static_cast<std::uint32_t>(((side + 31) / 32) * 4);
    const std::uint32_t imageSize = 40 + static_cast<std::uint32_t>(side * side * 4) +
                                    maskRow * static_cast<std::uint32_t>(side);

    Bytes b;
    b.u16(0x5A4D);
    b.padTo(0x3C);
    b.u32(0x40);
    b.u32(0x00004550);
    b.u16(0x14C); // i386
    b.u16(1);     // one section
    b.u32(0);
    b.u32(0);
    b.u32(0);
    b.u16(224); // optional header
    b.u16(0x0102);
    const std::size_t optional = b.size();
    b.u16(0x10B);
    b.padTo(optional + 92);
    b.u32(16); // data directories
    b.padTo(optional + 96 + 16);
    b.u32(kSectionRva);
    b.u32(image + imageSize);
    b.padTo(optional + 224);
    for (char c : {'.', 'r', 's', 'r', 'c', '\0', '\0', '\0'})
        b.u8(static_cast<std::uint8_t>(c));
    b.u32(image + imageSize);
    b.u32(kSectionRva);
    b.u32(image + imageSize);
    b.u32(static_cast<std::uint32_t>(kSectionFile));
    b.padTo(kSectionFile);

    directory(b, 2);
    b.u32(3);
    b.u32(kSubdirectory | iconNames);
    b.u32(14);
    b.u32(kSubdirectory | groupNames);
    directory(b, 1);
    b.u32(1);
    b.u32(kSubdirectory | iconLanguages);
    directory(b, 1);
    b.u32(0x409);
    b.u32(iconEntry);
    directory(b, count);
    for (std::uint32_t id = 1; id <= count; ++id) {
        b.u32(id);
        b.u32(kSubdirectory | groupLanguages);
    }
    directory(b, 1);
    b.u32(0x409);
    b.u32(groupEntry);
    for (auto [place, size] : {std::pair{image, imageSize}, std::pair{groupData, 20u}}) {
        b.u32(kSectionRva + place);
        b.u32(size);
        b.u32(0);
        b.u32(0);
    }
    // The group: one 32-bit image, icon number 1.
    b.u16(0);
    b.u16(1);
    b.u16(1);
    b.u8(static_cast<std::uint8_t>(side >= 256 ? 0 : side));
    b.u8(static_cast<std::uint8_t>(side >= 256 ? 0 : side));
    b.u8(0);
    b.u8(0);
    b.u16(1);
    b.u16(32);
    b.u32(imageSize);
    b.u16(1);
    // The image: a 40-byte header, colour rows from the bottom, then the AND mask (all 0).
    b.u32(40);
    b.u32(static_cast<std::uint32_t>(side));
    b.u32(static_cast<std::uint32_t>(side * 2));
    b.u16(1);
    b.u16(32);
    for (int i = 0; i < 6; ++i)
        b.u32(0);
    for (int i = 0; i < side * side; ++i)
        b.u32(argb);
    b.padTo(b.size() + maskRow * static_cast<std::uint32_t>(side));
    return std::move(b.out());
}

} // namespace testsupport

#include "icon/AniReader.h"
#include "icon/ByteReader.h"
#include "icon/IcoAssembly.h"
#include "icon/NeReader.h"
#include "icon/PeReader.h"
#include "tests/support/TestData.h"

#include <gtest/gtest.h>

#include <random>

using namespace icon;
using testsupport::fileBytes;
using testsupport::testData;

namespace {

std::optional<std::vector<IconResource>> readAny(std::span<const std::uint8_t> bytes) {
    if (auto icons = readPeIcons(bytes))
        return icons;
    if (auto icons = readNeIcons(bytes))
        return icons;
    return readAniIcons(bytes);
}

// Whatever a reader makes of damaged bytes, what it points at lies inside them and the ICO
// files it builds are whole.
void expectSane(std::span<const std::uint8_t> bytes) {
    const auto icons = readAny(bytes);
    if (!icons)
        return;
    const ByteReader r(bytes);
    for (const IconResource& icon : *icons) {
        for (const GroupImage& image : icon.images)
            ASSERT_TRUE(r.contains(image.offset, image.size));
        const std::vector<std::uint8_t> ico = assembleIco(bytes, icon);
        ASSERT_LE(ico.size(), kMaxAssembledIcoBytes);
        if (icon.form == IconResource::Form::Group) {
            ASSERT_EQ(ByteReader(ico).u16(4), icon.images.size());
        }
    }
}

const char* const kSamples[] = {
    "pe/penet_pidgin.exe",          "pe/corkami_resource_icon.exe",
    "pe/r2tb_notputty.exe",         "icl/pe_format/robloxvrtoggler_icons.icl",
    "icl/psc_robanderson_test.icl", "icl/libexeinfo_win31_control.exe",
    "ani/pillow_stopwtch.ani",      "ani/imhex_ani.compatibility.ani",
};

} // namespace

TEST(ContainerRobustness, TruncatedAndCorruptedCopiesAreReadOrRefusedCleanly) {
    std::mt19937 random(20260101);
    for (const char* path : kSamples) {
        SCOPED_TRACE(path);
        const std::vector<std::uint8_t> original = fileBytes(testData(path));
        const std::size_t step = std::max<std::size_t>(1, original.size() / 97);
        for (std::size_t cut = 0; cut < original.size(); cut += step)
            expectSane(std::span(original).first(cut));
        // Damage the headers and tables most: they sit in the first few kilobytes.
        const std::size_t hot = std::min<std::size_t>(original.size(), 4096);
        for (int round = 0; round < 300; ++round) {
            std::vector<std::uint8_t> bytes = original;
            for (int f = 0; f <= round % 8; ++f) {
                const std::size_t at = random() % (round % 3 == 0 ? bytes.size() : hot);
                bytes[at] = static_cast<std::uint8_t>(round % 2 ? random() : bytes[at] ^ 0xFF);
            }
            expectSane(bytes);
        }
    }
}

TEST(ContainerRobustness, AbsurdCountsAreBoundedByTheFile) {
    // An NE type claiming 65535 resources, and an alignment shift no file can have.
    std::vector<std::uint8_t> icl = fileBytes(testData("icl/psc_robanderson_test.icl"));
    const std::size_t ne = ByteReader(icl).u32(0x3C);
    const std::size_t table = ne + ByteReader(icl).u16(ne + 0x24);
    icl[table + 4] = 0xFF; // the first type record's count
    icl[table + 5] = 0xFF;
    EXPECT_FALSE(readNeIcons(icl).has_value());

    std::vector<std::uint8_t> shifted = fileBytes(testData("icl/psc_robanderson_test.icl"));
    shifted[table] = 40;
    EXPECT_FALSE(readNeIcons(shifted).has_value());
}

namespace {

// Where the resource directory of a PE file starts, found the long way round.
std::size_t resourceRoot(const std::vector<std::uint8_t>& pe) {
    const ByteReader r(pe);
    const std::size_t header = r.u32(0x3C);
    const std::size_t opt = header + 24;
    const std::size_t directories = opt + (r.u16(opt) == 0x20B ? 112 : 96);
    const std::uint32_t rva = r.u32(directories + 16);
    const std::size_t sections = opt + r.u16(header + 20);
    for (std::size_t i = 0; i < r.u16(header + 6); ++i) {
        const std::size_t s = sections + 40 * i;
        if (rva >= r.u32(s + 12) && rva < r.u32(s + 12) + r.u32(s + 16))
            return r.u32(s + 20) + (rva - r.u32(s + 12));
    }
    return 0;
}

// The offset in the file of the entry for `id` in the directory at `dir`.
std::size_t entryFor(const std::vector<std::uint8_t>& pe, std::size_t dir, std::uint32_t id) {
    const ByteReader r(pe);
    const std::size_t count = std::size_t{r.u16(dir + 12)} + r.u16(dir + 14);
    for (std::size_t i = 0; i < count; ++i)
        if (r.u32(dir + 16 + 8 * i) == id)
            return dir + 16 + 8 * i;
    return 0;
}

void pointAt(std::vector<std::uint8_t>& pe, std::size_t entry, std::uint32_t target) {
    target |= 0x80000000u;
    for (int i = 0; i < 4; ++i)
        pe[entry + 4 + i] = static_cast<std::uint8_t>(target >> (8 * i));
}

} // namespace

TEST(ContainerRobustness, ResourceDirectoriesThatLoopEndCleanly) {
    const std::vector<std::uint8_t> original = fileBytes(testData("pe/r2tb_notputty.exe"));
    const std::size_t root = resourceRoot(original);
    const std::size_t groupType = entryFor(original, root, 14);
    ASSERT_NE(groupType, 0u);
    const std::uint32_t groupDir = ByteReader(original).u32(groupType + 4) & 0x7FFFFFFF;

    // The group type pointing back at the root: the root's entries are no groups.
    std::vector<std::uint8_t> toRoot = original;
    pointAt(toRoot, groupType, 0);
    const auto none = readPeIcons(toRoot);
    ASSERT_TRUE(none.has_value());
    EXPECT_TRUE(none->empty());

    // A group pointing at its own directory is no group; the other one stays.
    std::vector<std::uint8_t> toItself = original;
    pointAt(toItself, root + groupDir + 16, groupDir);
    const auto one = readPeIcons(toItself);
    ASSERT_TRUE(one.has_value());
    ASSERT_EQ(one->size(), 1u);
    EXPECT_EQ((*one)[0].id, 201);

    // A language level that names the group directory again: a directory, not data.
    std::vector<std::uint8_t> deeper = original;
    const std::uint32_t languages = ByteReader(original).u32(root + groupDir + 16 + 4) & 0x7FFFFFFF;
    pointAt(deeper, root + languages + 16, groupDir);
    const auto shallow = readPeIcons(deeper);
    ASSERT_TRUE(shallow.has_value());
    ASSERT_EQ(shallow->size(), 2u);
    EXPECT_TRUE((*shallow)[0].images.empty());
}

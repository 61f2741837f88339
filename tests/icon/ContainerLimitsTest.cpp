#include "icon/AniReader.h"
#include "icon/IcoAssembly.h"
#include "icon/IconSource.h"
#include "icon/PeReader.h"
#include "tests/icon/PeFiles.h"

#include <gtest/gtest.h>

using namespace icon;
using testfiles::peFile;
using testfiles::PePlan;

// Twenty groups that each name one 1 MiB image 64 times: assembled they would make more than a
// gigabyte out of a file of one. Their sizes and images are known without assembling any.
TEST(ContainerLimits, GroupsSharingOneImageAreMeasuredWithoutAssembling) {
    PePlan plan;
    plan.groups = 20;
    plan.entriesPerGroup = 64;
    plan.imageBytes = 1024 * 1024;
    const std::optional<IconSource> source = IconSource::fromBytes(peFile(plan));
    ASSERT_TRUE(source);
    ASSERT_EQ(source->count(), 20);
    // Each icon stops below the limit of one icon file: 63 of its 64 images fit.
    const std::size_t one = source->icoSize(1);
    EXPECT_EQ(one, 6 + 63 * (16 + plan.imageBytes));
    EXPECT_EQ(source->totalIcoBytes(), 20 * one);
    EXPECT_GT(source->totalIcoBytes(), kMaxIcoBytesPerFile);

    const std::optional<IcoDirectory> directory = source->directory(20);
    ASSERT_TRUE(directory);
    ASSERT_EQ(directory->images.size(), 63u);
    EXPECT_EQ(directory->images[0].width, 32);
    EXPECT_EQ(directory->images[0].bitDepth, 32);
    EXPECT_TRUE(directory->images[0].usable);
    // What the listing says is what the assembled file says.
    const std::vector<std::uint8_t> ico = source->icoBytes(20);
    EXPECT_EQ(ico.size(), one);
    EXPECT_EQ(readIcoDirectory(ico)->images.size(), 63u);
}

TEST(ContainerLimits, SectionCountsPastTheLoadersLimitAreRefused) {
    for (const auto& [sections, readable] :
         {std::pair{1, true}, std::pair{96, true}, std::pair{97, false}, std::pair{2000, false}}) {
        PePlan plan;
        plan.sections = sections;
        const auto icons = readPeIcons(peFile(plan));
        EXPECT_EQ(icons.has_value(), readable) << sections << " sections";
        if (icons) {
            EXPECT_EQ(icons->size(), 1u);
        }
    }
}

namespace {

void put32(std::vector<std::uint8_t>& out, std::uint32_t v) {
    for (int i = 0; i < 4; ++i)
        out.push_back(static_cast<std::uint8_t>(v >> (8 * i)));
}

void fourcc(std::vector<std::uint8_t>& out, const char* id) {
    for (int i = 0; i < 4; ++i)
        out.push_back(static_cast<std::uint8_t>(id[i]));
}

// An animated cursor of `frames` two-byte "icon" chunks (not real icons: only counted here).
std::vector<std::uint8_t> aniOf(std::uint32_t frames) {
    std::vector<std::uint8_t> ani;
    fourcc(ani, "RIFF");
    put32(ani, 0);
    fourcc(ani, "ACON");
    fourcc(ani, "anih");
    put32(ani, 36);
    put32(ani, 36);
    put32(ani, frames);
    for (int i = 0; i < 7; ++i)
        put32(ani, 0);
    fourcc(ani, "LIST");
    put32(ani, 4 + 10 * frames);
    fourcc(ani, "fram");
    for (std::uint32_t i = 0; i < frames; ++i) {
        fourcc(ani, "icon");
        put32(ani, 2);
        ani.push_back(0);
        ani.push_back(0);
    }
    return ani;
}

} // namespace

TEST(ContainerLimits, FramesPastTheLimitAreCountedAsLeftOut) {
    for (const auto& [frames, kept, leftOut] :
         {std::tuple{std::uint32_t{3}, 3, std::size_t{0}},
          std::tuple{std::uint32_t{65536}, 65536, std::size_t{0}},
          std::tuple{std::uint32_t{65540}, 65536, std::size_t{4}}}) {
        const std::optional<IconSource> source = IconSource::fromBytes(aniOf(frames));
        ASSERT_TRUE(source);
        EXPECT_EQ(source->count(), kept);
        EXPECT_EQ(source->iconsLeftOut(), leftOut) << frames << " frames";
    }
}

#include "icon/AniReader.h"
#include "icon/ByteReader.h"
#include "icon/IcoAssembly.h"
#include "icon/NeReader.h"
#include "icon/PeReader.h"
#include "tests/support/TestData.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace icon;
using testsupport::fileBytes;
using testsupport::testData;
using testsupport::testFiles;

namespace {

using Reader = std::optional<std::vector<IconResource>> (*)(std::span<const std::uint8_t>);

struct FileCase {
    const char* path;
    int count; // -1: refused
    std::vector<QString> names = {};
};

// What each shared sample holds, as its headers say (see the test data's notes).
const std::vector<FileCase>& fileCases() {
    static const std::vector<FileCase> cases = {
        {"pe/aclock-arm4-wince.exe", 1, {"101"}},
        {"pe/aclock-i386-wince.exe", 1, {"101"}},
        {"pe/aclock-mipsii-wince.exe", 1, {"101"}},
        {"pe/aclock-sh-wince.exe", 1, {"101"}},
        {"pe/aclock-x64-win64_no_resources.exe", 0},
        {"pe/corkami_namedresource_noicon.exe", 0},
        {"pe/corkami_resource_icon.exe", 1, {"788"}},
        {"pe/corkami_standard.exe", 1, {"788"}},
        {"pe/libexeinfo_nt40gui_notepad.exe", 2, {"1", "2"}},
        {"pe/penet_filezilla_dll_without_Version.dll", 1, {"FILEZILLA.EXE"}},
        {"pe/penet_firefox_x64.exe", 6, {"1", "2", "3", "4", "5", "32512"}},
        {"pe/penet_old_firefox_x86.exe", 3, {"1", "2", "32512"}},
        {"pe/penet_pidgin.exe", 1, {"104"}},
        {"pe/r2tb_AStyleWhore.exe", 1, {"32512"}},
        {"pe/r2tb_ch22.exe", 1, {"32512"}},
        {"pe/r2tb_cm01.exe", 1, {"100"}},
        {"pe/r2tb_mitigation_nothing.exe", 1, {"1"}},
        {"pe/r2tb_notputty.exe", 2, {"200", "201"}},
        {"pe/r2tb_pe-arm64-windows-desktop.exe", 2, {"107", "108"}},
        {"pe/invalid/corkami_resourceloop.exe", 0},
        {"pe/invalid/penet_pidgin_manipulated_GroupIconDirectory.exe", 5},
        {"pe/invalid/penet_pidgin_manipulated_GroupIconDirectory_withNullIcon.exe", 5},
        {"pe/invalid/penet_pidgin_manipulated_Icons.exe", 1},
        {"pe/invalid/penet_pidgin_two_icons_with_same_id.exe", 1},
        {"pe/invalid/penet_pidgin_with_double_iconGroupEntries.exe", 2},
        {"pe/invalid/penet_pidgin_with_iconGroupEntry_without_icon.exe", 1},
        {"pe/invalid/penet_pidgin_with_one_icon_without_IconGroupDirectoryEntry.exe", 1},
        {"pe/invalid/penet_pidgin_without_groupIconDirectory.exe", 0},
        {"pe/invalid/r2tb_fuzzed_heap-buffer-overflow-657-030-5a6.exe", 1},
        {"icl/pe_format/neko98_Footprint.icl", 8},
        {"icl/pe_format/neko98_Neko98.icl", 40},
        {"icl/pe_format/robloxvrtoggler_icons.icl",
         3,
         {"APP_ICON_ROBLOX_OFF_2", "APP_ICON_ROBLOX_ON_2", "APP_ICON_ROBLOX_WTF_2"}},
        {"icl/aclock-at286-os2-1_os2_ne.exe", 0},
        {"icl/aclock-i386-win16.exe", 1, {"ICON_1"}},
        {"icl/aclock-i8086-win1x_no_resources.exe", 0},
        {"icl/aclock-i8086-win2x_no_resources.exe", 0},
        {"icl/imhex_ne_no_resources.exe", 0},
        {"icl/libexeinfo_win30.exe", 1, {"1"}},
        {"icl/libexeinfo_win31_control.exe", 1, {"1001"}},
        {"icl/psc_robanderson_test.icl", 4, {"1", "2", "3", "4"}},
        {"icl/r2tb_ne_anim8.exe", 1, {"ICONX"}},
        {"icl/invalid/r2tb_fuzzed_nepocaligns-09.bin", -1},
        {"icl/invalid/r2tb_fuzzed_r2_nullptr_r_bin_ne_get_entrypoints.bin", -1},
        {"icl/invalid/r2tb_ne_necrash.bin", -1},
        {"ani/breeze_progress.ani", 23},
        {"ani/breeze_wait.ani", 23},
        {"ani/gdkpixbuf_test-animation.ani", 18},
        {"ani/imhex_ani.compatibility.ani", 4},
        {"ani/imhex_ani.hexpat.ani", 4}, // LIST 32 bytes short
        {"ani/pillow_aero_busy.ani", 18},
        {"ani/pillow_stopwtch.ani", 8},
        {"ani/invalid/gdkpixbuf_CVE-2022-48622.ani", 2}, // LIST short, junk after
    };
    return cases;
}

// Animated cursors under ani/, PE files under pe/ and icl/pe_format/, NE files elsewhere.
Reader readerFor(const QString& path) {
    if (path.startsWith("ani/"))
        return readAniIcons;
    return path.startsWith("pe/") || path.startsWith("icl/pe_format/") ? readPeIcons : readNeIcons;
}

QString nameOf(const IconResource& icon) {
    return icon.id >= 0 ? QString::number(icon.id) : QString::fromStdString(icon.name);
}

// The image data of a one-image reference file: an ICO file's only image, or a bare PNG file.
std::vector<std::uint8_t> referenceImage(const std::vector<std::uint8_t>& file) {
    const ByteReader r(file);
    if (r.u16(0) == 0 && r.u16(2) == 1 && r.u16(4) == 1) {
        const auto data = r.slice(r.u32(18), r.u32(14));
        return {data.begin(), data.end()};
    }
    return file;
}

// Every image of an assembled ICO file, in directory order.
std::vector<std::vector<std::uint8_t>> icoImages(const std::vector<std::uint8_t>& ico) {
    const ByteReader r(ico);
    std::vector<std::vector<std::uint8_t>> images;
    for (std::size_t i = 0; i < r.u16(4); ++i) {
        const auto data = r.slice(r.u32(6 + 16 * i + 12), r.u32(6 + 16 * i + 8));
        EXPECT_FALSE(data.empty());
        images.emplace_back(data.begin(), data.end());
    }
    EXPECT_FALSE(r.failed());
    return images;
}

} // namespace

TEST(ContainerReaders, EverySampleGivesItsCountAndNames) {
    for (const FileCase& c : fileCases()) {
        SCOPED_TRACE(c.path);
        const std::vector<std::uint8_t> bytes = fileBytes(testData(c.path));
        const auto icons = readerFor(c.path)(bytes);
        if (c.count < 0) {
            EXPECT_FALSE(icons.has_value());
            continue;
        }
        ASSERT_TRUE(icons.has_value());
        EXPECT_EQ(static_cast<int>(icons->size()), c.count);
        if (!c.names.empty()) {
            std::vector<QString> names;
            for (const IconResource& icon : *icons)
                names.push_back(nameOf(icon));
            EXPECT_EQ(names, c.names);
        }
    }
}

TEST(ContainerReaders, EverySampleFolderIsCovered) {
    // A file added to the shared samples must be added to the table above.
    QStringList listed;
    for (const FileCase& c : fileCases())
        listed << QFileInfo(testData(c.path)).canonicalFilePath();
    for (const char* folder :
         {"pe", "pe/invalid", "icl", "icl/pe_format", "icl/invalid", "ani", "ani/invalid"})
        for (const QString& file : testFiles(folder))
            EXPECT_TRUE(listed.contains(QFileInfo(file).canonicalFilePath())) << file.toStdString();
}

TEST(ContainerReaders, GroupsHoldTheImagesTheyName) {
    // Images per group, as the damaged samples leave them: a group whose entries lie is kept
    // with what can be found, and an entry naming a missing icon is dropped.
    struct Case {
        const char* path;
        std::vector<std::size_t> images;
    };
    for (const Case& c : {
             Case{"pe/penet_pidgin.exe", {9}},
             Case{"pe/penet_firefox_x64.exe", {4, 4, 2, 2, 2, 4}},
             Case{"pe/invalid/penet_pidgin_manipulated_GroupIconDirectory.exe", {9, 0, 2, 9, 0}},
             Case{"pe/invalid/penet_pidgin_manipulated_GroupIconDirectory_withNullIcon.exe",
                  {9, 0, 2, 9, 0}},
             Case{"pe/invalid/penet_pidgin_with_iconGroupEntry_without_icon.exe", {8}},
             Case{"pe/invalid/penet_pidgin_two_icons_with_same_id.exe", {9}},
             Case{"icl/psc_robanderson_test.icl", {2, 3, 9, 2}},
             Case{"icl/libexeinfo_win31_control.exe", {2}},
         }) {
        SCOPED_TRACE(c.path);
        const std::vector<std::uint8_t> bytes = fileBytes(testData(c.path));
        const auto icons = readerFor(c.path)(bytes);
        ASSERT_TRUE(icons.has_value());
        std::vector<std::size_t> counts;
        for (const IconResource& icon : *icons)
            counts.push_back(icon.images.size());
        EXPECT_EQ(counts, c.images);
    }
}

TEST(ContainerReaders, ExtractedImagesAreTheReferenceIcons) {
    for (const char* exe : {"penet_pidgin.exe", "penet_firefox_x64.exe"}) {
        SCOPED_TRACE(exe);
        const std::vector<std::uint8_t> bytes = fileBytes(testData(QString("pe/") + exe));
        const auto icons = readPeIcons(bytes);
        ASSERT_TRUE(icons.has_value());
        std::vector<std::vector<std::uint8_t>> extracted;
        for (const IconResource& icon : *icons)
            for (auto& image : icoImages(assembleIco(bytes, icon)))
                extracted.push_back(std::move(image));
        std::vector<std::vector<std::uint8_t>> expected;
        for (const QString& file : testFiles(QString("pe/reference/") + exe))
            expected.push_back(referenceImage(fileBytes(file)));
        std::sort(extracted.begin(), extracted.end());
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(extracted.size(), expected.size());
        EXPECT_TRUE(extracted == expected);
    }
}

TEST(ContainerReaders, AssembledGroupIsADirectoryThenImagesInGroupOrder) {
    const std::vector<std::uint8_t> bytes = fileBytes(testData("icl/psc_robanderson_test.icl"));
    const auto icons = readNeIcons(bytes);
    ASSERT_TRUE(icons && icons->size() == 4);
    const IconResource& group = (*icons)[2];
    const std::vector<std::uint8_t> ico = assembleIco(bytes, group);
    const ByteReader r(ico);
    ASSERT_EQ(r.u16(4), group.images.size());
    std::size_t expectedOffset = 6 + 16 * group.images.size();
    for (std::size_t i = 0; i < group.images.size(); ++i) {
        const std::size_t e = 6 + 16 * i;
        EXPECT_EQ(r.u8(e), group.images[i].width);
        EXPECT_EQ(r.u16(e + 6), group.images[i].bitCount);
        EXPECT_EQ(r.u32(e + 12), expectedOffset);
        expectedOffset += r.u32(e + 8);
        // NE lengths are rounded up to the alignment unit: the group's byte count is kept.
        EXPECT_EQ(r.u32(e + 8), group.images[i].size);
        EXPECT_EQ(r.u32(ByteReader(ico).u32(e + 12)), 40u) << "a bitmap header starts the image";
    }
    EXPECT_EQ(expectedOffset, ico.size());
}

TEST(ContainerReaders, AnimatedCursorFramesAreWholeCursorFiles) {
    const std::vector<std::uint8_t> bytes = fileBytes(testData("ani/pillow_stopwtch.ani"));
    const auto frames = readAniIcons(bytes);
    ASSERT_TRUE(frames && frames->size() == 8);
    for (const IconResource& frame : *frames) {
        const std::vector<std::uint8_t> ico = assembleIco(bytes, frame);
        const ByteReader r(ico);
        EXPECT_EQ(ico.size(), frame.size);
        EXPECT_EQ(r.u16(2), 1) << "a cursor frame becomes an icon file";
        EXPECT_EQ(r.u16(4), 1);
        EXPECT_EQ(r.u16(6 + 4), 1) << "planes in place of the hot spot";
        EXPECT_EQ(r.u16(6 + 6), 4) << "the bitmap's own depth";
    }
}

#include "icon/IconSource.h"
#include "icon/ByteReader.h"
#include "icon/IcoReader.h"
#include "tests/icon/IcoFiles.h"
#include "tests/support/TestData.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace icon;
using testsupport::fileBytes;
using testsupport::testData;

namespace {

using Kind = IconSource::Kind;

std::optional<IconSource> openSample(const char* path) {
    return IconSource::fromBytes(fileBytes(testData(path)));
}

} // namespace

TEST(IconSource, OpensFilesByContent) {
    struct Case {
        const char* path;
        std::optional<Kind> kind; // nothing: refused
        int count;
    };
    for (const Case& c : {
             Case{"ico/valid/qt_WORLD.ico", Kind::Icon, 1},
             Case{"cur/breeze_arrow.cur", Kind::Cursor, 1},
             Case{"pe/penet_pidgin.exe", Kind::Pe, 1},
             Case{"icl/pe_format/neko98_Neko98.icl", Kind::Pe, 40},
             Case{"icl/psc_robanderson_test.icl", Kind::Ne, 4},
             Case{"ani/pillow_stopwtch.ani", Kind::AnimatedCursor, 8},
             Case{"pe/aclock-x64-win64_no_resources.exe", Kind::Pe, 0},
             Case{"icl/imhex_ne_no_resources.exe", Kind::Ne, 0},
             Case{"icl/invalid/r2tb_ne_necrash.bin", std::nullopt, 0},
             Case{"ico/invalid/decodeico_favicon-actually-a-png.ico", std::nullopt, 0},
             Case{"ani/reference/pillow_stopwtch_0.png", std::nullopt, 0},
         }) {
        SCOPED_TRACE(c.path);
        const std::optional<IconSource> source = openSample(c.path);
        ASSERT_EQ(source.has_value(), c.kind.has_value());
        if (!source)
            continue;
        EXPECT_EQ(source->kind(), *c.kind);
        EXPECT_EQ(source->count(), c.count);
    }
    for (const std::vector<std::uint8_t>& junk :
         {std::vector<std::uint8_t>{}, std::vector<std::uint8_t>{'M', 'Z'},
          std::vector<std::uint8_t>(100, 0), std::vector<std::uint8_t>{'R', 'I', 'F', 'F'}})
        EXPECT_FALSE(IconSource::fromBytes(junk).has_value());

    // The name does not matter: an executable called .ico is still an executable.
    QTemporaryDir dir;
    const QString renamed = dir.filePath("pidgin.ico");
    ASSERT_TRUE(QFile::copy(testData("pe/penet_pidgin.exe"), renamed));
    const std::optional<IconSource> source = IconSource::open(testsupport::pathOf(renamed));
    ASSERT_TRUE(source.has_value());
    EXPECT_EQ(source->kind(), Kind::Pe);
    EXPECT_FALSE(IconSource::open(testsupport::pathOf(dir.filePath("missing.exe"))).has_value());
}

TEST(IconSource, PlanesAreTheEditorsChoiceFromTheGroup) {
    // Pidgin's group holds 16, 32 and 48 pixels at 4, 8 and 32 bits: the editor takes the
    // 32×32 image at 32 bits, which the reference holds alone.
    const std::optional<IconSource> pidgin = openSample("pe/penet_pidgin.exe");
    ASSERT_TRUE(pidgin && pidgin->count() == 1);
    const auto expected =
        decodeIconPlanes(fileBytes(testData("pe/reference/penet_pidgin.exe/Icon8.ico")));
    ASSERT_TRUE(expected.has_value());
    EXPECT_TRUE(pidgin->planes(1) == *expected);

    // An icon file is its own single icon.
    const std::vector<std::uint8_t> world = fileBytes(testData("ico/valid/qt_WORLD.ico"));
    const std::optional<IconSource> ico = IconSource::fromBytes(world);
    ASSERT_TRUE(ico.has_value());
    EXPECT_EQ(ico->icoBytes(1), world);
    EXPECT_TRUE(ico->planes(1) == *decodeIconPlanes(world));
    EXPECT_TRUE(ico->resourceName(1).empty());
}

TEST(IconSource, GroupsWithoutImagesCountAndGiveBlankPlanes) {
    const std::optional<IconSource> source =
        openSample("pe/invalid/penet_pidgin_manipulated_GroupIconDirectory.exe");
    ASSERT_TRUE(source && source->count() == 5);
    EXPECT_EQ(ByteReader(source->icoBytes(2)).u16(4), 0);
    EXPECT_TRUE(source->planes(2) == IconPlanes::blank());
    EXPECT_FALSE(source->planes(1) == IconPlanes::blank());
    // Numbers outside 1..count give nothing rather than fail.
    for (int n : {0, -1, 6})
        EXPECT_TRUE(source->icoBytes(n).empty() && source->planes(n) == IconPlanes::blank());
}

TEST(IconSource, ResourceNamesOrNumbers) {
    const struct {
        const char* path;
        int number;
        const char* name;
    } cases[] = {{"icl/pe_format/robloxvrtoggler_icons.icl", 2, "APP_ICON_ROBLOX_ON_2"},
                 {"icl/libexeinfo_win31_control.exe", 1, "1001"},
                 {"ani/pillow_stopwtch.ani", 1, ""}};
    for (const auto& c : cases) {
        const std::optional<IconSource> source = openSample(c.path);
        ASSERT_TRUE(source.has_value()) << c.path;
        EXPECT_EQ(source->resourceName(c.number), c.name) << c.path;
    }
}

TEST(IconSource, AnimatedCursorFramesMatchTheReferences) {
    const struct {
        const char* file;
        int frame; // from 1
        const char* reference;
        int size;
    } cases[] = {{"ani/pillow_stopwtch.ani", 1, "ani/reference/pillow_stopwtch_0.png", 32},
                 {"ani/pillow_stopwtch.ani", 6, "ani/reference/pillow_stopwtch_5.png", 32},
                 {"ani/pillow_aero_busy.ani", 1, "ani/reference/pillow_aero_busy_0.png", 64},
                 {"ani/pillow_aero_busy.ani", 9, "ani/reference/pillow_aero_busy_8.png", 64}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.reference);
        const std::optional<IconSource> source = openSample(c.file);
        ASSERT_TRUE(source.has_value());
        const std::optional<IconBitmap> decoded = decodeIcon(source->icoBytes(c.frame), c.size);
        ASSERT_TRUE(decoded.has_value());
        std::string first;
        EXPECT_EQ(icontest::mismatches(*decoded, QImage(testData(c.reference)), first), 0) << first;
    }
}

#include "icon/IcoAssembly.h"
#include "icon/NeReader.h"
#include "iconqt/FrameImage.h"
#include "resources/icons/IconLibrary.h"
#include "tests/support/TestData.h"

#include <QDir>

#include <gtest/gtest.h>

#include <set>

using namespace icon;

namespace {

std::vector<std::uint8_t> builtLibrary() {
    return testsupport::fileBytes(QString::fromUtf8(ORVANNE_ICON_LIBRARY));
}

} // namespace

TEST(IconLibrary, EveryIconReadsBackAsItsSource) {
    const std::vector<std::uint8_t> library = builtLibrary();
    const auto icons = readNeIcons(library);
    ASSERT_TRUE(icons.has_value());
    const std::vector<iconlib::IconArt> art = iconlib::libraryArt();
    ASSERT_EQ(icons->size(), art.size());
    for (std::size_t i = 0; i < art.size(); ++i) {
        SCOPED_TRACE(art[i].name);
        EXPECT_EQ((*icons)[i].name, art[i].name);
        EXPECT_EQ(assembleIco(library, (*icons)[i]), iconlib::iconFile(art[i]));
    }
}

TEST(IconLibrary, IconsAreDrawnNotEmpty) {
    // A sheet of every icon, to look at.
    EXPECT_TRUE(iconqt::toImage(iconlib::contactSheet()).save(
        QDir(testsupport::screenshotFolder()).filePath("icon_library.png")));

    // Many icons, each at 32 pixels and most at three sizes. Each 32×32 image has both opaque and
    // transparent pixels and more than a couple of colours, and no two icons look the same.
    const std::vector<iconlib::IconArt> art = iconlib::libraryArt();
    EXPECT_GE(art.size(), 40u);
    std::size_t threeSizes = 0;
    std::set<std::vector<Colour>> seen;
    for (const iconlib::IconArt& a : art) {
        SCOPED_TRACE(a.name);
        EXPECT_NE(std::find(a.sizes.begin(), a.sizes.end(), 32), a.sizes.end());
        threeSizes += a.sizes == std::vector<int>{16, 32, 48};
        const IconBitmap b = iconlib::paint(a, 32);
        std::set<Colour> colours;
        std::vector<Colour> look;
        int opaque = 0;
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x) {
                const bool clear = isTransparentMask(b.mask.at(x, y));
                opaque += !clear;
                if (!clear)
                    colours.insert(b.image.at(x, y));
                look.push_back(clear ? kWhite + 1 : b.image.at(x, y));
            }
        EXPECT_GT(opaque, 100);
        EXPECT_LT(opaque, 1024);
        EXPECT_GE(colours.size(), 4u);
        EXPECT_TRUE(seen.insert(look).second);
    }
    EXPECT_GT(2 * threeSizes, art.size());
}

// The browser's own rules for showing icons and taking keys and drops: the cell pictures, their
// cache, the keys of the grid and where a drop leads.
#include "browser/CellPicture.h"
#include "browser/BrowserInput.h"
#include "browser/ThumbnailCache.h"

#include "tests/browser/FakeProvider.h"
#include "tests/icon/IcoFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using browser::CellPicture;
using icontest::BitmapPlan;

std::vector<std::uint8_t> plainImage(int side, int bits, std::uint32_t colour) {
    BitmapPlan plan;
    plan.width = plan.height = side;
    plan.bits = bits;
    plan.pixel = [colour](int, int) {
        return colour;
    };
    return icontest::dib(plan);
}

icon::Colour centreOf(const CellPicture& picture, icon::Colour background = icon::kBlack) {
    return browser::blendOver(picture, background).at(picture.side / 2, picture.side / 2);
}

TEST(CellPicture, AlphaAndMasksAreBlendedOverTheBackground) {
    // One row of a 32-bit image (0xAARRGGBB) over a grey background.
    const std::uint32_t row[4] = {0xFFFF0000u, 0x80FFFFFFu, 0x00000000u, 0x40000000u};
    BitmapPlan alpha;
    alpha.width = 4;
    alpha.height = 4;
    alpha.bits = 32;
    alpha.pixel = [&](int x, int) {
        return row[x];
    };
    const auto picture = browser::decodeCellPicture(icontest::icoFile(alpha), 4);
    ASSERT_TRUE(picture);
    const icon::Frame shown = browser::blendOver(*picture, icon::rgb(100, 100, 100));
    EXPECT_EQ(shown.at(0, 0), icon::rgb(255, 0, 0));
    EXPECT_EQ(shown.at(1, 0), icon::rgb(178, 178, 178)) << "half white over grey";
    EXPECT_EQ(shown.at(2, 0), icon::rgb(100, 100, 100));
    EXPECT_EQ(shown.at(3, 0), icon::rgb(75, 75, 75)) << "a quarter of black";

    // An old icon: the AND mask cuts, and a coloured pixel under a white mask inverts.
    BitmapPlan masked;
    masked.width = masked.height = 4;
    masked.pixel = [](int x, int) {
        return x == 2 ? icon::kWhite : x == 0 ? icon::rgb(0, 0, 255) : icon::kBlack;
    };
    masked.transparent = [](int x, int) {
        return x >= 1;
    };
    const auto old = browser::decodeCellPicture(icontest::icoFile(masked), 8);
    ASSERT_TRUE(old);
    const icon::Frame oldShown = browser::blendOver(*old, icon::rgb(10, 20, 30));
    EXPECT_EQ(oldShown.at(0, 0), icon::rgb(0, 0, 255));
    EXPECT_EQ(oldShown.at(2, 0), icon::rgb(10, 20, 30)) << "transparent";
    EXPECT_EQ(oldShown.at(4, 0), icon::rgb(245, 235, 225)) << "inverted";
}

TEST(CellPicture, TheImageMadeForTheSizeOrElseTheNearestLargerOne) {
    const auto file = icontest::icoFile({
        {16, 16, 24, plainImage(16, 24, icon::rgb(255, 0, 0))},
        {32, 32, 8, plainImage(32, 24, icon::rgb(0, 100, 0))},
        {32, 32, 32, plainImage(32, 32, 0xFF00FF00u)},
        {64, 64, 32, icontest::png(64, 64, [](int, int) { return 0xFF0000FFu; })},
    });
    const struct {
        int side;
        icon::Colour colour;
    } cases[] = {
        {16, icon::rgb(255, 0, 0)},  {32, icon::rgb(0, 255, 0)}, // the deeper of the two 32s
        {24, icon::rgb(0, 255, 0)}, // shrunk from 32 rather than grown from 16
        {48, icon::rgb(0, 0, 255)}, // from the 64 PNG
        {128, icon::rgb(0, 0, 255)},
    };
    for (const auto& c : cases) {
        const auto picture = browser::decodeCellPicture(file, c.side);
        ASSERT_TRUE(picture) << c.side;
        EXPECT_EQ(picture->side, c.side);
        EXPECT_EQ(centreOf(*picture), c.colour) << c.side;
    }
    EXPECT_FALSE(browser::decodeCellPicture(std::vector<std::uint8_t>(40, 0), 32));
}

TEST(CellPicture, ShrinkingAveragesThePixelsEachCellCovers) {
    BitmapPlan stripes;
    stripes.width = stripes.height = 64;
    stripes.bits = 32;
    stripes.pixel = [](int x, int) {
        return x % 2 ? 0xFFFFFFFFu : 0xFF000000u;
    };
    const auto picture = browser::decodeCellPicture(icontest::icoFile(stripes), 32);
    ASSERT_TRUE(picture);
    EXPECT_EQ(centreOf(*picture), icon::rgb(128, 128, 128))
        << "one-pixel lines turn grey, not lost";
}

TEST(ThumbnailCache, TheLeastRecentlyUsedGoFirstPastTheBudget) {
    browser::Thumbnail one;
    one.picture.side = 16;
    one.picture.pixels.assign(256, 0);
    browser::ThumbnailCache cache(0);
    cache.put("a", one);
    EXPECT_EQ(cache.size(), 1u) << "what was just put stays, whatever the budget";
    cache.setBudget(3 * 1024 + 900); // three pictures of 1 KB and their keys
    cache.put("b", one);
    cache.put("c", one);
    ASSERT_NE(cache.use("a"), nullptr);
    cache.put("d", one);
    EXPECT_EQ(cache.peek("b"), nullptr);
    for (const char* kept : {"a", "c", "d"})
        EXPECT_NE(cache.peek(kept), nullptr) << kept;
    EXPECT_LE(cache.bytes(), cache.budget());
    cache.erase("a");
    cache.clear();
    EXPECT_EQ(cache.bytes(), 0u);
}

TEST(BrowserKeys, EachKeyMovesTheGridOrCallsTheEditor) {
    QTemporaryDir dir;
    browsertest::makeIcons(dir.path(), 100);
    browsertest::FakeProvider provider;
    browser::IconGrid grid(provider);
    grid.openFolder(dir.path());
    const struct {
        int key;
        int expected; // from 50; 0 for the editor
    } cases[] = {{Qt::Key_PageDown, 92}, {Qt::Key_PageUp, 8}, {Qt::Key_Down, 57},
                 {Qt::Key_Up, 43},       {Qt::Key_Home, 1},   {Qt::Key_End, 100},
                 {Qt::Key_Return, 0},    {Qt::Key_Enter, 0}};
    for (const auto& c : cases) {
        grid.first();
        for (int line = 0; line < 7; ++line)
            grid.lineNext();
        ASSERT_EQ(grid.current(), 50);
        const auto key = browser::gridKey(c.key);
        ASSERT_TRUE(key) << c.key;
        EXPECT_EQ(browser::applyGridKey(grid, *key), c.expected != 0);
        EXPECT_EQ(grid.current(), c.expected == 0 ? 50 : c.expected) << c.key;
    }
    for (int other : {Qt::Key_Left, Qt::Key_Space, Qt::Key_Tab, Qt::Key_A})
        EXPECT_FALSE(browser::gridKey(other)) << other;
}

TEST(BrowserDrops, AFolderShowsItselfAnIconItsFolderCentredOnIt) {
    QTemporaryDir dir;
    const QString folder = dir.filePath(QStringLiteral("icônes"));
    browsertest::makeIcons(folder, 3);
    QFile(QDir(folder).filePath(QStringLiteral("Grand.ICO"))).open(QIODevice::WriteOnly);
    QFile(QDir(folder).filePath(QStringLiteral("image.png"))).open(QIODevice::WriteOnly);
    QDir(folder).mkdir(QStringLiteral("dossier.ico"));
    const auto path = [&](const char* name) {
        return std::filesystem::path(
            QFile::encodeName(QDir(folder).filePath(QString::fromUtf8(name))).toStdString());
    };
    const std::filesystem::path base = QFile::encodeName(folder).toStdString();

    const auto asFolder = browser::dropTarget(base);
    ASSERT_TRUE(asFolder);
    EXPECT_EQ(asFolder->folder, base);
    EXPECT_FALSE(asFolder->icon);
    const auto asIcon = browser::dropTarget(path("Grand.ICO"));
    ASSERT_TRUE(asIcon);
    EXPECT_EQ(asIcon->folder, base);
    EXPECT_EQ(asIcon->icon, path("Grand.ICO"));
    const auto folderNamedIco = browser::dropTarget(path("dossier.ico"));
    ASSERT_TRUE(folderNamedIco);
    EXPECT_FALSE(folderNamedIco->icon);
    EXPECT_FALSE(browser::dropTarget(path("image.png")));
    EXPECT_FALSE(browser::dropTarget(path("absent.ico")));
    EXPECT_FALSE(browser::dropTarget("relative/icon0001.ico"));
}

} // namespace

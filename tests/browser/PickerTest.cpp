#include "browser/BmpExport.h"
#include "browser/BmpViewer.h"
#include "browser/PickerCells.h"
#include "browser/PickerLayout.h"
#include "browser/PickerState.h"
#include "browser/WindowsFiles.h"
#include "tests/support/SharedIconsPe.h"
#include "tests/support/TestData.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace {

using testsupport::pathOf;

using browser::PickerCells;
using browser::PickerLayout;
using browser::WindowsFiles;
namespace fs = std::filesystem;

PickerCells cellsOf(std::vector<std::uint8_t> bytes) {
    auto source = icon::IconSource::fromBytes(std::move(bytes));
    EXPECT_TRUE(source.has_value());
    return PickerCells(std::move(*source));
}

TEST(PickerLayout, RowsHeightAndScrollRange) {
    const struct {
        int count, rows, height;
        bool scrolls;
        int range;
    } cases[] = {
        {0, 0, 190, false, 0},  {1, 1, 190, false, 0},  {10, 1, 190, false, 0},
        {11, 2, 190, false, 0}, {50, 5, 190, false, 0}, {51, 6, 228, true, 38},
        {60, 6, 228, true, 38}, {61, 7, 266, true, 76}, {30000, 3000, 114000, true, 113810}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.count);
        EXPECT_EQ(PickerLayout::rows(c.count), c.rows);
        EXPECT_EQ(PickerLayout::gridHeight(c.count), c.height);
        EXPECT_EQ(PickerLayout::scrolls(c.count), c.scrolls);
        EXPECT_EQ(PickerLayout::scrollRange(c.count), c.range);
    }
}

TEST(PickerLayout, IconsLieTenARowAndAPointSelectsTheCellUnderIt) {
    EXPECT_EQ(PickerLayout::iconOrigin(0), (PickerLayout::Point{3, 3}));
    EXPECT_EQ(PickerLayout::iconOrigin(9), (PickerLayout::Point{345, 3}));
    EXPECT_EQ(PickerLayout::iconOrigin(10), (PickerLayout::Point{3, 41}));
    const struct {
        int x, y, count;
        std::optional<int> number;
    } cases[] = {{0, 0, 60, 1},    {37, 37, 60, 1}, {38, 0, 60, 2},     {379, 0, 60, 10},
                 {380, 0, 60, {}}, {0, 38, 60, 11}, {200, 227, 60, 56}, {100, 0, 2, {}},
                 {0, 38, 10, {}},  {-1, 5, 60, {}}, {5, -1, 60, {}},    {0, 113962, 30000, 29991}};
    for (const auto& c : cases)
        EXPECT_EQ(PickerLayout::iconAt({c.x, c.y}, c.count), c.number) << c.x << "," << c.y;
}

TEST(PickerLayout, RowsInViewFollowTheScroll) {
    using Rows = PickerLayout::Rows;
    EXPECT_EQ(PickerLayout::rowsInView(0, 60), (Rows{0, 4}));
    EXPECT_EQ(PickerLayout::rowsInView(20, 60), (Rows{0, 5}));
    EXPECT_EQ(PickerLayout::rowsInView(38, 60), (Rows{1, 5}));
    EXPECT_EQ(PickerLayout::rowsInView(500, 60), (Rows{1, 5})) << "clamped to the range";
    EXPECT_EQ(PickerLayout::rowsInView(0, 12), (Rows{0, 1}));
    EXPECT_EQ(PickerLayout::rowsInView(0, 0), (Rows{0, -1}));
}

TEST(WindowsFiles, LookedForInThePrefixThenItsSystemFoldersThenWinesLibraries) {
    QTemporaryDir dir;
    const fs::path prefix = pathOf(dir.filePath(QStringLiteral("préfixe")));
    const fs::path windows = prefix / "drive_c" / "windows";
    const auto folders = WindowsFiles::folders(prefix, "/home/nobody");
    ASSERT_GE(folders.size(), 4u);
    EXPECT_EQ(folders[0], windows);
    EXPECT_EQ(folders[1], windows / "system32");
    EXPECT_EQ(folders[2], windows / "system");
    EXPECT_EQ(std::vector(folders.begin() + 3, folders.end()), WindowsFiles::libraryFolders());
    EXPECT_EQ(WindowsFiles::folders({}, "/home/nobody")[0],
              fs::path("/home/nobody/.wine/drive_c/windows"))
        << "the default prefix";
    ::setenv("WINEPREFIX", prefix.c_str(), 1);
    EXPECT_EQ(WindowsFiles::foldersOfThisUser()[0], windows) << "the user's own prefix";
    ::unsetenv("WINEPREFIX");

    const fs::path library = pathOf(dir.filePath(QStringLiteral("wine-libs")));
    for (const fs::path& folder : {windows / "system32", windows / "system", library})
        fs::create_directories(folder);
    auto touch = [](const fs::path& file) {
        std::ofstream(file) << "x";
    };
    touch(windows / "system32" / "shell32.dll");
    touch(windows / "system" / "shell32.dll");
    touch(windows / "system" / "User.exe");
    touch(library / "shell32.dll");
    touch(library / "cool.dll");
    fs::create_directories(windows / "explorer.exe"); // a folder is not the file
    const std::vector<fs::path> order{windows, windows / "system32", windows / "system", library};

    EXPECT_EQ(WindowsFiles::find(QStringLiteral("shell32.dll"), order),
              windows / "system32" / "shell32.dll");
    EXPECT_EQ(WindowsFiles::find(QStringLiteral("user.exe"), order),
              windows / "system" / "User.exe");
    EXPECT_EQ(WindowsFiles::find(QStringLiteral("cool.dll"), order), library / "cool.dll");
    EXPECT_EQ(WindowsFiles::find(QStringLiteral("explorer.exe"), order), std::nullopt);
}

TEST(PickerCells, ThousandsOfGroupsSharingOneLargeImageDecodeItOnce) {
    PickerCells cells = cellsOf(testsupport::sharedIconsPe(30000, 256, 0xFF2060C0));
    ASSERT_EQ(cells.count(), 30000);
    EXPECT_TRUE(cells.decode(1, 50, 1));
    EXPECT_EQ(cells.bytesDecoded(), cells.cost(1)) << "one image, shared by every group";
    EXPECT_GT(cells.cost(1), 256u * 256u * 4u);
    ASSERT_NE(cells.cell(50), nullptr);
    EXPECT_EQ(cells.cell(51), nullptr) << "only the cells asked for";
    EXPECT_EQ(cells.cell(1)->image.at(5, 5), icon::Colour{0xC06020});
    EXPECT_TRUE(cells.cell(1)->mask.at(5, 5) == icon::kBlack);

    EXPECT_TRUE(cells.decode(29951, 30000));
    EXPECT_NE(cells.cell(30000), nullptr);
    EXPECT_EQ(cells.bytesDecoded(), cells.cost(1));
}

TEST(PickerCells, ABudgetSpreadsDistinctIconsOverSeveralPasses) {
    PickerCells cells =
        cellsOf(testsupport::fileBytes(testsupport::testData("pe/penet_firefox_x64.exe")));
    ASSERT_EQ(cells.count(), 6);
    int passes = 1;
    while (!cells.decode(1, 6, 1))
        ++passes;
    EXPECT_EQ(passes, 6) << "one icon a pass when each is over budget";
    for (int n = 1; n <= 6; ++n)
        EXPECT_NE(cells.cell(n), nullptr) << n;
}

TEST(PickerCells, AnAnimatedCursorShowsItsFirstFrameEverywhere) {
    const QString path = testsupport::testData("ani/breeze_wait.ani");
    PickerCells cells = cellsOf(testsupport::fileBytes(path));
    ASSERT_GT(cells.count(), 1);
    EXPECT_TRUE(cells.firstInEveryCell());
    EXPECT_TRUE(cells.decode(1, cells.count()));
    EXPECT_EQ(cells.cell(cells.count()), cells.cell(1));
    EXPECT_EQ(browser::picker::takenIcon(pathOf(path), cells.source(), 3), 1);
}

TEST(PickerState, TextsAndTheIconTaken) {
    using namespace browser::picker;
    EXPECT_EQ(infoText(12), QStringLiteral("Icône n°12 sélectionnée"));
    EXPECT_EQ(windowTitle(QStringLiteral("shell32.dll"), 240),
              QStringLiteral("Orvanne® - Visualisation DLL... - shell32.dll - 240 icônes"));
    EXPECT_EQ(noIconText(QStringLiteral("vide.dll")),
              QStringLiteral("vide.dll ne contient pas d'icône"));
    EXPECT_EQ(openFilter(),
              QStringLiteral("Tous les fichiers (*.*)|*.*|Curseurs animés (*.ani)|*.ani|"
                             "Librairies de liens dynamiques (*.dll)|*.dll|Fichiers exécutables "
                             "(*.exe)|*.exe|Librairies d'icônes (*.icl)|*.icl"));
    EXPECT_EQ(openTitle(), QStringLiteral("Orvanne® - Ouvrir"));

    const QString pe = testsupport::testData("pe/penet_firefox_x64.exe");
    auto cells = openIcons(pathOf(pe));
    ASSERT_TRUE(cells.has_value());
    EXPECT_EQ(takenIcon(pathOf(pe), cells->source(), 4), 4);
    EXPECT_FALSE(openIcons(pathOf(testsupport::testData("pe/aclock-x64-win64_no_resources.exe"))));
    EXPECT_FALSE(openIcons(pathOf(testsupport::testData("pe"))));
    EXPECT_FALSE(openIcons("/nowhere/at/all.dll"));

    auto state = browser::PickerState::startingOn("/opt/orvanne/Orvanne®.icl");
    EXPECT_EQ(state.fileName(), QStringLiteral("Orvanne®.icl"));
    EXPECT_EQ(state.lastFolder, fs::path("/opt/orvanne"));
    EXPECT_EQ(state.filterIndex, 5);
    state.choose("/w/system32/shell32.dll");
    EXPECT_EQ(state.lastFolder, fs::path("/w/system32"));
}

TEST(BmpExport, ThePictureIsTheIconAtTheViewSizeOverItsBackground) {
    browser::Thumbnail thumbnail;
    thumbnail.state = browser::Thumbnail::State::Icon;
    icon::IconBitmap bitmap{icon::Frame(96, 96, 0x0000FF), icon::Frame(96, 96, icon::kBlack)};
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 2; ++x) {
            bitmap.mask.set(x, y, icon::kWhite);
            bitmap.image.set(x, y, icon::kBlack);
        }
    // Decoded for a screen at twice the scale: the file still gets the view's size.
    thumbnail.picture = browser::fromBitmap(bitmap);
    const icon::Frame picture = browser::BmpExport::picture(&thumbnail, 48, icon::Colour{0x336699});
    EXPECT_EQ(picture.width(), 48);
    EXPECT_EQ(picture.at(0, 0), icon::Colour{0x336699}) << "the background shows through";
    EXPECT_EQ(picture.at(1, 1), icon::Colour{0x0000FF});
    EXPECT_EQ(browser::BmpExport::picture(nullptr, 32, 0x123456), icon::Frame(32, 32, 0x123456));

    browser::BmpExport bmp;
    bmp.written("/home/u/images/Test.bmp");
    EXPECT_EQ(bmp.folder, fs::path("/home/u/images"));
}

} // namespace

namespace {

TEST(BmpViewer, BothSizesShareTheirCentreAndOnlyBmpFilesAreListed) {
    for (int side : {32, 48}) {
        const auto place = browser::BmpViewer::place(side);
        EXPECT_EQ(place.side, side);
        EXPECT_EQ(place.left + side / 2, 39) << side;
        EXPECT_EQ(place.top + side / 2, 34) << side;
    }
    QTemporaryDir dir;
    const fs::path folder = pathOf(dir.path());
    for (const char* name : {"b.BMP", "A.bmp", "c.ico", "bmp", "é.bmp"})
        std::ofstream(folder / name) << "x";
    fs::create_directories(folder / "dossier.bmp");
    EXPECT_EQ(browser::BmpViewer::files(folder),
              (std::vector<fs::path>{"A.bmp", "b.BMP", "é.bmp"}));
    EXPECT_TRUE(browser::BmpViewer::files(folder / "absent").empty());
}

} // namespace

// Folders and files whose names are not valid text, and files that are not files, as the grid
// meets them.
#include "browser/FolderTree.h"
#include "browser/IconGrid.h"
#include "browser/ThumbnailProvider.h"

#include "icon/FileBytes.h"
#include "icon/IcoWriter.h"
#include "iconqt/Paths.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

using browser::IconGrid;
using browser::ScanResult;
using browser::Thumbnail;

std::filesystem::path makeIcon(const std::filesystem::path& folder, const std::string& name) {
    const std::filesystem::path file = folder / name;
    EXPECT_TRUE(icon::writeIconFile(file, icon::IconPlanes::blank()).ok());
    return file;
}

} // namespace

// A file or a folder named by bytes that are not UTF-8 lists, shows and opens like any other.
TEST(ByteNames, NamesThatAreNotTextShowAndOpen) {
    QTemporaryDir dir;
    const std::filesystem::path root = iconqt::pathFromText(dir.path());
    for (const std::filesystem::path& folder : {root, root / std::string("dossier\xe9\xff")}) {
        SCOPED_TRACE(folder.native());
        std::filesystem::create_directories(folder);
        makeIcon(folder, "bad\xff\xfe.ico");
        makeIcon(folder, "bon.ico");
        browser::IcoThumbnailProvider provider;
        IconGrid grid(provider);
        ASSERT_EQ(grid.openFolder(folder), ScanResult::Listed);
        ASSERT_EQ(grid.count(), 2);
        EXPECT_EQ(grid.entries()[0].file, folder / std::string("bad\xff\xfe.ico"));
        EXPECT_TRUE(grid.pathText().startsWith(grid.folder().toLower()));
        EXPECT_EQ(grid.folderPath().native(), folder.native() + "/");
        EXPECT_TRUE(grid.loadPage()) << "no file reads as missing";
        const Thumbnail* centre = grid.cell(grid.geometry().centre);
        ASSERT_NE(centre, nullptr);
        EXPECT_EQ(centre->state, Thumbnail::State::Icon);
    }
    // Names Qt cannot spell cannot be removed through it.
    std::filesystem::remove_all(root / std::string("dossier\xe9\xff"));
    std::filesystem::remove(root / std::string("bad\xff\xfe.ico"));
}

// The folder list names folders by their bytes too, so that such a folder can be entered.
TEST(ByteNames, TheFolderListKeepsTheBytesOfEachFolder) {
    QTemporaryDir dir;
    const std::filesystem::path root = iconqt::pathFromText(dir.path());
    const std::filesystem::path odd = root / std::string("Z\xe9\xff");
    std::filesystem::create_directories(odd / "dedans");
    std::filesystem::create_directories(root / "a");
    const auto items = browser::folderItems(root);
    ASSERT_GE(items.size(), 3u);
    EXPECT_EQ(items[items.size() - 2].file, root / "a");
    EXPECT_EQ(items.back().file, odd);
    const auto inside = browser::folderItems(odd);
    EXPECT_EQ(inside[static_cast<std::size_t>(browser::currentItem(inside))].file, odd);
    EXPECT_EQ(inside.back().file, odd / "dedans");
    std::filesystem::remove_all(odd);
}

// A file replaced by a FIFO before its page is shown is an unreadable cell, at once.
TEST(ByteNames, AFifoInPlaceOfAnIconIsUnreadableAndDoesNotBlock) {
    QTemporaryDir dir;
    const std::filesystem::path folder = iconqt::pathFromText(dir.path());
    const std::filesystem::path file = makeIcon(folder, "a.ico");
    makeIcon(folder, "b.ico");
    browser::IcoThumbnailProvider provider;
    IconGrid grid(provider);
    ASSERT_EQ(grid.openFolder(folder), ScanResult::Listed);
    std::filesystem::remove(file);
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_TRUE(grid.loadPage());
    ASSERT_NE(grid.cell(grid.geometry().centre), nullptr);
    EXPECT_EQ(grid.cell(grid.geometry().centre)->state, Thumbnail::State::Unreadable);
    EXPECT_EQ(grid.cell(grid.geometry().centre + 1)->state, Thumbnail::State::Icon);
}

#include "browser/IconGrid.h"

#include "tests/browser/FakeProvider.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

namespace {

using browser::GridGeometry;
using browser::GridView;
using browser::IconGrid;
using browser::ScanResult;
using browsertest::FakeProvider;
using browsertest::makeIcons;

class IconGridTest : public ::testing::Test {
protected:
    QString folder(int count) {
        const QString path = m_dir.filePath(QStringLiteral("f%1").arg(count));
        makeIcons(path, count);
        return path;
    }
    QTemporaryDir m_dir;
    FakeProvider m_provider;
    IconGrid m_grid{m_provider};
};

TEST_F(IconGridTest, CountAndPathTexts) {
    const struct {
        int count;
        const char* countText;
    } cases[] = {{0, "Dossier vide..."}, {1, "1 icône"}, {2, "2 icônes"}, {12, "12 icônes"}};
    for (const auto& c : cases) {
        const ScanResult result = m_grid.openFolder(folder(c.count));
        EXPECT_EQ(result, c.count == 0 ? ScanResult::Empty : ScanResult::Listed);
        EXPECT_EQ(m_grid.countText(), QString::fromUtf8(c.countText));
        if (c.count == 0) {
            EXPECT_EQ(m_grid.pathText(),
                      QStringLiteral("Sélectionnez un dossier contenant des icônes (*.ico)"));
            EXPECT_EQ(m_grid.current(), 0);
        } else {
            EXPECT_EQ(m_grid.pathText(),
                      (m_grid.folder() + QStringLiteral("icon0001.ico")).toLower());
            EXPECT_EQ(m_grid.current(), 1);
        }
    }
}

struct MoveCase {
    GridView view;
    int start;
    std::function<void(IconGrid&)> move;
    int expected;
    const char* what;
};

TEST_F(IconGridTest, EveryMoveWithItsArithmeticAndClamping) {
    const QString hundred = folder(100);
    const auto page = [](IconGrid& g) {
        g.pageNext();
    };
    const auto back = [](IconGrid& g) {
        g.pagePrevious();
    };
    const auto line = [](IconGrid& g) {
        g.lineNext();
    };
    const auto up = [](IconGrid& g) {
        g.linePrevious();
    };
    const auto cell = [](int k) {
        return [k](IconGrid& g) {
            g.clickCell(k);
        };
    };
    const MoveCase cases[] = {
        {GridView::Icons32, 1, page, 43, "page from 1"},
        {GridView::Icons32, 43, page, 85, "page from 43"},
        {GridView::Icons32, 85, page, 100, "page clamped"},
        {GridView::Icons32, 100, back, 58, "page back from 100"},
        {GridView::Icons32, 30, back, 1, "page back clamped"},
        {GridView::Icons32, 1, line, 8, "line"},
        {GridView::Icons32, 97, line, 100, "line clamped"},
        {GridView::Icons32, 8, up, 1, "line back"},
        {GridView::Icons32, 3, up, 1, "line back clamped"},
        {GridView::Icons32, 50, [](IconGrid& g) { g.first(); }, 1, "first"},
        {GridView::Icons32, 50, [](IconGrid& g) { g.last(); }, 100, "last"},
        {GridView::Icons32, 30, cell(0), 6, "top-left cell"},
        {GridView::Icons32, 10, cell(0), 1, "top-left cell clamped"},
        {GridView::Icons32, 30, cell(48), 54, "bottom-right cell"},
        {GridView::Icons32, 99, cell(48), 100, "bottom-right cell clamped"},
        {GridView::Icons32, 30, cell(25), 31, "right of centre"},
        {GridView::Icons48, 1, page, 21, "48: page"},
        {GridView::Icons48, 90, page, 100, "48: page clamped"},
        {GridView::Icons48, 100, back, 80, "48: page back"},
        {GridView::Icons48, 1, line, 6, "48: line"},
        {GridView::Icons48, 6, up, 1, "48: line back"},
        {GridView::Icons48, 30, cell(0), 18, "48: top-left cell"},
        {GridView::Icons48, 30, cell(24), 42, "48: bottom-right cell"},
        {GridView::Icons48, 5, cell(0), 1, "48: top-left cell clamped"},
    };
    for (const MoveCase& c : cases) {
        m_grid.setView(c.view);
        m_grid.openFolder(hundred);
        // Reach the start index one step at a time, through the cell right of the centre.
        for (int i = 1; i < c.start; ++i)
            m_grid.clickCell(GridGeometry::of(c.view).centre + 1);
        ASSERT_EQ(m_grid.current(), c.start) << c.what;
        c.move(m_grid);
        EXPECT_EQ(m_grid.current(), c.expected) << c.what;
    }
}

TEST_F(IconGridTest, OneIconStaysCentredWhateverTheMove) {
    m_grid.openFolder(folder(1));
    for (auto move : {&IconGrid::pageNext, &IconGrid::pagePrevious, &IconGrid::lineNext,
                      &IconGrid::linePrevious, &IconGrid::first, &IconGrid::last}) {
        (m_grid.*move)();
        EXPECT_EQ(m_grid.current(), 1);
    }
    m_grid.clickCell(0);
    EXPECT_EQ(m_grid.current(), 1);
    for (int k = 0; k < 49; ++k)
        EXPECT_EQ(m_grid.entryOfCell(k).has_value(), k == 24) << k;
}

TEST_F(IconGridTest, CellsBeforeTheStartOfTheListStayEmpty) {
    m_grid.openFolder(folder(100));
    EXPECT_FALSE(m_grid.entryOfCell(23));
    EXPECT_EQ(*m_grid.entryOfCell(24), 1);
    EXPECT_EQ(*m_grid.entryOfCell(48), 25);
    m_grid.last();
    EXPECT_EQ(*m_grid.entryOfCell(0), 76);
    EXPECT_FALSE(m_grid.entryOfCell(25));
}

TEST_F(IconGridTest, MovesDoNothingInAnEmptyFolder) {
    m_grid.openFolder(folder(0));
    m_grid.pageNext();
    m_grid.last();
    m_grid.clickCell(30);
    EXPECT_EQ(m_grid.current(), 0);
    EXPECT_EQ(m_grid.centred(), nullptr);
    EXPECT_TRUE(m_grid.loadPage());
}

TEST_F(IconGridTest, ARefreshKeepsTheIndexWithinTheNewCount) {
    const QString path = folder(100);
    m_grid.openFolder(path);
    for (int i = 0; i < 2; ++i)
        m_grid.pageNext(); // 85
    for (int i = 61; i <= 100; ++i)
        QFile::remove(
            QDir(path).filePath(QStringLiteral("icon%1.ico").arg(i, 4, 10, QLatin1Char('0'))));
    EXPECT_EQ(m_grid.refresh(), ScanResult::Listed);
    EXPECT_EQ(m_grid.count(), 60);
    EXPECT_EQ(m_grid.current(), 60);
    m_grid.clickCell(0); // 36
    EXPECT_EQ(m_grid.refresh(), ScanResult::Listed);
    EXPECT_EQ(m_grid.current(), 36);
    QDir(path).removeRecursively();
    QDir().mkpath(path);
    EXPECT_EQ(m_grid.refresh(), ScanResult::Empty);
    EXPECT_EQ(m_grid.current(), 0);
    makeIcons(path, 3);
    m_grid.refresh();
    EXPECT_EQ(m_grid.current(), 1) << "an index below 1 becomes 1";
}

TEST_F(IconGridTest, EachViewComesBackAtItsOwnIndex) {
    m_grid.openFolder(folder(100));
    m_grid.pageNext(); // 43 in 32×32
    EXPECT_EQ(m_grid.switchView(), ScanResult::Listed);
    EXPECT_EQ(m_grid.view(), GridView::Icons48);
    EXPECT_EQ(m_grid.current(), 1) << "the first icon the first time";
    m_grid.pageNext(); // 21 in 48×48
    m_grid.switchView();
    EXPECT_EQ(m_grid.current(), 43);
    m_grid.switchView();
    EXPECT_EQ(m_grid.current(), 21);
}

TEST_F(IconGridTest, AFolderThatCannotBeReadChangesNothing) {
    m_grid.openFolder(folder(12));
    m_grid.lineNext();
    EXPECT_EQ(m_grid.openFolder(m_dir.filePath(QStringLiteral("gone"))), ScanResult::FolderMissing);
    EXPECT_EQ(m_grid.count(), 12);
    EXPECT_EQ(m_grid.current(), 8);
    EXPECT_TRUE(m_grid.folder().endsWith(QStringLiteral("f12/")));
}

TEST_F(IconGridTest, APageDecodesOnlyItsVisibleCellsAndKeepsThem) {
    m_grid.openFolder(folder(300));
    EXPECT_EQ(m_provider.decoded, 0) << "scanning reads no icon";
    ASSERT_TRUE(m_grid.loadPage());
    EXPECT_EQ(m_provider.decoded, 25); // the centre and the 24 cells after it
    ASSERT_TRUE(m_grid.loadPage());
    EXPECT_EQ(m_provider.decoded, 25);
    m_grid.pageNext(); // 43: entries 19 to 67, of which 26 to 67 are new
    ASSERT_TRUE(m_grid.loadPage());
    EXPECT_EQ(m_provider.decoded, 67);
    m_grid.pagePrevious();
    ASSERT_TRUE(m_grid.loadPage());
    EXPECT_EQ(m_provider.decoded, 67);
    const browser::Thumbnail* centre = m_grid.cell(24);
    ASSERT_NE(centre, nullptr);
    EXPECT_EQ(centre->state, browser::Thumbnail::State::Icon);
    EXPECT_EQ(centre->picture.side, 32);
    m_grid.switchView();
    ASSERT_TRUE(m_grid.loadPage());
    EXPECT_EQ(m_grid.cell(12)->picture.side, 48);
    m_grid.setDeviceScale(2.0); // a screen at twice the scale: cells decoded at 96 pixels
    ASSERT_TRUE(m_grid.loadPage());
    EXPECT_EQ(m_grid.cell(12)->picture.side, 96);
}

TEST_F(IconGridTest, PagingThroughALargeFolderKeepsTheCacheWithinItsBudget) {
    // A budget below two pages is raised to two pages: the page shown always stays whole.
    IconGrid grid(m_provider, 1);
    grid.openFolder(folder(1000));
    for (int page = 0; page < 30; ++page) {
        ASSERT_TRUE(grid.loadPage());
        for (int k = 0; k < 49; ++k) {
            if (grid.entryOfCell(k)) {
                ASSERT_NE(grid.cell(k), nullptr) << "page " << page << " cell " << k;
            }
        }
        grid.pageNext();
    }
    const int decoded = m_provider.decoded;
    grid.pagePrevious(); // the page before is still held
    ASSERT_TRUE(grid.loadPage());
    EXPECT_EQ(m_provider.decoded, decoded);
    grid.first(); // long gone
    ASSERT_TRUE(grid.loadPage());
    EXPECT_EQ(m_provider.decoded, decoded + 25);
}

TEST_F(IconGridTest, CentreOnFindsAFileOfTheList) {
    const QString path = folder(100);
    m_grid.openFolder(path);
    EXPECT_TRUE(m_grid.centreOn(QDir(path).filePath(QStringLiteral("icon0077.ico")).toStdString()));
    EXPECT_EQ(m_grid.current(), 77);
    EXPECT_FALSE(m_grid.centreOn("/nowhere/icon0003.ico"));
    EXPECT_EQ(m_grid.current(), 77);
}

TEST_F(IconGridTest, AFileRemovedBehindTheProgramsBackStopsTheDisplay) {
    const QString path = folder(60);
    m_grid.openFolder(path);
    ASSERT_TRUE(m_grid.loadPage());
    QFile::remove(QDir(path).filePath(QStringLiteral("icon0020.ico")));
    m_grid.pageNext(); // shows 19 to 67: the picture of 20 is still held
    EXPECT_TRUE(m_grid.loadPage());
    m_grid.first();
    for (int i = 1; i < 20; ++i)
        m_grid.clickCell(25);
    EXPECT_FALSE(m_grid.reloadCentre()) << "the centred file is gone";
    EXPECT_EQ(m_grid.refresh(), ScanResult::Listed);
    EXPECT_EQ(m_grid.count(), 59);
    EXPECT_TRUE(m_grid.loadPage());
}

TEST_F(IconGridTest, AFileRemovedBeforeItsPageIsShownIsReported) {
    const QString path = folder(100);
    m_grid.openFolder(path);
    ASSERT_TRUE(m_grid.loadPage());
    QFile::remove(QDir(path).filePath(QStringLiteral("icon0080.ico")));
    m_grid.pageNext();
    m_grid.pageNext(); // 85: entry 80 is cell 19
    EXPECT_FALSE(m_grid.loadPage());
    EXPECT_EQ(m_grid.cell(19), nullptr);
    EXPECT_NE(m_grid.cell(20), nullptr) << "the rest of the page is still shown";
    EXPECT_NE(m_grid.cell(39), nullptr); // entry 100
}

TEST_F(IconGridTest, AFileThatIsNotAnIconLeavesItsCellBlank) {
    const QString path = folder(3);
    QFile bad(QDir(path).filePath(QStringLiteral("icon0002.ico")));
    bad.open(QIODevice::WriteOnly);
    bad.write("XX");
    bad.close();
    m_grid.openFolder(path);
    ASSERT_TRUE(m_grid.loadPage());
    EXPECT_EQ(m_grid.cell(25)->state, browser::Thumbnail::State::Unreadable);
    EXPECT_EQ(m_grid.cell(26)->state, browser::Thumbnail::State::Icon);
}

TEST(GridGeometry, BothGridsFillTheSameSquareAndCellsAreFoundByPoint) {
    const GridGeometry small = GridGeometry::of(GridView::Icons32);
    const GridGeometry large = GridGeometry::of(GridView::Icons48);
    EXPECT_EQ(small.panelSide(), 264);
    EXPECT_EQ(large.panelSide(), 264);
    EXPECT_EQ(small.pageStep(), 42);
    EXPECT_EQ(large.pageStep(), 20);
    const struct {
        GridView view;
        int x, y, cell;
    } cases[] = {
        {GridView::Icons32, 8, 8, 0},      {GridView::Icons32, 39, 39, 0},
        {GridView::Icons32, 40, 8, -1},    {GridView::Icons32, 44, 8, 1},
        {GridView::Icons32, 7, 8, -1},     {GridView::Icons32, 116, 116, 24},
        {GridView::Icons32, 255, 255, 48}, {GridView::Icons32, 256, 255, -1},
        {GridView::Icons48, 4, 4, 0},      {GridView::Icons48, 51, 51, 0},
        {GridView::Icons48, 52, 4, -1},    {GridView::Icons48, 108, 108, 12},
        {GridView::Icons48, 259, 259, 24}, {GridView::Icons48, 260, 259, -1},
    };
    for (const auto& c : cases)
        EXPECT_EQ(GridGeometry::of(c.view).cellAt(c.x, c.y), c.cell) << c.x << "," << c.y;
    EXPECT_EQ(small.cellX(48), 224);
    EXPECT_EQ(large.cellY(24), 212);
}

} // namespace

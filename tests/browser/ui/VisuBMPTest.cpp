#include "browser/ui/VisuBMP.h"
#include "browser/BmpViewer.h"
#include "tests/support/Screenshot.h"
#include "tests/support/Widgets.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using browser::ui::VisuBMP;
using testsupport::child;
using testsupport::click;

TEST(VisuBMP, ListsBitmapsShowsTheOneClickedAndKeepsItCentred) {
    QTemporaryDir dir;
    QImage red(32, 32, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(dir.filePath(QStringLiteral("rouge.bmp")), "BMP"));
    QFile broken(dir.filePath(QStringLiteral("cassé.bmp")));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("BM not really");
    broken.close();
    QDir(dir.path()).mkdir(QStringLiteral("sous-dossier"));

    VisuBMP viewer(dir.path(), shell::ColourScheme{});
    viewer.show();
    auto* files = child<QListWidget>(viewer, "File1");
    ASSERT_EQ(files->count(), 2);
    EXPECT_EQ(files->item(0)->text(), QStringLiteral("cassé.bmp"));

    emit files->itemClicked(files->item(1));
    EXPECT_EQ(viewer.picture().size(), QSize(32, 32));
    emit files->itemClicked(files->item(0));
    EXPECT_EQ(viewer.picture().pixelColor(0, 0), QColor(Qt::red))
        << "a broken file changes nothing";

    // Each size button puts the picture where the viewer's rule places it.
    auto* picture = child(viewer, "Picture1");
    for (int side : {48, 32}) {
        click(viewer, QStringLiteral("Cmd%1").arg(side));
        const auto place = browser::BmpViewer::place(side);
        EXPECT_EQ(picture->geometry(), QRect(place.left, place.top, side, side));
        testsupport::saveScreenshot(viewer, QStringLiteral("VisuBMP-%1").arg(side));
    }

    auto* folders = child<QListWidget>(viewer, "Dir1");
    const auto below = folders->findItems(QStringLiteral("sous-dossier"), Qt::MatchEndsWith);
    ASSERT_EQ(below.size(), 1);
    emit folders->itemClicked(below.front());
    EXPECT_EQ(viewer.folder(), QDir(dir.path()).filePath(QStringLiteral("sous-dossier")));
    EXPECT_EQ(files->count(), 0);

    auto* drives = child<QComboBox>(viewer, "Drive1");
    ASSERT_GT(drives->count(), 0);
    emit drives->activated(0);
    EXPECT_EQ(viewer.folder(), QStringLiteral("/"));
}

} // namespace

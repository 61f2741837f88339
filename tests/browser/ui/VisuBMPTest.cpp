#include "browser/ui/VisuBMP.h"
#include "platform/GradientButton.h"
#include "tests/support/Screenshot.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using browser::ui::VisuBMP;

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
    auto* files = viewer.findChild<QListWidget*>(QStringLiteral("File1"));
    ASSERT_EQ(files->count(), 2);
    EXPECT_EQ(files->item(0)->text(), QStringLiteral("cassé.bmp"));

    emit files->itemClicked(files->item(1));
    EXPECT_EQ(viewer.picture().size(), QSize(32, 32));
    emit files->itemClicked(files->item(0));
    EXPECT_EQ(viewer.picture().pixelColor(0, 0), QColor(Qt::red))
        << "a broken file changes nothing";

    auto* picture = viewer.findChild<QWidget*>(QStringLiteral("Picture1"));
    QTest::mouseClick(viewer.findChild<platform::GradientButton*>(QStringLiteral("Cmd48")),
                      Qt::LeftButton);
    EXPECT_EQ(picture->geometry(), QRect(15, 10, 48, 48));
    testsupport::saveScreenshot(viewer, QStringLiteral("VisuBMP-48"));
    QTest::mouseClick(viewer.findChild<platform::GradientButton*>(QStringLiteral("Cmd32")),
                      Qt::LeftButton);
    EXPECT_EQ(picture->geometry(), QRect(23, 18, 32, 32));
    testsupport::saveScreenshot(viewer, QStringLiteral("VisuBMP-32"));

    auto* folders = viewer.findChild<QListWidget*>(QStringLiteral("Dir1"));
    const auto below = folders->findItems(QStringLiteral("sous-dossier"), Qt::MatchEndsWith);
    ASSERT_EQ(below.size(), 1);
    emit folders->itemClicked(below.front());
    EXPECT_EQ(viewer.folder(), QDir(dir.path()).filePath(QStringLiteral("sous-dossier")));
    EXPECT_EQ(files->count(), 0);

    auto* drives = viewer.findChild<QComboBox*>(QStringLiteral("Drive1"));
    ASSERT_GT(drives->count(), 0);
    emit drives->activated(0);
    EXPECT_EQ(viewer.folder(), QStringLiteral("/"));
}

} // namespace

// orvanne-icons on cursors and on several inputs at once: hotspots, extract --keep-cursors and
// --png, one exit code for many files.
#include "icon/ByteReader.h"
#include "icon/IcoReader.h"
#include "icon/IconSource.h"

#include "tests/cli/CliRun.h"
#include "tests/support/TestData.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using clitest::bytesOf;
using clitest::Outcome;
using clitest::run;
using testsupport::fileBytes;
using testsupport::pathOf;
using testsupport::testData;

namespace {

// "x,y" for each directory entry of a cursor file, read from its own bytes.
QStringList hotspotsOf(const std::vector<std::uint8_t>& cur) {
    const icon::ByteReader r(cur);
    QStringList spots;
    for (int i = 0; i < r.u16(4); ++i)
        spots << QStringLiteral("%1,%2").arg(r.u16(6 + 16 * i + 4)).arg(r.u16(6 + 16 * i + 6));
    return spots;
}

QStringList filesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::Files, QDir::Name);
}

} // namespace

TEST(CliCursor, InfoAndListShowEachImagesHotspot) {
    for (const char* name : {"cur/icojs_cursor.cur", "cur/pillow_posy_link.cur"}) {
        const QString path = testData(name);
        const QStringList spots = hotspotsOf(fileBytes(path));
        ASSERT_GE(spots.size(), 2);
        const Outcome info = run({"info", path});
        ASSERT_EQ(info.code, 0) << info.err.toStdString();
        const QStringList lines = info.out.split('\n', Qt::SkipEmptyParts);
        EXPECT_TRUE(lines[2].endsWith("Octets  Point actif"));
        for (int i = 0; i < spots.size(); ++i)
            EXPECT_TRUE(lines[3 + i].endsWith(" " + spots[i])) << lines[3 + i].toStdString();
        const Outcome list = run({"list", path});
        ASSERT_EQ(list.code, 0);
        for (const QString& spot : spots)
            EXPECT_TRUE(list.out.contains("point actif " + spot)) << list.out.toStdString();
    }
    // An icon has none.
    EXPECT_FALSE(run({"info", testData("ico/valid/qt_WORLD.ico")}).out.contains("Point actif"));
}

TEST(CliCursor, KeepCursorsWritesCurFilesWithTheirHotspots) {
    QTemporaryDir dir;
    const QString ani = testData("ani/breeze_wait.ani");
    const QString cur = testData("cur/decodeico_dino.cur");
    const Outcome r = run(
        {"extract", "--keep-cursors", ani, cur, testData("ico/valid/qt_WORLD.ico"), dir.path()});
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    // A cursor file comes back as it was, hotspot (1,2) included.
    EXPECT_EQ(bytesOf(dir.filePath("decodeico_dino_1.cur")), fileBytes(cur));
    EXPECT_TRUE(QFile::exists(dir.filePath("qt_WORLD_1.ico")));
    const std::optional<icon::IconSource> source = icon::IconSource::open(pathOf(ani));
    ASSERT_TRUE(source);
    for (int n = 1; n <= source->count(); ++n) {
        const std::optional<icon::IcoDirectory> frame = source->directory(n);
        const std::optional<icon::IcoDirectory> written = icon::readIcoDirectory(
            bytesOf(dir.filePath(QStringLiteral("breeze_wait_%1.cur").arg(n))));
        ASSERT_TRUE(frame && written) << n;
        ASSERT_EQ(written->type, 2);
        ASSERT_EQ(written->images.size(), frame->images.size());
        for (std::size_t i = 0; i < frame->images.size(); ++i) {
            EXPECT_EQ(written->images[i].hotspotX, frame->images[i].hotspotX);
            EXPECT_EQ(written->images[i].hotspotY, frame->images[i].hotspotY);
        }
    }
    EXPECT_EQ(filesIn(dir.path()).size(), source->count() + 2);
}

TEST(CliBatch, ExtractPngWritesEveryImageOfEveryIcon) {
    QTemporaryDir dir;
    const QStringList inputs{testData("ico/valid/icojs_basic.ico"),
                             testData("pe/r2tb_notputty.exe"), testData("cur/icojs_cursor.cur")};
    std::size_t images = 0;
    for (const QString& input : inputs) {
        const std::optional<icon::IconSource> source = icon::IconSource::open(pathOf(input));
        ASSERT_TRUE(source);
        for (int n = 1; n <= source->count(); ++n)
            images += source->directory(n).value_or(icon::IcoDirectory{}).images.size();
    }
    const Outcome r = run(QStringList{"extract", "--png"} + inputs + QStringList{dir.path()});
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    const QStringList written = filesIn(dir.path());
    EXPECT_EQ(static_cast<std::size_t>(written.size()), images);
    EXPECT_TRUE(written.contains("icojs_basic_1_96x96_24.png"));
    EXPECT_TRUE(written.contains("icojs_cursor_1_48x48_32.png"));
}

// Every input is tried; a refused one is said once on stderr and makes the exit code 1.
TEST(CliBatch, OneBadInputAmongSeveralGivesOneAndTheOthersAreWritten) {
    QTemporaryDir dir;
    ASSERT_TRUE(QDir(dir.path()).mkpath("a"));
    const QString twin = dir.filePath("a/qt_WORLD.ico");
    ASSERT_TRUE(QFile::copy(testData("ico/valid/qt_Qt.ico"), twin));
    const QStringList inputs{testData("ico/valid/qt_WORLD.ico"), dir.filePath("absent.ico"), twin,
                             testData("cur/icojs_cursor.cur")};
    struct Case {
        QString command;
        QStringList expected;
    };
    for (const Case& c :
         {Case{"to-png", {"icojs_cursor.png", "qt_WORLD-2.png", "qt_WORLD.png"}},
          Case{"to-bmp", {"icojs_cursor.bmp", "qt_WORLD-2.bmp", "qt_WORLD.bmp"}},
          Case{"extract", {"icojs_cursor_1.ico", "qt_WORLD-2_1.ico", "qt_WORLD_1.ico"}}}) {
        const QString out = dir.filePath("out-" + c.command);
        const Outcome r = run(QStringList{c.command} + inputs + QStringList{out});
        EXPECT_EQ(r.code, 1) << c.command.toStdString();
        EXPECT_EQ(r.err.count('\n'), 1) << r.err.toStdString();
        EXPECT_EQ(filesIn(out), c.expected) << c.command.toStdString();
    }
    // The two files of the same name are not mixed up.
    EXPECT_EQ(bytesOf(dir.filePath("out-extract/qt_WORLD-2_1.ico")), fileBytes(twin));
    EXPECT_EQ(run({"extract", "--png", "--keep-cursors", twin, dir.path()}).code, 2);
    EXPECT_EQ(run({"extract", "--png=oui", twin, dir.path()}).code, 2);
}

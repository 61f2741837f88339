#include "capture/PictureFile.h"
#include "tests/support/TestData.h"
#include "capture/BitmapName.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

using testsupport::pathOf;

using capture::PictureFile;

TEST(PictureFile, ReadsBitmapsPngAndIcons) {
    QTemporaryDir folder;
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(qRgb(10, 200, 30));
    // Names that do not tell the format, and one in an accented folder.
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Écran")));
    const QString bmp = folder.filePath(QStringLiteral("Écran/zone.BMP"));
    const QString png = folder.filePath(QStringLiteral("zone.img"));
    ASSERT_TRUE(picture.save(bmp, "BMP"));
    ASSERT_TRUE(picture.save(png, "PNG"));
    for (const QString& name : {bmp, png}) {
        const auto loaded = PictureFile::load(pathOf(name));
        EXPECT_TRUE(loaded.error.isEmpty()) << name.toStdString();
        EXPECT_EQ(loaded.picture.size(), QSize(40, 30));
        EXPECT_EQ(loaded.picture.pixel(5, 5), qRgb(10, 200, 30));
    }
    const auto icon =
        PictureFile::load(pathOf(QStringLiteral(ORVANNE_TESTDATA "/ico/valid/qt_WORLD.ico")));
    EXPECT_FALSE(icon.picture.isNull()) << icon.error.toStdString();
}

TEST(PictureFile, RefusesWhatIsNotAPictureWithAMessage) {
    QTemporaryDir folder;
    const QString garbage = folder.filePath(QStringLiteral("faux.png"));
    QFile file(garbage);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("\x89PNG not really");
    file.close();
    const QString huge = folder.filePath(QStringLiteral("énorme.bmp"));
    QFile big(huge);
    ASSERT_TRUE(big.open(QIODevice::WriteOnly));
    ASSERT_TRUE(big.resize(PictureFile::kMaximumFileBytes + 1));
    big.close();
    // A named pipe would block a reader for ever.
    const QString pipe = folder.filePath(QStringLiteral("tube.bmp"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);

    for (const QString& name :
         {garbage, huge, pipe, folder.path(), folder.filePath(QStringLiteral("absent.bmp"))}) {
        const auto loaded = PictureFile::load(pathOf(name));
        EXPECT_TRUE(loaded.picture.isNull()) << name.toStdString();
        EXPECT_FALSE(loaded.error.isEmpty()) << name.toStdString();
    }
}

TEST(BitmapName, AddsTheExtensionAndRefusesPatterns) {
    const struct {
        const char* chosen;
        const char* written; // nullptr: nothing is written
    } cases[] = {{"/tmp/zone", "/tmp/zone.BMP"},
                 {"/tmp/zone.bmp", "/tmp/zone.bmp"},
                 {"/tmp/v1.2/zone", "/tmp/v1.2/zone.BMP"},
                 {"/tmp/*.BMP", nullptr},
                 {"/tmp/zone?.bmp", nullptr},
                 {"", nullptr}};
    for (const auto& c : cases) {
        const auto path = capture::bitmapSavePath(QString::fromUtf8(c.chosen));
        if (c.written == nullptr)
            EXPECT_FALSE(path) << c.chosen;
        else
            EXPECT_EQ(path.value_or(QString()), QString::fromUtf8(c.written)) << c.chosen;
    }
}

} // namespace

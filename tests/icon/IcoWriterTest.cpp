#include "icon/BmpWriter.h"
#include "icon/FileBytes.h"
#include "icon/IcoReader.h"
#include "icon/IcoWriter.h"
#include "iconqt/FrameImage.h"
#include "tests/support/TestData.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>
#include <unistd.h>

using namespace icon;

namespace {

IconPlanes opaque(Colour c) {
    IconPlanes p;
    for (int y = 0; y < kIconSize; ++y)
        for (int x = 0; x < kIconSize; ++x)
            p.paint(x, y, c);
    return p;
}

void writeBytes(const QString& path, const std::vector<std::uint8_t>& bytes) {
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
}

std::vector<std::uint8_t> readBytes(const QString& path) {
    return readFileBytes(testsupport::pathOf(path)).value_or(std::vector<std::uint8_t>{});
}

} // namespace

TEST(IcoWriter, HeadersAreTheFixedRecords) {
    const IconFileBytes b = encodeIconFile(IconPlanes::blank());
    const std::vector<std::uint8_t> expected{
        0,    0,    1, 0, 1,    0, // reserved, icon, one image
        32,   32,   0, 0, 1,    0,    24, 0,
        0xA8, 0x0C, 0, 0, 22,   0,    0,  0, // entry: 3240 bytes at 22
        40,   0,    0, 0, 32,   0,    0,  0,
        64,   0,    0, 0, 1,    0,    24, 0, // bitmap header
        0,    0,    0, 0, 0x80, 0x0C, 0,  0,
        0,    0,    0, 0, 0,    0,    0,  0, // no compression, 3200 bytes
        0,    0,    0, 0, 0,    0,    0,  0};
    ASSERT_EQ(expected.size(), kColourDataOffset);
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), b.begin()));
}

TEST(IcoWriter, PixelsAndMaskLandAtTheirOffsets) {
    struct Case {
        const char* name;
        IconPlanes icon;
        std::uint8_t colourByte; // every colour byte
        std::uint8_t maskByte;   // every mask byte but the ones checked apart
    };
    IconPlanes colouredTransparent = IconPlanes::blank();
    colouredTransparent.image.fill(0x123456); // transparent pixels are written black anyway
    for (const Case& k : {Case{"opaque black", opaque(kBlack), 0, 0},
                          Case{"transparent", IconPlanes::blank(), 0, 0xFF},
                          Case{"coloured transparent", colouredTransparent, 0, 0xFF}}) {
        SCOPED_TRACE(k.name);
        const IconFileBytes b = encodeIconFile(k.icon);
        for (std::size_t i = kColourDataOffset; i < kMaskOffset; ++i)
            ASSERT_EQ(b[i], k.colourByte) << i;
        for (std::size_t i = kMaskOffset; i < kIconFileBytes; ++i)
            ASSERT_EQ(b[i], k.maskByte) << i;
    }

    // Top-left transparent: the first byte of the last mask row written.
    IconPlanes topLeft = opaque(0x00FF00);
    topLeft.erase(0, 0);
    IconFileBytes b = encodeIconFile(topLeft);
    EXPECT_EQ(b[kMaskOffset + 124], 0x80);
    EXPECT_EQ(b[kMaskOffset + 125], 0x00);
    EXPECT_EQ(b[kMaskOffset + 0], 0x00);
    EXPECT_EQ(b[kColourDataOffset + 31 * 96], 0); // its colour: black
    EXPECT_EQ(b[kColourDataOffset + 31 * 96 + 4], 0xFF);

    // The bottom row comes first, in blue, green, red order.
    IconPlanes bottom = opaque(kBlack);
    bottom.paint(5, 31, rgb(0x11, 0x22, 0x33));
    bottom.erase(9, 31);
    bottom.image.set(9, 31, kWhite);
    b = encodeIconFile(bottom);
    EXPECT_EQ(b[kColourDataOffset + 15], 0x33);
    EXPECT_EQ(b[kColourDataOffset + 16], 0x22);
    EXPECT_EQ(b[kColourDataOffset + 17], 0x11);
    EXPECT_EQ(b[kColourDataOffset + 27], 0);
    EXPECT_EQ(b[kMaskOffset + 1], 0x40); // x = 9: second byte, second bit
}

TEST(IcoWriter, WrittenIconsReadBackAsTheSamePlanes) {
    std::mt19937 random(7);
    for (int round = 0; round < 20; ++round) {
        IconPlanes icon;
        for (int y = 0; y < kIconSize; ++y)
            for (int x = 0; x < kIconSize; ++x) {
                icon.image.set(x, y, random() & 0xFFFFFF);
                icon.mask.set(x, y, random() % 3 == 0 ? kWhite : kBlack);
            }
        const IconFileBytes bytes = encodeIconFile(icon);
        const std::optional<IconPlanes> back = decodeIconPlanes(bytes);
        ASSERT_TRUE(back);
        // Transparent pixels come back black, all else exactly as it was.
        for (int y = 0; y < kIconSize; ++y)
            for (int x = 0; x < kIconSize; ++x)
                if (icon.isTransparent(x, y))
                    icon.image.set(x, y, kBlack);
        ASSERT_EQ(*back, icon);
        EXPECT_EQ(readHeaderCount(bytes), 1);
    }
}

TEST(IcoWriter, SavingKeepsALongerFilesTailAndItsPermissions) {
    QTemporaryDir dir;
    const QString path = dir.filePath("long.ico");
    std::vector<std::uint8_t> old(10000);
    for (std::size_t i = 0; i < old.size(); ++i)
        old[i] = static_cast<std::uint8_t>(i * 7);
    writeBytes(path, old);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);

    const IconPlanes icon = opaque(0x336699);
    ASSERT_TRUE(writeIconFile(testsupport::pathOf(path), icon));
    const std::vector<std::uint8_t> saved = readBytes(path);
    ASSERT_EQ(saved.size(), 10000u);
    const IconFileBytes expected = encodeIconFile(icon);
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), saved.begin()));
    EXPECT_TRUE(
        std::equal(old.begin() + kIconFileBytes, old.end(), saved.begin() + kIconFileBytes));
    EXPECT_EQ(QFile::permissions(path) & 0x7077,
              (QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup) & 0x7077);
    EXPECT_EQ(decodeIconPlanes(saved), icon);

    // A shorter file, or none, ends up exactly 3262 bytes long.
    writeBytes(path, std::vector<std::uint8_t>(100, 0xAB));
    ASSERT_TRUE(writeIconFile(testsupport::pathOf(path), icon));
    EXPECT_EQ(readBytes(path).size(), kIconFileBytes);
    const QString fresh = dir.filePath("fresh.ico");
    ASSERT_TRUE(writeIconFile(testsupport::pathOf(fresh), icon));
    EXPECT_EQ(readBytes(fresh).size(), kIconFileBytes);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 2); // no temporary file left
}

TEST(IcoWriter, AFailedSaveTouchesNothing) {
    QTemporaryDir dir;
    const IconPlanes icon = opaque(kWhite);
    QDir(dir.path()).mkdir("folder.ico");
    for (auto [path, error] :
         {std::pair{dir.filePath("missing/icon.ico"), SaveError::FolderMissing},
          std::pair{dir.filePath("folder.ico"), SaveError::NotWritable}}) {
        const SaveResult result = writeIconFile(testsupport::pathOf(path), icon);
        EXPECT_EQ(result.error, error) << path.toStdString();
        EXPECT_FALSE(result.message.empty());
    }
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
    EXPECT_TRUE(QFileInfo(dir.filePath("folder.ico")).isDir());
    // Permissions mean nothing to the superuser.
    if (geteuid() == 0)
        return;
    const QString locked = dir.filePath("locked.ico");
    writeBytes(locked, {1, 2, 3});
    QFile::setPermissions(locked, QFile::ReadOwner);
    EXPECT_EQ(writeIconFile(testsupport::pathOf(locked), icon).error, SaveError::NotWritable);
    EXPECT_EQ(readBytes(locked), (std::vector<std::uint8_t>{1, 2, 3}));
    const QString closed = dir.filePath("closed");
    QDir(dir.path()).mkdir("closed");
    QFile::setPermissions(closed, QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(writeIconFile(testsupport::pathOf(closed + "/icon.ico"), icon).error, SaveError::NotWritable);
    QFile::setPermissions(closed, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST(BmpWriter, WritesA24BitBitmapThatReadsBackAsThePicture) {
    Frame picture(3, 2, kBlack);
    picture.set(0, 0, rgb(0x10, 0x20, 0x30));
    picture.set(2, 1, rgb(0xAA, 0xBB, 0xCC));
    const std::vector<std::uint8_t> b = encodeBmp24(picture);
    ASSERT_EQ(b.size(), 54 + 2 * 12u); // rows of 9 bytes padded to 12
    EXPECT_EQ(b[28], 24);
    EXPECT_EQ(b[54 + 6], 0xCC); // bottom row first, blue first
    QTemporaryDir dir;
    const QString path = dir.filePath("picture.bmp");
    ASSERT_TRUE(writeBmpFile(testsupport::pathOf(path), picture));
    EXPECT_EQ(iconqt::frameFromImage(QImage(path)), picture);
}

#include "icon/SafeSave.h"
#include "icon/FileBytes.h"
#include "icon/IcoWriter.h"
#include "tests/support/FailingWrites.h"
#include "tests/support/TestData.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace icon;
using testsupport::FailingWrites;

namespace {

std::vector<std::uint8_t> pattern(std::size_t size, std::uint8_t seed) {
    std::vector<std::uint8_t> bytes(size);
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<std::uint8_t>(seed + i * 7);
    return bytes;
}

std::vector<std::uint8_t> contentOf(const QString& path) {
    return readFileBytes(testsupport::pathOf(path)).value_or(std::vector<std::uint8_t>{});
}

// Everything in the folder but `keep`: a failed save must leave no temporary file behind.
QStringList othersIn(const QString& folder, const QString& keep) {
    QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
    names.removeAll(keep);
    return names;
}

} // namespace

// A disk that fills up part-way: at the first byte, inside the new content, inside the kept tail.
TEST(SafeSave, AFailingWriteLeavesTheOldFileAndSaysSo) {
    const std::vector<std::uint8_t> old = pattern(10000, 3);
    const std::vector<std::uint8_t> fresh = pattern(3262, 99);
    for (const std::size_t allowed :
         {std::size_t{0}, std::size_t{100}, std::size_t{3262}, std::size_t{9999}}) {
        SCOPED_TRACE(allowed);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("old.ico"));
        ASSERT_TRUE(saveFileSafely(testsupport::pathOf(path), old, false).ok());
        SaveResult result;
        {
            FailingWrites full(allowed);
            result = saveFileSafely(testsupport::pathOf(path), fresh, true);
        }
        EXPECT_EQ(result.error, SaveError::WriteFailed);
        EXPECT_NE(result.message.find("disque plein"), std::string::npos) << result.message;
        EXPECT_EQ(contentOf(path), old);
        EXPECT_TRUE(othersIn(dir.path(), QStringLiteral("old.ico")).isEmpty());
    }
}

TEST(SafeSave, TheIconWriterReportsAFullDisk) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("a.ico"));
    FailingWrites full(1000);
    EXPECT_FALSE(writeIconFile(testsupport::pathOf(path), IconPlanes::blank()).ok());
    EXPECT_FALSE(QFile::exists(path));
}

TEST(SafeSave, ReplacesTheFileKeepingItsTailAndPermissions) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("old.ico"));
    ASSERT_TRUE(saveFileSafely(testsupport::pathOf(path), pattern(50, 1), false).ok());
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0640), 0);
    const std::vector<std::uint8_t> fresh = pattern(20, 200);
    ASSERT_TRUE(saveFileSafely(testsupport::pathOf(path), fresh, true).ok());
    std::vector<std::uint8_t> expected = fresh;
    const std::vector<std::uint8_t> old = pattern(50, 1);
    expected.insert(expected.end(), old.begin() + 20, old.end());
    EXPECT_EQ(contentOf(path), expected);
    struct stat info {};
    ASSERT_EQ(::stat(QFile::encodeName(path).constData(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0640u);
}

// A real file system that is full, where the error may come only when the data reaches it.
TEST(SafeSave, AFullFileSystemKeepsTheOldFile) {
    testsupport::SmallFileSystem disk(16);
    if (!disk.usable())
        GTEST_SKIP() << "a small tmpfs can be mounted only by root: skipped";
    const QString path = disk.path(QStringLiteral("old.ico"));
    const std::vector<std::uint8_t> old = pattern(3262, 5);
    ASSERT_TRUE(saveFileSafely(testsupport::pathOf(path), old, false).ok());
    disk.fill();
    const SaveResult result = writeIconFile(testsupport::pathOf(path), IconPlanes::blank());
    EXPECT_EQ(result.error, SaveError::WriteFailed);
    EXPECT_EQ(contentOf(path), old);
}

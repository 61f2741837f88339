#include "icon/FileBytes.h"
#include "icon/IconSource.h"
#include "iconqt/Paths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace icon;
using iconqt::pathFromText;
using iconqt::textFromPath;

namespace {

std::filesystem::path pathIn(const QTemporaryDir& dir, const char* name) {
    return pathFromText(dir.path()) / name;
}

} // namespace

// Nothing but a regular file is read, and nothing waits: a FIFO without a writer would block
// an ordinary open forever, a device behind a link would be read without end.
TEST(FileBytes, OnlyRegularFilesAreReadAndNothingWaits) {
    QTemporaryDir dir;
    const std::filesystem::path fifo = pathIn(dir, "tube.ico");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    const std::filesystem::path zero = pathIn(dir, "zero.ico");
    std::filesystem::create_symlink("/dev/zero", zero);
    const std::filesystem::path folder = pathIn(dir, "dossier.ico");
    std::filesystem::create_directory(folder);
    const std::filesystem::path socketPath = pathIn(dir, "s.ico");
    const int s = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::snprintf(address.sun_path, sizeof address.sun_path, "%s", socketPath.c_str());
    ASSERT_EQ(::bind(s, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);

    const struct {
        std::filesystem::path path;
        ReadError expected;
    } cases[] = {
        {fifo, ReadError::NotRegular},        {zero, ReadError::NotRegular},
        {folder, ReadError::NotRegular},      {socketPath, ReadError::NotRegular},
        {"/dev/null", ReadError::NotRegular}, {pathIn(dir, "absent.ico"), ReadError::Missing}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path.native());
        ReadError error = ReadError::None;
        EXPECT_FALSE(readFileBytes(c.path, kMaxFileBytes, &error));
        EXPECT_EQ(error, c.expected);
        EXPECT_FALSE(MappedFile::open(c.path, kMaxFileBytes, &error));
        EXPECT_EQ(error, c.expected);
        EXPECT_FALSE(IconSource::open(c.path));
    }
    ::close(s);
}

TEST(FileBytes, ABudgetRefusesLargerFilesAndMappingGivesTheSameBytes) {
    QTemporaryDir dir;
    const std::filesystem::path file = pathIn(dir, "a.bin");
    {
        QFile out(textFromPath(file));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(QByteArray(5000, 'x') + "fin");
    }
    ReadError error = ReadError::None;
    EXPECT_FALSE(readFileBytes(file, 5002, &error));
    EXPECT_EQ(error, ReadError::TooLarge);
    const auto bytes = readFileBytes(file, 5003, &error);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(error, ReadError::None);
    const auto mapped = MappedFile::open(file);
    ASSERT_TRUE(mapped);
    EXPECT_TRUE(
        std::equal(bytes->begin(), bytes->end(), mapped->bytes().begin(), mapped->bytes().end()));
}

// A name that is not valid text is kept as the file system's bytes, and opens.
TEST(FileBytes, NamesThatAreNotTextOpenByTheirBytes) {
    QTemporaryDir dir;
    const std::filesystem::path file = pathFromText(dir.path()) / std::string("bad\xff\xfe.ico");
    {
        FILE* out = std::fopen(file.c_str(), "wb");
        ASSERT_NE(out, nullptr);
        std::fputs("abc", out);
        std::fclose(out);
    }
    const auto bytes = readFileBytes(file);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->size(), 3u);
    // The text shown for it cannot name it again: only the bytes do.
    EXPECT_NE(pathFromText(textFromPath(file)), file);
}

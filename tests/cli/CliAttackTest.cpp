// orvanne-icons on hostile inputs and outputs: files that are not files, a full disk, icons
// that share one large image, more frames than are read.
#include "icon/FileBytes.h"
#include "icon/IcoWriter.h"
#include "icon/SafeSave.h"

#include "tests/cli/CliRun.h"
#include "tests/icon/PeFiles.h"
#include "tests/support/FailingWrites.h"
#include "tests/support/TestData.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

using clitest::bytesOf;
using clitest::Outcome;
using clitest::run;
using testsupport::testData;

namespace {

QString writeFile(const QTemporaryDir& dir, const QString& name,
                  const std::vector<std::uint8_t>& bytes) {
    const QString path = dir.filePath(name);
    EXPECT_TRUE(icon::saveFileSafely(testsupport::pathOf(path), bytes, false).ok());
    return path;
}

} // namespace

// A FIFO would keep every command waiting for a writer; a device would be read without end.
TEST(CliAttacks, InputsThatAreNotFilesAreRefusedAtOnce) {
    QTemporaryDir dir;
    const QString fifo = dir.filePath(QStringLiteral("tube.ico"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    const QString zero = dir.filePath(QStringLiteral("zero.exe"));
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), zero));
    const QString out = dir.filePath(QStringLiteral("out"));
    for (const QString& input : {fifo, zero}) {
        for (const QStringList& args :
             {QStringList{"info", input}, QStringList{"list", input},
              QStringList{"extract", input, out}, QStringList{"to-ico", input, out + ".ico"},
              QStringList{"to-bmp", input, out + ".bmp"}}) {
            const Outcome r = run(args);
            EXPECT_EQ(r.code, 1) << args.join(' ').toStdString();
            EXPECT_TRUE(r.err.contains(QStringLiteral("n'est pas un fichier ordinaire")))
                << r.err.toStdString();
        }
    }
}

TEST(CliAttacks, AFullDiskKeepsTheOldFileAndFails) {
    testsupport::SmallFileSystem disk(16);
    if (!disk.usable())
        GTEST_SKIP() << "a small tmpfs can be mounted only by root: skipped";
    const QString old = disk.path(QStringLiteral("old.ico"));
    std::vector<std::uint8_t> before(3262, 0x5A);
    ASSERT_TRUE(icon::saveFileSafely(testsupport::pathOf(old), before, false).ok());
    disk.fill();
    const Outcome r = run({"to-ico", testData("ico/valid/decodeico_apple.ico"), old});
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(r.err.contains(QStringLiteral("disque plein"))) << r.err.toStdString();
    EXPECT_EQ(bytesOf(old), before);

    const Outcome bmp = run({"to-bmp", testData("ico/valid/decodeico_apple.ico"),
                             disk.path(QStringLiteral("new.bmp"))});
    EXPECT_EQ(bmp.code, 1);
    EXPECT_FALSE(QFile::exists(disk.path(QStringLiteral("new.bmp"))));
}

// Twenty groups naming one 1 MiB image 64 times each: listed from their directories at once,
// and their extraction (more than a gigabyte) refused before anything is written.
TEST(CliAttacks, GroupsSharingAnImageAreListedAndTheirExtractionRefused) {
    QTemporaryDir dir;
    testfiles::PePlan plan;
    plan.groups = 20;
    plan.entriesPerGroup = 64;
    plan.imageBytes = 1024 * 1024;
    const QString pe = writeFile(dir, QStringLiteral("partage.dll"), testfiles::peFile(plan));

    const Outcome list = run({"list", pe});
    ASSERT_EQ(list.code, 0) << list.err.toStdString();
    EXPECT_TRUE(list.out.contains(QStringLiteral("Icônes : 20\n")));
    EXPECT_TRUE(list.out.contains(QStringLiteral("   20  20  32×32 32 bits, 32×32 32 bits")));

    const QString out = dir.filePath(QStringLiteral("sortie"));
    const Outcome all = run({"extract", pe, out});
    EXPECT_EQ(all.code, 1);
    EXPECT_TRUE(all.err.contains(QStringLiteral("rien n'a été écrit"))) << all.err.toStdString();
    EXPECT_TRUE(QDir(out).isEmpty());

    const Outcome one = run({"extract", pe, out, "--index", "3"});
    EXPECT_EQ(one.code, 0) << one.err.toStdString();
    EXPECT_EQ(QDir(out).entryList(QDir::Files).size(), 1);
}

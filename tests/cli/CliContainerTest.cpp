// orvanne-icons on files that hold icons: list, extract and to-ico --index.
#include "icon/FileBytes.h"
#include "icon/IcoWriter.h"
#include "icon/IconSource.h"

#include "tests/cli/CliRun.h"
#include "tests/support/TestData.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace icon;
using clitest::bytesOf;
using clitest::Outcome;
using clitest::run;
using testsupport::testData;

TEST(CliContainers, ListGivesTheCountThenOneLinePerIcon) {
    const Outcome r = run({"list", testData("icl/psc_robanderson_test.icl")});
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    const QStringList lines = r.out.split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 7) << r.out.toStdString();
    EXPECT_EQ(lines[1], QString::fromUtf8("Type : exécutable ou bibliothèque 16 bits (NE)"));
    EXPECT_EQ(lines[2], QString::fromUtf8("Icônes : 4"));
    EXPECT_EQ(lines[3], QString::fromUtf8("    1  1  32×32 4 bits, 16×16 4 bits"));
    EXPECT_TRUE(lines[5].startsWith(QString::fromUtf8("    3  3  16×16 1 bit, 16×16 4 bits")));

    const Outcome ani = run({"list", testData("ani/pillow_stopwtch.ani")});
    EXPECT_TRUE(
        ani.out.contains(QString::fromUtf8("Icônes : 8\n    1  32×32 4 bits point actif 16,19\n")))
        << ani.out.toStdString();

    const Outcome none = run({"list", testData("pe/aclock-x64-win64_no_resources.exe")});
    EXPECT_EQ(none.code, 0);
    EXPECT_TRUE(none.out.endsWith(QString::fromUtf8("Icônes : 0\n")));
}

TEST(CliContainers, ExtractWritesEachIconNamedAfterTheFile) {
    QTemporaryDir dir;
    const QString exe = testData("pe/penet_firefox_x64.exe");
    const QString out = dir.filePath("icones");
    const Outcome r = run({"extract", exe, out});
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    const std::optional<IconSource> source = IconSource::open(testsupport::pathOf(exe));
    ASSERT_TRUE(source && source->count() == 6);
    EXPECT_EQ(QDir(out).entryList(QDir::Files).size(), 6);
    for (int n = 1; n <= 6; ++n) {
        const QString file = QDir(out).filePath(QStringLiteral("penet_firefox_x64_%1.ico").arg(n));
        EXPECT_EQ(bytesOf(file), source->icoBytes(n)) << n;
    }

    const QString one = dir.filePath("une");
    ASSERT_EQ(run({"extract", exe, one, "--index", "6"}).code, 0);
    EXPECT_EQ(QDir(one).entryList(QDir::Files), QStringList{"penet_firefox_x64_6.ico"});
}

TEST(CliContainers, ToIcoTakesIconNAsTheEditorWould) {
    QTemporaryDir dir;
    const QString out = dir.filePath("out.ico");
    struct Case {
        const char* file;
        QStringList index;
        int n;
    };
    for (const Case& c :
         {Case{"icl/psc_robanderson_test.icl", {"--index", "3"}, 3},
          Case{"pe/r2tb_notputty.exe", {}, 1}, Case{"ani/pillow_stopwtch.ani", {"--index=5"}, 5}}) {
        SCOPED_TRACE(c.file);
        QFile::remove(out);
        ASSERT_EQ(run(QStringList{"to-ico", testData(c.file), out} + c.index).code, 0);
        const std::optional<IconSource> source =
            IconSource::open(testsupport::pathOf(testData(c.file)));
        const IconFileBytes expected = encodeIconFile(source->planes(c.n));
        EXPECT_EQ(bytesOf(out), std::vector<std::uint8_t>(expected.begin(), expected.end()));
    }
}

TEST(CliContainers, WrongIndexesAndRefusedFiles) {
    QTemporaryDir dir;
    const QString icl = testData("icl/psc_robanderson_test.icl");
    struct Case {
        QStringList args;
        int code;
    };
    for (const Case& c : {
             Case{{"extract", icl, dir.path(), "--index", "0"}, 2},
             Case{{"extract", icl, dir.path(), "--index", "deux"}, 2},
             Case{{"to-ico", icl, dir.filePath("x.ico"), "--index", "-3"}, 2},
             Case{{"list", icl, "--index", "1"}, 2},
             Case{{"extract", icl, dir.path(), "--index", "5"}, 1},
             Case{{"to-ico", icl, dir.filePath("x.ico"), "--index", "5"}, 1},
             Case{{"list", testData("icl/invalid/r2tb_ne_necrash.bin")}, 1},
             Case{{"extract", testData("pe/aclock-x64-win64_no_resources.exe"), dir.path()}, 1},
             Case{{"extract",
                   testData("pe/invalid/penet_pidgin_manipulated_GroupIconDirectory.exe"),
                   dir.filePath("vide"), "--index", "2"},
                  1},
         }) {
        const Outcome r = run(c.args);
        EXPECT_EQ(r.code, c.code) << c.args.join(' ').toStdString() << r.err.toStdString();
        EXPECT_TRUE(r.err.startsWith("orvanne-icons : ")) << r.err.toStdString();
    }
    EXPECT_TRUE(QDir(dir.path()).entryList(QDir::Files).isEmpty());
}

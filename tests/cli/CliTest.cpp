// Runs the built orvanne-icons on real files and checks exit codes, messages and outputs.
#include "icon/BmpWriter.h"
#include "icon/FileBytes.h"
#include "icon/IcoReader.h"
#include "icon/IcoWriter.h"

#include "tests/cli/CliRun.h"
#include "tests/support/TestData.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace icon;
using clitest::bytesOf;
using clitest::Outcome;
using clitest::run;
using testsupport::fileBytes;
using testsupport::testData;

namespace {

const QString kWorld = testData("ico/valid/qt_WORLD.ico");

} // namespace

TEST(Cli, UsageErrorsExitWithTwo) {
    const QString in = kWorld;
    for (const QStringList& args : {QStringList{},
                                    {"frob"},
                                    {"info"},
                                    {"info", in, in},
                                    {"to-ico", in},
                                    {"to-bmp", in, "x.bmp", "--size", "12"},
                                    {"to-bmp", in, "x.bmp", "--background", "C0C0C"},
                                    {"to-bmp", in, "x.bmp", "--size"},
                                    {"to-ico", in, "x.ico", "--bogus", "2"}}) {
        const Outcome r = run(args);
        EXPECT_EQ(r.code, 2) << args.join(' ').toStdString();
        EXPECT_TRUE(r.err.startsWith("orvanne-icons : ")) << r.err.toStdString();
        EXPECT_EQ(r.err.count('\n'), 1);
    }
    const Outcome help = run({"--help"});
    EXPECT_EQ(help.code, 0);
    EXPECT_TRUE(help.out.startsWith("Usage : orvanne-icons COMMANDE")) << help.out.toStdString();
    for (const char* command : {"info FICHIER", "to-ico ENTRÉE SORTIE", "to-bmp ENTRÉE... SORTIE"})
        EXPECT_TRUE(help.out.contains(QString::fromUtf8(command)));
}

TEST(Cli, InfoListsTheImagesAndTheEditorsChoice) {
    const Outcome r = run({"info", kWorld});
    EXPECT_EQ(r.code, 0) << r.err.toStdString();
    EXPECT_TRUE(r.err.isEmpty());
    const QStringList lines = r.out.split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 7) << r.out.toStdString();
    EXPECT_EQ(lines[1], QString::fromUtf8("Type : icône (ICO), 3 images"));
    EXPECT_EQ(lines[2], "Image  Largeur  Hauteur  Bits  Format      Octets");
    EXPECT_EQ(lines[3], "    1       32       32     8  BMP           2216");
    EXPECT_EQ(lines[4], "    2       32       32     4  BMP            744");
    EXPECT_EQ(lines[6], QString::fromUtf8("L'éditeur prend l'image 1 telle quelle, en 32×32."));

    const Outcome cursor = run({"info", testData("cur/breeze_arrow.cur")});
    EXPECT_EQ(cursor.code, 0);
    EXPECT_TRUE(cursor.out.contains(QString::fromUtf8("Type : curseur (CUR), 3 images")));
    EXPECT_TRUE(cursor.out.contains("   48       48    16  PNG"));
    const Outcome small = run({"info", testData("ico/valid/neko98_sounds.ico")});
    EXPECT_TRUE(small.out.contains(QString::fromUtf8("l'image 1, ramenée à 32×32.")));
}

TEST(Cli, RefusedInputsExitWithOneAndWriteNothing) {
    QTemporaryDir dir;
    const QString fiveBytes = dir.filePath("five.ico");
    QFile f(fiveBytes);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("\0\0\1\0\1", 5);
    f.close();
    const QString png = testData("ico/invalid/decodeico_favicon-actually-a-png.ico");
    const QString out = dir.filePath("out");
    for (const QStringList& args :
         {QStringList{"info", testData("ico/invalid/pillow_no_icons.ico")},
          {"info", fiveBytes},
          {"info", dir.filePath("missing.ico")},
          {"to-ico", fiveBytes, out},
          {"to-ico", png, out},
          {"to-bmp", fiveBytes, out},
          {"to-ico", kWorld, dir.filePath("no/folder.ico")},
          {"to-bmp", kWorld, dir.path()}}) {
        const Outcome r = run(args);
        EXPECT_EQ(r.code, 1) << args.join(' ').toStdString();
        EXPECT_EQ(r.err.count('\n'), 1) << r.err.toStdString();
        EXPECT_FALSE(QFile::exists(out));
    }
}

TEST(Cli, ToIcoWritesWhatTheEditorWouldSave) {
    QTemporaryDir dir;
    for (const char* name :
         {"ico/valid/qt_Qt.ico", "ico/valid/neko98_sounds.ico", "cur/icojs_cursor.cur"}) {
        const QString in = testData(name);
        const QString out = dir.filePath("out.ico");
        QFile::remove(out);
        const Outcome r = run({"to-ico", in, out});
        ASSERT_EQ(r.code, 0) << r.err.toStdString();
        const std::optional<IconPlanes> planes = decodeIconPlanes(fileBytes(in));
        ASSERT_TRUE(planes);
        const IconFileBytes expected = encodeIconFile(*planes);
        EXPECT_EQ(bytesOf(out), std::vector<std::uint8_t>(expected.begin(), expected.end()))
            << name;
    }
    // Over a longer file, the tail stays, as the editor leaves it.
    const QString longer = dir.filePath("longer.ico");
    ASSERT_TRUE(QFile::copy(testData("ico/valid/qt_Qt.ico"), longer));
    const std::size_t before = bytesOf(longer).size();
    ASSERT_EQ(run({"to-ico", kWorld, longer}).code, 0);
    EXPECT_EQ(bytesOf(longer).size(), before);
}

TEST(Cli, ToBmpShowsTheIconOverItsBackground) {
    QTemporaryDir dir;
    const QString in = testData("ico/valid/moz_ico-partial-transparent-32bpp.ico");
    const std::optional<IconBitmap> at48 = decodeIcon(fileBytes(in), 48);
    const std::optional<IconBitmap> at32 = decodeIcon(fileBytes(in), 32);
    ASSERT_TRUE(at48 && at32);
    struct Case {
        QStringList options;
        const IconBitmap& icon;
        Colour background;
    };
    for (const Case& k :
         {Case{{"--size", "48", "--background", "102030"}, *at48, rgb(0x10, 0x20, 0x30)},
          Case{{"--background=#ffffff"}, *at32, kWhite}, Case{{}, *at32, rgb(0x00, 0xD2, 0xD2)}}) {
        const QString out = dir.filePath("out.bmp");
        const Outcome r = run(QStringList{"to-bmp", in, out} + k.options);
        ASSERT_EQ(r.code, 0) << r.err.toStdString();
        EXPECT_EQ(bytesOf(out), encodeBmp24(composeOver(k.icon, k.background)))
            << k.options.join(' ').toStdString();
    }
}

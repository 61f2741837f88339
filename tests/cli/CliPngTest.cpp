// orvanne-icons to-png and thumbnail: images written as PNG with their alpha.
#include "tests/cli/CliRun.h"
#include "tests/support/TestData.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using clitest::Outcome;
using clitest::run;
using testsupport::testData;

namespace {

// Alpha equal everywhere, colours equal wherever something shows.
void expectSamePixels(const QImage& got, const QImage& expected, const QString& what) {
    ASSERT_EQ(got.size(), expected.size()) << what.toStdString();
    const QImage a = got.convertToFormat(QImage::Format_ARGB32);
    const QImage b = expected.convertToFormat(QImage::Format_ARGB32);
    int wrong = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            if (qAlpha(p) != qAlpha(q) || (qAlpha(q) != 0 && (p & 0xFFFFFFu) != (q & 0xFFFFFFu)))
                ++wrong;
        }
    EXPECT_EQ(wrong, 0) << what.toStdString();
}

} // namespace

TEST(CliPng, ToPngKeepsTheStoredImageAndItsAlpha) {
    QTemporaryDir dir;
    struct Case {
        const char* file;
        QStringList options;
        const char* reference;
    };
    for (const Case& c : {
             // A 32-bit bitmap: its alpha channel, graded.
             Case{"ico/valid/imagers_bmp-32bpp-alpha.ico", {},
                  "ico/reference/imagers_bmp-32bpp-alpha.ico.png"},
             // Alpha 128 everywhere wins over the AND mask.
             Case{"ico/valid/imagers_bmp-32bpp-conflicting-and-mask.ico", {},
                  "ico/reference/imagers_bmp-32bpp-conflicting-and-mask.ico.png"},
             // A PNG entry comes back as it was.
             Case{"ico/valid/imagers_png-32bpp-alpha.ico", {},
                  "ico/reference/imagers_png-32bpp-alpha.ico.png"},
             // The nearest to the size asked: 16×16 1-bit, its AND mask as alpha 0 or 255.
             Case{"ico/valid/icojs_basic.ico", {"--size", "16"},
                  "ico/reference/icojs_basic_16x16-1bit.png"},
             Case{"ico/valid/icojs_basic.ico", {"--size", "90"},
                  "ico/reference/icojs_basic_96x96-24bit.png"},
             // Without a size, the largest.
             Case{"ico/valid/icojs_basic.ico", {}, "ico/reference/icojs_basic_256x256-4bit.png"},
         }) {
        const QString out = dir.filePath("out.png");
        QFile::remove(out);
        const Outcome r = run(QStringList{"to-png", testData(c.file), out} + c.options);
        ASSERT_EQ(r.code, 0) << c.file << r.err.toStdString();
        const QImage got(out, "PNG");
        ASSERT_EQ(got.format(), QImage::Format_ARGB32) << c.file;
        expectSamePixels(got, QImage(testData(c.reference)), c.file);
    }
}

TEST(CliPng, ThumbnailsOfExecutablesAndCursors) {
    QTemporaryDir dir;
    struct Case {
        const char* file;
        int size;
        QSize expected;
    };
    for (const Case& c : {
             Case{"pe/corkami_resource_icon.exe", 48, {}},
             Case{"ani/pillow_stopwtch.ani", 32, {32, 32}},
             Case{"icl/psc_robanderson_test.icl", 16, {16, 16}},
             // The 256×256 PNG image shrunk to fit.
             Case{"ico/valid/icojs_png.ico", 100, {100, 100}},
         }) {
        const QString out = dir.filePath("vignette.png");
        QFile::remove(out);
        const Outcome r = run({"thumbnail", "--size", QString::number(c.size), testData(c.file), out});
        ASSERT_EQ(r.code, 0) << c.file << r.err.toStdString();
        const QImage got(out, "PNG");
        ASSERT_FALSE(got.isNull()) << c.file;
        EXPECT_TRUE(got.hasAlphaChannel()) << c.file;
        EXPECT_LE(std::max(got.width(), got.height()), c.size) << c.file;
        if (c.expected.isValid()) {
            EXPECT_EQ(got.size(), c.expected) << c.file;
        }
    }
}

TEST(CliPng, RefusalsAndUsageErrors) {
    QTemporaryDir dir;
    const QString ico = testData("ico/valid/icojs_basic.ico");
    const QString out = dir.filePath("x.png");
    struct Case {
        QStringList args;
        int code;
    };
    for (const Case& c : {
             Case{{"to-png", ico, out, "--size", "0"}, 2},
             Case{{"to-png", ico, out, "--size", "grand"}, 2},
             Case{{"to-png", ico, out, "--index", "0"}, 2},
             Case{{"thumbnail", ico, out}, 2},
             Case{{"thumbnail", "--size", "2000", ico, out}, 2},
             Case{{"to-png", ico, out, "--index", "2"}, 1},
             Case{{"to-png", testData("pe/aclock-x64-win64_no_resources.exe"), out}, 1},
             Case{{"thumbnail", "--size", "48", testData("icl/invalid/r2tb_ne_necrash.bin"), out}, 1},
             Case{{"thumbnail", "--size", "48", dir.path(), out}, 1},
             Case{{"to-png", ico, dir.filePath("absent/x.png")}, 1},
         }) {
        const Outcome r = run(c.args);
        EXPECT_EQ(r.code, c.code) << c.args.join(' ').toStdString() << r.err.toStdString();
        EXPECT_TRUE(r.err.startsWith("orvanne-icons : ")) << r.err.toStdString();
    }
    EXPECT_TRUE(QDir(dir.path()).entryList(QDir::Files).isEmpty());
}

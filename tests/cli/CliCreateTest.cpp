// orvanne-icons create: an icon of several sizes made of PNG pictures, read back by the
// program's own reader and by icotool.
#include "tests/cli/CliRun.h"
#include "tests/support/TestData.h"

#include "icon/IcoReader.h"
#include "icon/PngDecoder.h"
#include "icon/PngEncoder.h"
#include "icon/RgbaPicture.h"
#include "icon/SafeSave.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using clitest::Outcome;
using clitest::run;
using testsupport::testData;

namespace {

// A picture with graded alpha, a clear corner and colours that differ from pixel to pixel.
icon::RgbaPicture picture(int width, int height) {
    icon::RgbaPicture p;
    p.width = width;
    p.height = height;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const std::uint32_t alpha =
                x + y < 3 ? 0 : static_cast<std::uint32_t>(40 + (x * 7 + y) % 216);
            p.pixels.push_back(alpha << 24 | std::uint32_t(x * 13 % 256) << 16 |
                               std::uint32_t(y * 29 % 256) << 8 | std::uint32_t((x ^ y) % 256));
        }
    return p;
}

QString writePng(const QTemporaryDir& dir, const icon::RgbaPicture& p) {
    const QString path = dir.filePath(QString("%1x%2.png").arg(p.width).arg(p.height));
    const std::optional<std::vector<std::uint8_t>> png = icon::encodePng(p);
    EXPECT_TRUE(png && icon::saveFileSafely(testsupport::pathOf(path), *png, false));
    return path;
}

// Alpha everywhere, colour wherever something shows.
int wrongPixels(const icon::RgbaPicture& got, const icon::RgbaPicture& expected) {
    if (got.width != expected.width || got.height != expected.height)
        return -1;
    int wrong = 0;
    for (std::size_t i = 0; i < got.pixels.size(); ++i) {
        const std::uint32_t p = got.pixels[i], q = expected.pixels[i];
        if (p >> 24 != q >> 24 || (q >> 24 != 0 && (p & 0xFFFFFFu) != (q & 0xFFFFFFu)))
            ++wrong;
    }
    return wrong;
}

} // namespace

TEST(CliCreate, MakesEveryImageAtItsSizeAndReadsBack) {
    QTemporaryDir dir;
    const std::vector<icon::RgbaPicture> pictures{picture(16, 16), picture(48, 32), picture(1, 1),
                                                  picture(256, 256)};
    QStringList inputs;
    for (const icon::RgbaPicture& p : pictures)
        inputs << writePng(dir, p);
    struct Case {
        QStringList options;
        std::vector<icon::ImageFormat> formats;
    };
    using F = icon::ImageFormat;
    for (const Case& c : {
             Case{{}, {F::Bmp, F::Bmp, F::Bmp, F::Png}},
             Case{{"--png", "48,1", "--bmp", "256"}, {F::Bmp, F::Png, F::Png, F::Bmp}},
         }) {
        const QString out = dir.filePath("out.ico");
        const Outcome r = run(QStringList{"create", out} + inputs + c.options);
        ASSERT_EQ(r.code, 0) << r.err.toStdString();
        const std::vector<std::uint8_t> bytes = clitest::bytesOf(out);
        const std::optional<icon::IcoDirectory> directory = icon::readIcoDirectory(bytes);
        ASSERT_TRUE(directory);
        ASSERT_EQ(directory->images.size(), pictures.size());
        for (std::size_t i = 0; i < pictures.size(); ++i) {
            const icon::IcoImageInfo& info = directory->images[i];
            EXPECT_EQ(info.format, c.formats[i]) << i;
            EXPECT_EQ(info.bitDepth, 32) << i;
            const std::optional<icon::RgbaPicture> back = icon::decodeRgbaImage(bytes, info);
            ASSERT_TRUE(back) << i;
            EXPECT_EQ(wrongPixels(icon::unpremultiplied(*back), pictures[i]), 0) << i;
        }

        const QString icotool = QStandardPaths::findExecutable("icotool");
        if (icotool.isEmpty()) {
            std::cerr << "icotool absent (icoutils): listing not checked\n";
            continue;
        }
        QProcess list;
        list.start(icotool, {"-l", out});
        ASSERT_TRUE(list.waitForFinished(30000));
        const QStringList lines =
            QString::fromUtf8(list.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
        ASSERT_EQ(lines.size(), static_cast<qsizetype>(pictures.size()));
        for (std::size_t i = 0; i < pictures.size(); ++i)
            EXPECT_TRUE(lines[i].contains(QString("--width=%1 --height=%2 --bit-depth=32")
                                              .arg(pictures[i].width)
                                              .arg(pictures[i].height)))
                << lines[i].toStdString();

        // icotool's own decoding of each image, as an outside reference for the pixels.
        QTemporaryDir extracted;
        QProcess extract;
        extract.start(icotool, {"-x", "-o", extracted.path(), out});
        ASSERT_TRUE(extract.waitForFinished(30000));
        for (std::size_t i = 0; i < pictures.size(); ++i) {
            const icon::RgbaPicture& p = pictures[i];
            const QString name =
                QString("out_%1_%2x%3x32.png").arg(i + 1).arg(p.width).arg(p.height);
            const std::optional<icon::PngPixels> png =
                icon::decodePngRgba(clitest::bytesOf(extracted.filePath(name)));
            ASSERT_TRUE(png) << name.toStdString();
            icon::RgbaPicture theirs{png->width, png->height, {}, {}, false};
            for (std::size_t k = 0; k + 3 < png->rgba.size(); k += 4)
                theirs.pixels.push_back(std::uint32_t(png->rgba[k + 3]) << 24 |
                                        std::uint32_t(png->rgba[k]) << 16 |
                                        std::uint32_t(png->rgba[k + 1]) << 8 | png->rgba[k + 2]);
            EXPECT_EQ(wrongPixels(theirs, p), 0) << name.toStdString();
        }
    }
}

TEST(CliCreate, RefusalsLeaveNoFile) {
    QTemporaryDir dir;
    const QString small = writePng(dir, picture(16, 16));
    const QString large = writePng(dir, picture(300, 300));
    const QString out = dir.filePath("out.ico");
    struct Case {
        QStringList args;
        int code;
    };
    for (const Case& c : {
             Case{{"create", out, testData("ico/valid/icojs_basic.ico")}, 1},
             Case{{"create", out, small, large}, 1},
             Case{{"create", out, small, dir.filePath("absent.png")}, 1},
             Case{{"create", out, small, small}, 1},
             Case{{"create", out, dir.path()}, 1},
             Case{{"create", out}, 2},
             Case{{"create", out, small, "--png", "0"}, 2},
             Case{{"create", out, small, "--png", "16,"}, 2},
             Case{{"create", out, small, "--png", "16", "--bmp", "32,16"}, 2},
             Case{{"create", out, small, "--size", "16"}, 2},
         }) {
        const Outcome r = run(c.args);
        EXPECT_EQ(r.code, c.code) << c.args.join(' ').toStdString();
        EXPECT_TRUE(r.err.startsWith("orvanne-icons : ")) << r.err.toStdString();
        EXPECT_FALSE(QFile::exists(out)) << c.args.join(' ').toStdString();
    }
}

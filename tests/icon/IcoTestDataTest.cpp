// The reader against real files: every valid icon and cursor decodes, every reference decoding
// matches, and broken files (shipped, or cut and damaged here) are refused or decoded cleanly.
#include "icon/IcoReader.h"

#include "tests/icon/IcoFiles.h"
#include "tests/support/TestData.h"

#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <random>
#include <set>

using namespace icon;
using icontest::mismatches;
using testsupport::fileBytes;
using testsupport::testData;
using testsupport::testFiles;

namespace {

QString nameOf(const QString& path) {
    return QFileInfo(path).fileName();
}

// Files that hold icons, by base name without extension.
std::map<QString, QString> iconFilesByStem() {
    std::map<QString, QString> stems;
    for (const char* folder : {"ico/valid", "ico/invalid", "cur"})
        for (const QString& path : testFiles(folder))
            stems[QFileInfo(path).completeBaseName()] = path;
    return stems;
}

} // namespace

TEST(IcoTestData, EveryValidIconDecodesAtBothBrowserSizes) {
    const QStringList files = testFiles("ico/valid");
    ASSERT_GT(files.size(), 150);
    for (const QString& path : files) {
        SCOPED_TRACE(nameOf(path).toStdString());
        const std::vector<std::uint8_t> bytes = fileBytes(path);
        const std::optional<IcoDirectory> directory = readIcoDirectory(bytes);
        ASSERT_TRUE(directory.has_value());
        EXPECT_GE(chooseImage(*directory, 32), 0);
        const std::optional<IconPlanes> planes = decodeIconPlanes(bytes);
        EXPECT_TRUE(planes.has_value());
        const std::optional<IconBitmap> big = decodeIcon(bytes, 48);
        ASSERT_TRUE(big.has_value());
        EXPECT_EQ(big->width(), 48);
        EXPECT_EQ(big->height(), 48);
        // Every image whose header reads right decodes at its own size.
        for (const IcoImageInfo& info : directory->images)
            if (info.usable) {
                const std::optional<IconBitmap> image = decodeImage(bytes, info);
                ASSERT_TRUE(image.has_value()) << info.width << "x" << info.height;
                EXPECT_EQ(image->width(), info.width);
                EXPECT_EQ(image->height(), info.height);
            }
        // Sampling while decoding gives what stretching the whole image gives.
        const int chosen = chooseImage(*directory, 48);
        const std::optional<IconBitmap> whole =
            decodeImage(bytes, directory->images[static_cast<std::size_t>(chosen)]);
        ASSERT_TRUE(whole.has_value());
        EXPECT_EQ(resample(*whole, 48, 48), *big);
        EXPECT_TRUE(isLoadablePicture(fileBytes(path)));
    }
}

TEST(IcoTestData, BrokenIconsAndCursorsAreRefusedOrDecodedCleanly) {
    // Of the damaged icons, these are odd but readable: a byte count that lies, a 1×1 image with
    // no room for its mask, a mask cut short, a directory that disagrees with the bitmap. The
    // others are damaged beyond use (not an icon directory, no entry, entries past the end, sizes
    // past the limits, compressed or unknown pixel formats). Of the cursors, one has no image and
    // one's colour data stops at a third of the bitmap.
    const std::set<QString> odd{"imagers_Bad_smile-incorrect-image-length.ico",
                                "imagers_bmp-biHeight=1.ico",
                                "imagers_truncated_mask_32bpp.ico",
                                "pillow_hopper_unexpected.ico",
                                "pillow_no_cursors_INVALID.cur",
                                "gtk_win32_rc_cursor3a.cur"};
    EXPECT_EQ(testFiles("ico/invalid").size(), 27);
    for (const char* folder : {"ico/invalid", "cur"})
        for (const QString& path : testFiles(folder)) {
            SCOPED_TRACE(nameOf(path).toStdString());
            const bool valid = folder[0] == 'c';
            EXPECT_EQ(decodeIconPlanes(fileBytes(path)).has_value(),
                      valid != odd.contains(nameOf(path)));
        }
    // A PNG file named .ico is no icon, but the validity test still accepts it as a picture.
    EXPECT_TRUE(isLoadablePicture(fileBytes(testData("ico/invalid/decodeico_favicon-actually-a-png.ico"))));
    EXPECT_FALSE(isLoadablePicture(fileBytes(testData("ico/invalid/qt_35floppy_first8bytes_ff.ico"))));
    EXPECT_FALSE(isLoadablePicture(fileBytes(testData("ico/invalid/pillow_no_icons.ico"))));
}

TEST(IcoTestData, ReferenceDecodingsMatchPixelForPixel) {
    // References that are not decodings of an icon this reader accepts: source pictures of a
    // writing test, and decodings of files that are no icon directory at all.
    const std::set<QString> notDecodings{
        "pillow_posy_link.png", "pillow_win98_arrow.png", "pillow_win1_ico1.png",
        "decodeico_favicon-actually-a-png-0.png", "decodeico_invisionapp-actually-a-png-0.png"};
    // Shared references whose entry order is given by their owners.
    const std::map<QString, std::pair<QString, int>> explicitEntries{
        {"mejico_order_icon-2.png", {"mejico_order_icon", 0}},
        {"mejico_order_icon-1.png", {"mejico_order_icon", 1}},
        {"mejico_png_2png1.png", {"mejico_png_2png", 0}},
        {"mejico_png_2png2.png", {"mejico_png_2png", 1}},
        {"icojs_palette_32x32-4bit.png", {"decodeico_palette", 0}}};
    // Renderings made by a Windows icon round trip, whose colours went through the display and
    // came back one step off in some channels: transparency must agree, colours within one.
    const std::set<QString> roundTripped{"qt_icon_8bpp_16x16.png", "qt_icon_8bpp_32x32.png",
                                         "qt_icon_8bpp_48x48.png"};
    const std::map<QString, QString> stems = iconFilesByStem();
    const QRegularExpression entrySuffix(QStringLiteral("^-(\\d+)$"));

    int compared = 0;
    for (const QString& refPath : testFiles("ico/reference") + testFiles("cur/reference")) {
        const QString refName = nameOf(refPath);
        SCOPED_TRACE(refName.toStdString());
        if (notDecodings.contains(refName))
            continue;
        QString base = QFileInfo(refPath).completeBaseName();
        if (base.endsWith(".ico"))
            base.chop(4);
        // The icon file whose name is the longest prefix of the reference's; "-N" names entry N.
        QString stem;
        int entry = -1;
        if (auto it = explicitEntries.find(refName); it != explicitEntries.end()) {
            stem = it->second.first;
            entry = it->second.second;
        } else {
            for (const auto& [candidate, path] : stems)
                if (base.startsWith(candidate) && candidate.size() > stem.size())
                    stem = candidate;
            const auto m = entrySuffix.match(base.mid(stem.size()));
            if (m.hasMatch())
                entry = m.captured(1).toInt();
        }
        if (stem.isEmpty()) {
            ADD_FAILURE() << "no icon file for this reference";
            continue;
        }
        const std::vector<std::uint8_t> bytes = fileBytes(stems.at(stem));
        const std::optional<IcoDirectory> directory = readIcoDirectory(bytes);
        ASSERT_TRUE(directory.has_value());
        const QImage reference(refPath);
        ASSERT_FALSE(reference.isNull());

        // Without an entry number, the reference is of one of the images of its size.
        std::vector<std::size_t> candidates;
        for (std::size_t i = 0; i < directory->images.size(); ++i) {
            const IcoImageInfo& info = directory->images[i];
            if (entry >= 0 ? i == static_cast<std::size_t>(entry)
                           : info.width == reference.width() && info.height == reference.height())
                candidates.push_back(i);
        }
        if (candidates.empty()) {
            ADD_FAILURE() << "no image of the reference's size";
            continue;
        }
        std::string report;
        bool matched = false;
        for (std::size_t i : candidates) {
            const std::optional<IconBitmap> image = decodeImage(bytes, directory->images[i]);
            EXPECT_TRUE(image.has_value()) << "entry " << i;
            if (!image)
                continue;
            std::string first;
            const int bad =
                mismatches(*image, reference, first, roundTripped.contains(refName) ? 1 : 0);
            matched = matched || bad == 0;
            report += " entry " + std::to_string(i) + ": " + std::to_string(bad) + " pixels, " +
                      first + ";";
        }
        EXPECT_TRUE(matched) << report;
        ++compared;
    }
    EXPECT_GT(compared, 150);
}

TEST(IcoTestData, CutAndDamagedCopiesNeverBreakTheReader) {
    std::mt19937 random(20261121);
    for (const QString& path : testFiles("ico/valid") + testFiles("cur")) {
        SCOPED_TRACE(nameOf(path).toStdString());
        const std::vector<std::uint8_t> original = fileBytes(path);
        // Cut at every header boundary and at a few places in the pixel data.
        std::set<std::size_t> cuts{0, 1, 5, 6, 7, 21, 22, 23, 30, 61, 62, 63, original.size() - 1};
        for (int i = 0; i < 6; ++i)
            cuts.insert(random() % original.size());
        for (std::size_t cut : cuts) {
            if (cut >= original.size())
                continue;
            const std::vector<std::uint8_t> copy(original.begin(),
                                                 original.begin() + static_cast<long>(cut));
            if (const auto icon = decodeIcon(copy, 32)) {
                EXPECT_EQ(icon->width(), 32);
            }
        }
        // Overwrite bytes of the directory and the headers, then anywhere.
        for (int i = 0; i < 24; ++i) {
            std::vector<std::uint8_t> copy = original;
            const std::size_t limit = i < 16 ? std::min<std::size_t>(copy.size(), 80) : copy.size();
            for (int k = 0; k < 3; ++k)
                copy[random() % limit] = static_cast<std::uint8_t>(random());
            if (const auto icon = decodeIcon(copy, 48)) {
                EXPECT_EQ(icon->height(), 48);
            }
            if (const auto directory = readIcoDirectory(copy)) {
                for (const IcoImageInfo& info : directory->images) {
                    if (const auto image = decodeImage(copy, info)) {
                        EXPECT_LE(image->width(), kMaxPngSide);
                    }
                }
            }
        }
    }
}

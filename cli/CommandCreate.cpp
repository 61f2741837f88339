#include "cli/Command.h"
#include "cli/Input.h"
#include "cli/SourceInput.h"

#include "icon/IcoAuthoring.h"
#include "icon/SafeSave.h"

#include <algorithm>
#include <set>

namespace cli {

namespace {

std::string sizeName(int width, int height) {
    return std::to_string(width) + "×" + std::to_string(height);
}

// "--png 256,128": the larger sides of the images to store that way; nothing when wrong (after
// saying why).
std::optional<std::set<int>> sidesOption(const Arguments& args, const std::string& name,
                                         Console& console) {
    const std::optional<std::string> text = args.option(name);
    std::set<int> sides;
    if (!text)
        return sides;
    std::size_t start = 0;
    while (true) {
        const std::size_t comma = text->find(',', start);
        const std::optional<int> n = parseNumber(text->substr(start, comma - start));
        if (!n || *n < 1 || *n > icon::kMaxAuthoredSide) {
            console.fail(kUsage, name + " attend des côtés en pixels de 1 à " +
                                     std::to_string(icon::kMaxAuthoredSide) +
                                     " séparés par des virgules, pas « " + *text + " ».");
            return std::nullopt;
        }
        sides.insert(*n);
        if (comma == std::string::npos)
            return sides;
        start = comma + 1;
    }
}

} // namespace

// Makes an icon file of PNG pictures, one image each at its own size, in the order given: PNG
// entries for the images whose larger side is --png, bitmaps for --bmp, and by default PNG at
// 256 and bitmaps below. Two pictures of one size are refused: an icon has one image a size.
int runCreate(const Arguments& args, Console& console) {
    const std::string output = args.at(0);
    const std::vector<std::string> inputs(args.positional().begin() + 1, args.positional().end());
    if (inputs.size() > icon::kMaxAuthoredImages)
        return console.fail(kUsage, "une icône a au plus " +
                                        std::to_string(icon::kMaxAuthoredImages) + " images.");
    const std::optional<std::set<int>> png = sidesOption(args, "--png", console);
    if (!png)
        return kUsage;
    const std::optional<std::set<int>> bmp = sidesOption(args, "--bmp", console);
    if (!bmp)
        return kUsage;
    for (int side : *png)
        if (bmp->count(side) != 0)
            return console.fail(kUsage, "le côté " + std::to_string(side) +
                                            " est à la fois dans --png et dans --bmp.");

    std::vector<icon::AuthoredImage> images;
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        const std::string& path = inputs[i];
        const std::shared_ptr<const icon::MappedFile> file = readInput(path, console);
        if (!file)
            return kRefused;
        icon::PngPicture read = icon::pictureFromPng(file->bytes());
        switch (read.refusal) {
        case icon::PngRefusal::None:
            break;
        case icon::PngRefusal::NotPng:
            return console.fail(kRefused, quoted(path) + " n'est pas une image PNG.");
        case icon::PngRefusal::TooLarge:
            return console.fail(kRefused, quoted(path) + " mesure " +
                                              sizeName(read.width, read.height) +
                                              " pixels : une icône en a au plus " +
                                              std::to_string(icon::kMaxAuthoredSide) + " de côté.");
        case icon::PngRefusal::Undecodable:
            return console.fail(kRefused, quoted(path) + " n'est pas une image PNG lisible.");
        }
        const int width = read.picture->width;
        const int height = read.picture->height;
        for (std::size_t j = 0; j < images.size(); ++j)
            if (images[j].picture.width == width && images[j].picture.height == height)
                return console.fail(kRefused,
                                    quoted(path) + " a la taille " + sizeName(width, height) +
                                        " de " + quoted(inputs[j]) +
                                        " : une icône n'a qu'une image de chaque taille.");
        const int side = std::max(width, height);
        icon::EntryFormat format = icon::defaultEntryFormat(width, height);
        if (png->count(side) != 0)
            format = icon::EntryFormat::Png;
        else if (bmp->count(side) != 0)
            format = icon::EntryFormat::Bmp;
        images.push_back({std::move(*read.picture), format});
    }
    const std::optional<std::vector<std::uint8_t>> ico = icon::encodeMultiSizeIco(images);
    if (!ico)
        return console.fail(kRefused, "impossible de coder l'icône.");
    const icon::SaveResult saved = icon::saveFileSafely(output, *ico, false);
    if (!saved)
        return console.fail(kRefused, saved.message);
    return kSuccess;
}

} // namespace cli

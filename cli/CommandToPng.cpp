#include "cli/Batch.h"
#include "cli/Command.h"
#include "cli/Input.h"
#include "cli/SourceInput.h"

#include "icon/IcoReader.h"
#include "icon/PngEncoder.h"
#include "icon/RgbaPicture.h"
#include "icon/SafeSave.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace cli {

namespace {

constexpr int kMaxSize = 1024;
// A file may point many entries at one broken image: a few are tried at most.
constexpr std::size_t kMaxDecodeAttempts = 4;

// "--size N" as a number of pixels 1..1024; nothing when absent, the exit code when wrong.
struct Size {
    std::optional<int> pixels;
    int failure = 0;
};
Size sizeOption(const Arguments& args, Console& console) {
    const std::optional<std::string> text = args.option("--size");
    if (!text)
        return {};
    const std::optional<int> n = parseNumber(*text);
    if (!n || *n < 1 || *n > kMaxSize)
        return {std::nullopt,
                console.fail(kUsage, "--size attend un nombre de pixels de 1 à " +
                                         std::to_string(kMaxSize) + ", pas « " + *text + " ».")};
    return {*n, 0};
}

// The images in the order they are tried: the nearest to `size`, the larger first on a tie, or
// the largest without a size; the deepest colours first among equals.
std::vector<int> nearestFirst(const icon::IcoDirectory& directory, std::optional<int> size) {
    std::vector<int> ranked;
    for (std::size_t i = 0; i < directory.images.size(); ++i)
        if (directory.images[i].usable)
            ranked.push_back(static_cast<int>(i));
    const auto key = [&](int i) {
        const icon::IcoImageInfo& im = directory.images[static_cast<std::size_t>(i)];
        const int extent = std::max(im.width, im.height);
        const int distance = size ? std::abs(extent - *size) : 0;
        return std::make_tuple(distance, -extent, -im.bitDepth, i);
    };
    std::sort(ranked.begin(), ranked.end(), [&](int a, int b) { return key(a) < key(b); });
    return ranked;
}

std::optional<icon::RgbaPicture> decodeNearest(std::span<const std::uint8_t> ico,
                                               std::optional<int> size) {
    const std::optional<icon::IcoDirectory> directory = icon::readIcoDirectory(ico);
    if (!directory)
        return std::nullopt;
    std::vector<std::uint32_t> tried;
    for (int index : nearestFirst(*directory, size)) {
        const icon::IcoImageInfo& info = directory->images[static_cast<std::size_t>(index)];
        if (std::find(tried.begin(), tried.end(), info.offset) != tried.end())
            continue;
        if (tried.size() == kMaxDecodeAttempts)
            break;
        tried.push_back(info.offset);
        if (std::optional<icon::RgbaPicture> picture = icon::decodeRgbaImage(ico, info))
            return picture;
    }
    return std::nullopt;
}

int writePng(const icon::RgbaPicture& picture, const std::string& output,
             icon::Durability durability, Console& console) {
    const std::optional<std::vector<std::uint8_t>> png = icon::encodePng(picture);
    if (!png)
        return console.fail(kRefused, "impossible de coder l'image en PNG.");
    const icon::SaveResult saved = icon::saveFileSafely(output, *png, false, durability);
    if (!saved)
        return console.fail(kRefused, saved.message);
    return kSuccess;
}

// One image of icon N of `path` to `output`; the exit code for this input.
int toPngOne(const Arguments& args, const std::string& path, const std::string& output,
             std::optional<int> size, icon::Durability durability, Console& console) {
    const std::optional<icon::IconSource> source = openSource(path, console);
    if (!source)
        return kRefused;
    const Index index = indexOption(args, *source, path, console);
    if (index.failure != 0)
        return index.failure;
    if (source->count() == 0)
        return console.fail(kRefused, quoted(path) + " ne contient pas d'icône.");
    const int n = index.number.value_or(1);
    const icon::IcoView ico = source->ico(n);
    const std::optional<icon::RgbaPicture> picture = decodeNearest(ico.bytes, size);
    if (!picture)
        return console.fail(kRefused, "l'icône n°" + std::to_string(n) + " de " + quoted(path) +
                                          " n'a aucune image lisible.");
    return writePng(*picture, output, durability, console);
}

} // namespace

// Writes one image of an icon, as it is stored, to an RGBA PNG file with its alpha; several
// inputs go into the folder named last, each as "<name>.png".
int runToPng(const Arguments& args, Console& console) {
    const Size size = sizeOption(args, console);
    if (size.failure != 0)
        return size.failure;
    const std::vector<std::string>& words = args.positional();
    if (words.size() == 2)
        return toPngOne(args, words[0], words[1], size.pixels, icon::Durability::Flushed, console);
    const std::vector<std::string> inputs(words.begin(), words.end() - 1);
    if (!makeFolder(words.back(), console))
        return kRefused;
    const std::vector<std::string> stems = distinctStems(inputs);
    Outcomes outcomes;
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        const int code = toPngOne(args, inputs[i], inFolder(words.back(), stems[i] + ".png"),
                                  size.pixels, icon::Durability::Cached, console);
        if (code == kUsage)
            return code;
        outcomes.add(code);
    }
    return outcomes.code();
}

// The first icon of a file as a thumbnail of at most size×size pixels: the image of that size,
// else the nearest larger one shrunk to fit, else the largest smaller one as it is.
int runThumbnail(const Arguments& args, Console& console) {
    const std::string path = args.at(0);
    const std::string output = args.at(1);
    const Size size = sizeOption(args, console);
    if (size.failure != 0)
        return size.failure;
    if (!size.pixels)
        return console.fail(kUsage, "il manque --size N, le côté de la vignette en pixels.");
    const std::optional<icon::IconSource> source = openSource(path, console);
    if (!source)
        return kRefused;
    if (source->count() == 0)
        return console.fail(kRefused, quoted(path) + " ne contient pas d'icône.");
    const icon::IcoView ico = source->ico(1);
    std::optional<icon::RgbaPicture> picture = icon::decodeBestRgba(ico.bytes, *size.pixels);
    if (!picture)
        return console.fail(kRefused,
                            "la première icône de " + quoted(path) + " n'a aucune image lisible.");
    const int side = *size.pixels;
    if (picture->width > side || picture->height > side) {
        // Shrunk to fit, its proportions kept.
        const int width =
            std::max(1, static_cast<int>(static_cast<long long>(picture->width) * side /
                                         std::max(picture->width, picture->height)));
        const int height =
            std::max(1, static_cast<int>(static_cast<long long>(picture->height) * side /
                                         std::max(picture->width, picture->height)));
        picture = icon::resized(*picture, width, height);
    }
    // The desktop writes thumbnails by the thousand and moves each into its cache itself.
    return writePng(*picture, output, icon::Durability::Cached, console);
}

} // namespace cli

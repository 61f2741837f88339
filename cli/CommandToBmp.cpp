#include "cli/Batch.h"
#include "cli/Command.h"
#include "cli/Input.h"

#include "icon/BmpWriter.h"
#include "icon/IcoReader.h"

namespace cli {

namespace {

// The browser's default viewing colour, behind the icons of its grid.
constexpr icon::Colour kDefaultBackground = icon::rgb(0x00, 0xD2, 0xD2);

// "RRGGBB" in hexadecimal, red first as people write colours; a leading '#' is allowed.
std::optional<icon::Colour> parseColour(const std::string& text) {
    const std::string digits = text.starts_with('#') ? text.substr(1) : text;
    if (digits.size() != 6)
        return std::nullopt;
    unsigned value = 0;
    for (const char c : digits) {
        const int digit = c >= '0' && c <= '9'   ? c - '0'
                          : c >= 'a' && c <= 'f' ? c - 'a' + 10
                          : c >= 'A' && c <= 'F' ? c - 'A' + 10
                                                 : -1;
        if (digit < 0)
            return std::nullopt;
        value = value * 16 + static_cast<unsigned>(digit);
    }
    return icon::rgb(static_cast<int>(value / 65536), static_cast<int>(value / 256 % 256),
                     static_cast<int>(value % 256));
}

int toBmpOne(const std::string& input, const std::string& output, int size, icon::Colour background,
             Console& console) {
    const std::shared_ptr<const icon::MappedFile> file = readInput(input, console);
    if (!file)
        return kRefused;
    const std::optional<icon::IconBitmap> bitmap = icon::decodeIcon(file->bytes(), size);
    if (!bitmap)
        return console.fail(kRefused, quoted(input) + " ne contient aucune icône.");
    const icon::SaveResult saved =
        icon::writeBmpFile(output, icon::composeOver(*bitmap, background));
    if (!saved)
        return console.fail(kRefused, saved.message);
    return kSuccess;
}

} // namespace

// Writes the icon as the browser shows it, over its background, as a 24-bit BMP file; several
// inputs go into the folder named last, each as "<name>.bmp".
int runToBmp(const Arguments& args, Console& console) {
    const std::string sizeText = args.option("--size").value_or("32");
    if (sizeText != "32" && sizeText != "48")
        return console.fail(kUsage, "--size vaut 32 ou 48, pas « " + sizeText + " ».");
    std::optional<icon::Colour> background = kDefaultBackground;
    if (const std::optional<std::string> text = args.option("--background"))
        background = parseColour(*text);
    if (!background)
        return console.fail(kUsage, "--background attend une couleur RRGGBB en hexadécimal, par "
                                    "exemple C0C0C0.");
    const int size = sizeText == "48" ? 48 : 32;
    const std::vector<std::string>& words = args.positional();
    if (words.size() == 2)
        return toBmpOne(words[0], words[1], size, *background, console);
    const std::vector<std::string> inputs(words.begin(), words.end() - 1);
    if (!makeFolder(words.back(), console))
        return kRefused;
    const std::vector<std::string> stems = distinctStems(inputs);
    Outcomes outcomes;
    for (std::size_t i = 0; i < inputs.size(); ++i)
        outcomes.add(toBmpOne(inputs[i], inFolder(words.back(), stems[i] + ".bmp"), size,
                              *background, console));
    return outcomes.code();
}

} // namespace cli

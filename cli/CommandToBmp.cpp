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

} // namespace

// Writes the icon as the browser shows it, over its background, as a 24-bit BMP file.
int runToBmp(const Arguments& args, Console& console) {
    const std::string input = args.at(0);
    const std::string output = args.at(1);
    const std::string sizeText = args.option("--size").value_or("32");
    if (sizeText != "32" && sizeText != "48")
        return console.fail(kUsage, "--size vaut 32 ou 48, pas « " + sizeText + " ».");
    std::optional<icon::Colour> background = kDefaultBackground;
    if (const std::optional<std::string> text = args.option("--background"))
        background = parseColour(*text);
    if (!background)
        return console.fail(kUsage, "--background attend une couleur RRGGBB en hexadécimal, par "
                                    "exemple C0C0C0.");

    const std::shared_ptr<const icon::MappedFile> file = readInput(input, console);
    if (!file)
        return kRefused;
    const std::optional<icon::IconBitmap> bitmap =
        icon::decodeIcon(file->bytes(), sizeText == "48" ? 48 : 32);
    if (!bitmap)
        return console.fail(kRefused, quoted(input) + " ne contient aucune icône.");
    const icon::SaveResult saved =
        icon::writeBmpFile(output, icon::composeOver(*bitmap, *background));
    if (!saved)
        return console.fail(kRefused, saved.message);
    return kSuccess;
}

} // namespace cli

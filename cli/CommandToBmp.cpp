#include "cli/Command.h"
#include "cli/Input.h"

#include "icon/BmpWriter.h"
#include "icon/IcoReader.h"

#include <QRegularExpression>

namespace cli {

namespace {

// The browser's default viewing colour, behind the icons of its grid.
constexpr icon::Colour kDefaultBackground = icon::rgb(0x00, 0xD2, 0xD2);

// "RRGGBB" in hexadecimal, red first as people write colours.
std::optional<icon::Colour> parseColour(const QString& text) {
    static const QRegularExpression hex(QStringLiteral("^[0-9A-Fa-f]{6}$"));
    QString digits = text.startsWith(QLatin1Char('#')) ? text.mid(1) : text;
    if (!hex.match(digits).hasMatch())
        return std::nullopt;
    const uint value = digits.toUInt(nullptr, 16);
    return icon::rgb(static_cast<int>(value / 65536), static_cast<int>(value / 256 % 256),
                     static_cast<int>(value % 256));
}

} // namespace

// Writes the icon as the browser shows it, over its background, as a 24-bit BMP file.
int runToBmp(const Arguments& args, Console& console) {
    const QString input = args.at(0);
    const QString output = args.at(1);
    const QString sizeText = args.option(QStringLiteral("--size")).value_or(QStringLiteral("32"));
    if (sizeText != QLatin1String("32") && sizeText != QLatin1String("48"))
        return console.fail(kUsage,
                            QStringLiteral("--size vaut 32 ou 48, pas « %1 ».").arg(sizeText));
    std::optional<icon::Colour> background = kDefaultBackground;
    if (const std::optional<QString> text = args.option(QStringLiteral("--background")))
        background = parseColour(*text);
    if (!background)
        return console.fail(kUsage, QStringLiteral("--background attend une couleur RRGGBB en "
                                                   "hexadécimal, par exemple C0C0C0."));

    const std::shared_ptr<const icon::MappedFile> file = readInput(input, console);
    if (!file)
        return kRefused;
    const std::optional<icon::IconBitmap> bitmap =
        icon::decodeIcon(file->bytes(), sizeText.toInt());
    if (!bitmap)
        return console.fail(kRefused,
                            QStringLiteral("%1 ne contient aucune icône.").arg(quoted(input)));
    const icon::SaveResult saved =
        icon::writeBmpFile(output, icon::composeOver(*bitmap, *background));
    if (!saved)
        return console.fail(kRefused, saved.message);
    return kSuccess;
}

} // namespace cli

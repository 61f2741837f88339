#include "cli/Command.h"
#include "cli/Input.h"

#include "icon/IcoReader.h"
#include "icon/IcoWriter.h"

namespace cli {

// Opens the input as the icon editor opens a file and writes it as the editor saves it.
int runToIco(const Arguments& args, Console& console) {
    const QString input = args.at(0);
    const QString output = args.at(1);
    const std::optional<std::vector<std::uint8_t>> bytes = readInput(input, console);
    if (!bytes)
        return kRefused;
    if (!icon::isLoadablePicture(*bytes))
        return console.fail(kRefused,
                            QStringLiteral("%1 n'est pas une image lisible.").arg(quoted(input)));
    // A picture that holds no icon (a PNG named .ico) would open as a blank icon in the editor;
    // a script is better told.
    const std::optional<icon::IconPlanes> planes = icon::decodeIconPlanes(*bytes);
    if (!planes)
        return console.fail(kRefused,
                            QStringLiteral("%1 ne contient aucune icône.").arg(quoted(input)));
    const icon::SaveResult saved = icon::writeIconFile(output, *planes);
    if (!saved)
        return console.fail(kRefused, saved.message);
    return kSuccess;
}

} // namespace cli

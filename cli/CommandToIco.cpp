#include "cli/Command.h"
#include "cli/Input.h"
#include "cli/SourceInput.h"

#include "icon/IcoReader.h"
#include "icon/IcoWriter.h"
#include "icon/IconSource.h"

namespace cli {

// Takes icon N (1 by default) of any file that holds icons at 32×32 as the icon editor opens
// an icon file, and writes it as the editor saves it.
int runToIco(const Arguments& args, Console& console) {
    const std::string input = args.at(0);
    const std::string output = args.at(1);
    std::shared_ptr<const icon::MappedFile> file = readInput(input, console);
    if (!file)
        return kRefused;
    const std::optional<icon::IconSource> source = icon::IconSource::fromFile(file);
    if (!source) {
        if (!icon::isLoadablePicture(file->bytes()))
            return console.fail(kRefused, quoted(input) + " n'est pas une image lisible.");
        // A picture that holds no icon (a PNG named .ico) would open as a blank icon in the
        // editor; a script is better told.
        return console.fail(kRefused, quoted(input) + " ne contient aucune icône.");
    }
    const Index index = indexOption(args, *source, input, console);
    if (index.failure != 0)
        return index.failure;
    if (source->count() == 0)
        return console.fail(kRefused, quoted(input) + " ne contient aucune icône.");
    const int n = index.number.value_or(1);
    const std::optional<icon::IconPlanes> planes = icon::decodeIconPlanes(source->ico(n).bytes);
    if (!planes)
        return console.fail(kRefused, "l'icône n°" + std::to_string(n) + " de " + quoted(input) +
                                          " n'a aucune image lisible.");
    const icon::SaveResult saved = icon::writeIconFile(output, *planes);
    if (!saved)
        return console.fail(kRefused, saved.message);
    return kSuccess;
}

} // namespace cli

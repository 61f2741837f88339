#include "cli/Command.h"
#include "cli/SourceInput.h"

#include "icon/IcoReader.h"

#include <algorithm>

namespace cli {

namespace {

// "16×16 4 bits, 32×32 32 bits PNG, ..." for the images of one icon; a cursor's images say where
// their hotspot is: "32×32 1 bit point actif 7,7".
std::string imagesText(const std::optional<icon::IcoDirectory>& directory) {
    if (!directory)
        return "aucune image";
    std::string text;
    for (const icon::IcoImageInfo& im : directory->images) {
        if (!text.empty())
            text += ", ";
        text += std::to_string(im.width) + "×" + std::to_string(im.height) + " " +
                std::to_string(im.bitDepth) + (im.bitDepth == 1 ? " bit" : " bits");
        if (im.format == icon::ImageFormat::Png)
            text += " PNG";
        if (directory->type == 2)
            text +=
                " point actif " + std::to_string(im.hotspotX) + "," + std::to_string(im.hotspotY);
        if (!im.usable)
            text += " (illisible)";
    }
    return text;
}

} // namespace

// The icons a file holds, as the icon picker counts them. Each icon's images are described where
// they lie in the file: nothing is assembled, however many icons share how large an image.
int runList(const Arguments& args, Console& console) {
    const std::string path = args.at(0);
    const std::optional<icon::IconSource> source = openSource(path, console);
    if (!source)
        return kRefused;
    const bool named = source->kind() == icon::IconSource::Kind::Pe ||
                       source->kind() == icon::IconSource::Kind::Ne;
    std::ostream& out = console.out();
    out << "Fichier : " << path << "\n";
    out << "Type : " << kindName(source->kind()) << "\n";
    out << "Icônes : " << source->count() << "\n";
    std::vector<std::string> names;
    int nameWidth = 0;
    for (int n = 1; named && n <= source->count(); ++n) {
        names.push_back(source->resourceName(n));
        nameWidth = std::max(nameWidth, columns(names.back()));
    }
    for (int n = 1; n <= source->count(); ++n) {
        out << padded(n, 5) << "  ";
        if (named)
            out << padded(names[static_cast<std::size_t>(n - 1)], -nameWidth) << "  ";
        out << imagesText(source->directory(n)) << "\n";
    }
    return kSuccess;
}

} // namespace cli

#include "cli/Command.h"
#include "cli/Input.h"

#include "icon/IcoReader.h"

namespace cli {

int runInfo(const Arguments& args, Console& console) {
    const std::string path = args.at(0);
    const std::shared_ptr<const icon::MappedFile> file = readInput(path, console);
    if (!file)
        return kRefused;
    const std::optional<icon::IcoDirectory> directory = icon::readIcoDirectory(file->bytes());
    if (!directory)
        return console.fail(kRefused, quoted(path) + " n'est pas un fichier ICO ou CUR.");

    std::ostream& out = console.out();
    const auto count = static_cast<int>(directory->images.size());
    out << "Fichier : " << path << "\n";
    out << "Type : " << (directory->type == 2 ? "curseur (CUR)" : "icône (ICO)") << ", " << count
        << (count > 1 ? " images" : " image") << "\n";
    const bool cursor = directory->type == 2;
    out << "Image  Largeur  Hauteur  Bits  Format      Octets" << (cursor ? "  Point actif" : "")
        << "\n";
    for (int i = 0; i < count; ++i) {
        const icon::IcoImageInfo& im = directory->images[static_cast<std::size_t>(i)];
        out << padded(i + 1, 5) << "  " << padded(im.width, 7) << "  " << padded(im.height, 7)
            << "  " << padded(im.bitDepth, 4) << "  "
            << padded(im.format == icon::ImageFormat::Png ? "PNG" : "BMP", -6) << "  "
            << padded(im.size, 10);
        if (cursor)
            out << "  "
                << padded(std::to_string(im.hotspotX) + "," + std::to_string(im.hotspotY), 11);
        out << (im.usable ? "" : "  illisible") << "\n";
    }

    const std::optional<icon::ChosenImage> chosen =
        icon::decodeChosenImage(file->bytes(), *directory, icon::kIconSize);
    if (!chosen)
        return console.fail(kRefused, "aucune image de " + quoted(path) + " n'est lisible.");
    const icon::IcoImageInfo& taken = directory->images[static_cast<std::size_t>(chosen->index)];
    const bool exact = taken.width == icon::kIconSize && taken.height == icon::kIconSize;
    out << "L'éditeur prend l'image " << chosen->index + 1
        << (exact ? " telle quelle, en 32×32." : ", ramenée à 32×32.") << "\n";
    return kSuccess;
}

} // namespace cli

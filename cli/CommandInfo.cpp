#include "cli/Command.h"
#include "cli/Input.h"

#include "icon/IcoReader.h"

namespace cli {

namespace {

QString formatName(icon::ImageFormat format) {
    return format == icon::ImageFormat::Png ? QStringLiteral("PNG") : QStringLiteral("BMP");
}

} // namespace

int runInfo(const Arguments& args, Console& console) {
    const QString path = args.at(0);
    const std::shared_ptr<const icon::MappedFile> file = readInput(path, console);
    if (!file)
        return kRefused;
    const std::optional<icon::IcoDirectory> directory = icon::readIcoDirectory(file->bytes());
    if (!directory)
        return console.fail(
            kRefused, QStringLiteral("%1 n'est pas un fichier ICO ou CUR.").arg(quoted(path)));

    QTextStream& out = console.out();
    const auto count = static_cast<int>(directory->images.size());
    out << "Fichier : " << path << "\n";
    out << "Type : " << (directory->type == 2 ? "curseur (CUR)" : "icône (ICO)") << ", " << count
        << (count > 1 ? " images" : " image") << "\n";
    out << "Image  Largeur  Hauteur  Bits  Format      Octets\n";
    for (int i = 0; i < count; ++i) {
        const icon::IcoImageInfo& im = directory->images[static_cast<std::size_t>(i)];
        out << QStringLiteral("%1  %2  %3  %4  %5  %6")
                   .arg(i + 1, 5)
                   .arg(im.width, 7)
                   .arg(im.height, 7)
                   .arg(im.bitDepth, 4)
                   .arg(formatName(im.format), -6)
                   .arg(im.size, 10);
        out << (im.usable ? "" : "  illisible") << "\n";
    }

    const std::optional<icon::ChosenImage> chosen =
        icon::decodeChosenImage(file->bytes(), *directory, icon::kIconSize);
    if (!chosen)
        return console.fail(kRefused,
                            QStringLiteral("aucune image de %1 n'est lisible.").arg(quoted(path)));
    const icon::IcoImageInfo& taken = directory->images[static_cast<std::size_t>(chosen->index)];
    const bool exact = taken.width == icon::kIconSize && taken.height == icon::kIconSize;
    out << "L'éditeur prend l'image " << chosen->index + 1
        << (exact ? " telle quelle, en 32×32." : ", ramenée à 32×32.") << "\n";
    return kSuccess;
}

} // namespace cli

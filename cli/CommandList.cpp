#include "cli/Command.h"
#include "cli/SourceInput.h"

#include "icon/IcoReader.h"

#include <QStringList>

#include <algorithm>

namespace cli {

namespace {

// "16×16 4 bits, 32×32 32 bits PNG, ..." for the images of one icon.
QString imagesText(const std::optional<icon::IcoDirectory>& directory) {
    if (!directory)
        return QStringLiteral("aucune image");
    QStringList parts;
    for (const icon::IcoImageInfo& im : directory->images) {
        QString part = QStringLiteral("%1×%2 %3 %4")
                           .arg(im.width)
                           .arg(im.height)
                           .arg(im.bitDepth)
                           .arg(im.bitDepth == 1 ? QStringLiteral("bit") : QStringLiteral("bits"));
        if (im.format == icon::ImageFormat::Png)
            part += QStringLiteral(" PNG");
        if (!im.usable)
            part += QStringLiteral(" (illisible)");
        parts << part;
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace

// The icons a file holds, as the icon picker counts them. Each icon's images are described where
// they lie in the file: nothing is assembled, however many icons share how large an image.
int runList(const Arguments& args, Console& console) {
    const QString path = args.at(0);
    const std::optional<icon::IconSource> source = openSource(path, console);
    if (!source)
        return kRefused;
    const bool named = source->kind() == icon::IconSource::Kind::Pe ||
                       source->kind() == icon::IconSource::Kind::Ne;
    QTextStream& out = console.out();
    out << "Fichier : " << path << "\n";
    out << "Type : " << kindName(source->kind()) << "\n";
    out << "Icônes : " << source->count() << "\n";
    qsizetype nameWidth = 0;
    for (int n = 1; named && n <= source->count(); ++n)
        nameWidth = std::max(nameWidth, source->resourceName(n).size());
    for (int n = 1; n <= source->count(); ++n) {
        out << QStringLiteral("%1  ").arg(n, 5);
        if (named)
            out << QStringLiteral("%1  ").arg(source->resourceName(n),
                                              -static_cast<int>(nameWidth));
        out << imagesText(source->directory(n)) << "\n";
    }
    return kSuccess;
}

} // namespace cli

#include "cli/Command.h"
#include "cli/Input.h"
#include "cli/SourceInput.h"

#include "icon/IcoReader.h"
#include "icon/SafeSave.h"

#include <QDir>
#include <QFileInfo>

namespace cli {

// Writes icons held in a file as ICO files named after it: "<name>_<number>.ico".
int runExtract(const Arguments& args, Console& console) {
    const QString path = args.at(0);
    const QString folder = args.at(1);
    const std::optional<icon::IconSource> source = openSource(path, console);
    if (!source)
        return kRefused;
    const Index index = indexOption(args, *source, path, console);
    if (index.failure != 0)
        return index.failure;
    if (source->count() == 0)
        return console.fail(kRefused,
                            QStringLiteral("%1 ne contient pas d'icône.").arg(quoted(path)));
    if (!QDir().mkpath(folder))
        return console.fail(
            kRefused, QStringLiteral("impossible de créer le dossier %1.").arg(quoted(folder)));

    const int first = index.number.value_or(1);
    const int last = index.number.value_or(source->count());
    const QString stem = QFileInfo(path).completeBaseName();
    int written = 0;
    for (int n = first; n <= last; ++n) {
        const std::vector<std::uint8_t> ico = source->icoBytes(n);
        if (!icon::readIcoDirectory(ico)) {
            // A group whose images are all missing: there is no icon file to write.
            console.fail(kRefused, QStringLiteral("l'icône n°%1 de %2 n'a aucune image : "
                                                  "aucun fichier écrit pour elle.")
                                       .arg(n)
                                       .arg(quoted(path)));
            continue;
        }
        const QString target = QDir(folder).filePath(QStringLiteral("%1_%2.ico").arg(stem).arg(n));
        const icon::SaveResult saved = icon::saveFileSafely(target, ico, false);
        if (!saved)
            return console.fail(kRefused, saved.message);
        console.out() << target << "\n";
        ++written;
    }
    return written > 0 ? kSuccess : kRefused;
}

} // namespace cli

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
    // Icons may share their images: what the whole extraction would write is known before
    // anything is, and a file that would fill the disk is refused.
    const std::size_t total = index.number ? source->icoSize(first) : source->totalIcoBytes();
    if (total > icon::kMaxIcoBytesPerFile)
        return console.fail(kRefused,
                            QStringLiteral("les icônes de %1 feraient %2 Mo, plus que les %3 Mo "
                                           "permis : rien n'a été écrit.")
                                .arg(quoted(path))
                                .arg(total / (1024 * 1024))
                                .arg(icon::kMaxIcoBytesPerFile / (1024 * 1024)));
    const QString stem = QFileInfo(path).completeBaseName();
    int written = 0;
    for (int n = first; n <= last; ++n) {
        const icon::IcoView ico = source->ico(n);
        if (!icon::readIcoDirectory(ico.bytes)) {
            // A group whose images are all missing: there is no icon file to write.
            console.fail(kRefused, QStringLiteral("l'icône n°%1 de %2 n'a aucune image : "
                                                  "aucun fichier écrit pour elle.")
                                       .arg(n)
                                       .arg(quoted(path)));
            continue;
        }
        const QString target = QDir(folder).filePath(QStringLiteral("%1_%2.ico").arg(stem).arg(n));
        const icon::SaveResult saved = icon::saveFileSafely(target, ico.bytes, false);
        if (!saved)
            return console.fail(kRefused, saved.message);
        console.out() << target << "\n";
        ++written;
    }
    return written > 0 ? kSuccess : kRefused;
}

} // namespace cli

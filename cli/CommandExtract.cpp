#include "cli/Command.h"
#include "cli/Input.h"
#include "cli/SourceInput.h"

#include "icon/IcoReader.h"
#include "icon/SafeSave.h"

#include <filesystem>
#include <system_error>

namespace cli {

namespace {

// The file's name without its last extension: "shell32" for "/usr/lib/shell32.dll".
std::string stemOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos ? name : name.substr(0, dot);
}

// `name` in `folder`, joined with one slash.
std::string inFolder(std::string folder, const std::string& name) {
    while (folder.size() > 1 && folder.back() == '/')
        folder.pop_back();
    if (folder.empty())
        return name;
    return folder == "/" ? folder + name : folder + "/" + name;
}

} // namespace

// Writes icons held in a file as ICO files named after it: "<name>_<number>.ico".
int runExtract(const Arguments& args, Console& console) {
    const std::string path = args.at(0);
    const std::string folder = args.at(1);
    const std::optional<icon::IconSource> source = openSource(path, console);
    if (!source)
        return kRefused;
    const Index index = indexOption(args, *source, path, console);
    if (index.failure != 0)
        return index.failure;
    if (source->count() == 0)
        return console.fail(kRefused, quoted(path) + " ne contient pas d'icône.");
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error || !std::filesystem::is_directory(folder, error))
        return console.fail(kRefused, "impossible de créer le dossier " + quoted(folder) + ".");

    const int first = index.number.value_or(1);
    const int last = index.number.value_or(source->count());
    // Icons may share their images: what the whole extraction would write is known before
    // anything is, and a file that would fill the disk is refused.
    const std::size_t total = index.number ? source->icoSize(first) : source->totalIcoBytes();
    if (total > icon::kMaxIcoBytesPerFile)
        return console.fail(kRefused, "les icônes de " + quoted(path) + " feraient " +
                                          std::to_string(total / (1024 * 1024)) +
                                          " Mo, plus que les " +
                                          std::to_string(icon::kMaxIcoBytesPerFile / (1024 * 1024)) +
                                          " Mo permis : rien n'a été écrit.");
    const std::string stem = stemOf(path);
    // One icon asked for is flushed to the disk like any save; all the icons of a file are left
    // to the system's cache, each file still written whole before it replaces anything.
    const icon::Durability durability =
        index.number ? icon::Durability::Flushed : icon::Durability::Cached;
    int written = 0;
    for (int n = first; n <= last; ++n) {
        const icon::IcoView ico = source->ico(n);
        if (!icon::readIcoDirectory(ico.bytes)) {
            // A group whose images are all missing: there is no icon file to write.
            console.fail(kRefused, "l'icône n°" + std::to_string(n) + " de " + quoted(path) +
                                       " n'a aucune image : aucun fichier écrit pour elle.");
            continue;
        }
        const std::string target = inFolder(folder, stem + "_" + std::to_string(n) + ".ico");
        const icon::SaveResult saved =
            icon::saveFileSafely(target, ico.bytes, false, durability);
        if (!saved)
            return console.fail(kRefused, saved.message);
        console.out() << target << "\n";
        ++written;
    }
    return written > 0 ? kSuccess : kRefused;
}

} // namespace cli

#include "cli/Batch.h"
#include "cli/Command.h"
#include "cli/Input.h"
#include "cli/SourceInput.h"

#include "icon/IcoReader.h"
#include "icon/PngEncoder.h"
#include "icon/RgbaPicture.h"
#include "icon/SafeSave.h"

#include <algorithm>
#include <map>

namespace cli {

namespace {

enum class Form { Ico, Png, KeepCursors };

struct Extraction {
    std::string folder;
    Form form = Form::Ico;
    icon::Durability durability = icon::Durability::Cached;
    bool folderMade = false; // made before the first file is written, not before
};

// Writes one file into the folder; a failure stops the whole extraction.
int save(const std::string& name, std::span<const std::uint8_t> bytes, Extraction& job,
         Console& console) {
    if (!job.folderMade && !makeFolder(job.folder, console))
        return kRefused;
    job.folderMade = true;
    const std::string target = inFolder(job.folder, name);
    const icon::SaveResult saved = icon::saveFileSafely(target, bytes, false, job.durability);
    if (!saved)
        return console.fail(kRefused, saved.message);
    console.out() << target << "\n";
    return kSuccess;
}

// Every image of icon n as an RGBA PNG: "<name>_<n>_<W>x<H>_<bits>.png", with "_2", "_3"...
// after an image of the same size and depth as an earlier one.
// `stopped` is set when a file could not be written.
int writePngs(const std::string& path, const std::string& prefix, int n,
              std::span<const std::uint8_t> ico, Extraction& job, Console& console, bool& stopped) {
    const std::optional<icon::IcoDirectory> directory = icon::readIcoDirectory(ico);
    if (!directory)
        return kRefused;
    std::map<std::string, int> seen;
    int result = kSuccess;
    for (std::size_t i = 0; i < directory->images.size(); ++i) {
        const icon::IcoImageInfo& info = directory->images[i];
        std::string name = prefix + "_" + std::to_string(info.width) + "x" +
                           std::to_string(info.height) + "_" + std::to_string(info.bitDepth);
        if (const int repeat = ++seen[name]; repeat > 1)
            name += "_" + std::to_string(repeat);
        const std::optional<icon::RgbaPicture> picture = icon::decodeRgbaImage(ico, info);
        const std::optional<std::vector<std::uint8_t>> png =
            picture ? icon::encodePng(*picture) : std::nullopt;
        if (!png) {
            result = console.fail(kRefused, "l'image " + std::to_string(i + 1) + " de l'icône n°" +
                                                std::to_string(n) + " de " + quoted(path) +
                                                " est illisible : aucun fichier écrit pour elle.");
            continue;
        }
        if (const int code = save(name + ".png", *png, job, console)) {
            stopped = true;
            return code;
        }
    }
    return result;
}

// The icons of one file, named after `stem`; the exit code for this file.
int extractFile(const Arguments& args, const std::string& path, const std::string& stem,
                Extraction& job, Console& console, bool& stopped) {
    const std::optional<icon::IconSource> source = openSource(path, console);
    if (!source)
        return kRefused;
    const Index index = indexOption(args, *source, path, console);
    if (index.failure != 0)
        return index.failure;
    if (source->count() == 0)
        return console.fail(kRefused, quoted(path) + " ne contient pas d'icône.");

    const int first = index.number.value_or(1);
    const int last = index.number.value_or(source->count());
    // Icons may share their images: what the whole extraction would write is known before
    // anything is, and a file that would fill the disk is refused.
    const std::size_t total = index.number ? source->icoSize(first) : source->totalIcoBytes();
    if (total > icon::kMaxIcoBytesPerFile)
        return console.fail(kRefused,
                            "les icônes de " + quoted(path) + " feraient " +
                                std::to_string(total / (1024 * 1024)) + " Mo, plus que les " +
                                std::to_string(icon::kMaxIcoBytesPerFile / (1024 * 1024)) +
                                " Mo permis : rien n'a été écrit.");
    int result = kSuccess;
    int written = 0; // icons written; those without any image do not count against the file
    for (int n = first; n <= last; ++n) {
        const std::string prefix = stem + "_" + std::to_string(n);
        const std::span<const std::uint8_t> cursor =
            job.form == Form::KeepCursors ? source->cursorFile(n) : std::span<const std::uint8_t>();
        if (!cursor.empty() && icon::readIcoDirectory(cursor)) {
            if (const int code = save(prefix + ".cur", cursor, job, console)) {
                stopped = true;
                return code;
            }
            ++written;
            continue;
        }
        const icon::IcoView ico = source->ico(n);
        if (!icon::readIcoDirectory(ico.bytes)) {
            // A group whose images are all missing: there is no icon file to write.
            console.fail(kRefused, "l'icône n°" + std::to_string(n) + " de " + quoted(path) +
                                       " n'a aucune image : aucun fichier écrit pour elle.");
            continue;
        }
        if (job.form == Form::Png) {
            result = std::max(result, writePngs(path, prefix, n, ico.bytes, job, console, stopped));
            if (stopped)
                return result;
            ++written;
            continue;
        }
        if (const int code = save(prefix + ".ico", ico.bytes, job, console)) {
            stopped = true;
            return code;
        }
        ++written;
    }
    return written > 0 ? result : kRefused;
}

} // namespace

// Writes the icons held in files into a folder, each named after its file and its number:
// "<name>_<n>.ico", cursors kept as "<name>_<n>.cur", or every image as a PNG file.
int runExtract(const Arguments& args, Console& console) {
    const std::vector<std::string>& words = args.positional();
    const std::vector<std::string> inputs(words.begin(), words.end() - 1);
    Extraction job;
    job.folder = words.back();
    if (args.flag("--png") && args.flag("--keep-cursors"))
        return console.fail(kUsage, "--png et --keep-cursors ne vont pas ensemble.");
    job.form = args.flag("--png")            ? Form::Png
               : args.flag("--keep-cursors") ? Form::KeepCursors
                                             : Form::Ico;
    // One icon asked for is flushed to the disk like any save; many are left to the system's
    // cache, each file still written whole before it replaces anything.
    job.durability = args.option("--index") && inputs.size() == 1 && job.form != Form::Png
                         ? icon::Durability::Flushed
                         : icon::Durability::Cached;
    const std::vector<std::string> stems = distinctStems(inputs);
    Outcomes outcomes;
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        bool stopped = false; // the folder cannot be written to: the other files would fail too
        const int code = extractFile(args, inputs[i], stems[i], job, console, stopped);
        if (code == kUsage || stopped)
            return code;
        outcomes.add(code);
    }
    return outcomes.code();
}

} // namespace cli

#include "browser/Trash.h"

#include "browser/FileResult.h"

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace browser {

namespace fs = std::filesystem;

namespace {

// A trash folder and how paths are written in its notes: absolute for the user's trash,
// relative to the top of the disk for a disk's own trash (so that it survives remounting).
struct TrashPlace {
    fs::path folder;
    fs::path top; // empty for the user's own trash
};

int makeFolder(const fs::path& folder, mode_t mode) {
    if (::mkdir(folder.c_str(), mode) == 0)
        return 0;
    if (errno != EEXIST)
        return errno;
    struct stat info {};
    if (::lstat(folder.c_str(), &info) != 0)
        return errno;
    return S_ISDIR(info.st_mode) ? 0 : ENOTDIR;
}

int makeFolders(const fs::path& folder, mode_t mode) {
    std::error_code ignored;
    if (folder.has_parent_path() && folder.parent_path() != folder &&
        !fs::is_directory(folder.parent_path(), ignored)) {
        if (const int error = makeFolders(folder.parent_path(), 0755))
            return error;
    }
    return makeFolder(folder, mode);
}

int makeTrash(const fs::path& trash) {
    if (const int error = makeFolders(trash, 0700))
        return error;
    if (const int error = makeFolder(trash / "files", 0700))
        return error;
    return makeFolder(trash / "info", 0700);
}

// The folder at the top of the disk that holds `file`: the last parent on the same device.
fs::path topOf(const fs::path& file, dev_t device) {
    fs::path top = file.parent_path();
    while (top.has_parent_path() && top.parent_path() != top) {
        struct stat info {};
        if (::stat(top.parent_path().c_str(), &info) != 0 || info.st_dev != device)
            break;
        top = top.parent_path();
    }
    return top;
}

// The disk's shared ".Trash" counts only when it is a real folder with the sticky bit.
int diskTrash(const fs::path& top, TrashPlace& place) {
    const std::string uid = std::to_string(::getuid());
    struct stat shared {};
    if (::lstat((top / ".Trash").c_str(), &shared) == 0 && S_ISDIR(shared.st_mode) &&
        (shared.st_mode & S_ISVTX) != 0) {
        place = {top / ".Trash" / uid, top};
        if (makeTrash(place.folder) == 0)
            return 0;
    }
    place = {top / (".Trash-" + uid), top};
    if (const int error = makeTrash(place.folder))
        return error;
    struct stat own {};
    if (::lstat(place.folder.c_str(), &own) != 0)
        return errno;
    if (!S_ISDIR(own.st_mode) || own.st_uid != ::getuid())
        return EACCES;
    return 0;
}

std::string percentEncoded(const std::string& bytes) {
    static const char hex[] = "0123456789ABCDEF";
    std::string out;
    for (const unsigned char c : bytes) {
        const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                           (c >= '0' && c <= '9') || c == '/' || c == '-' || c == '_' || c == '.' ||
                           c == '~';
        if (plain) {
            out += static_cast<char>(c);
        } else {
            out += '%';
            out += hex[c >> 4];
            out += hex[c & 15];
        }
    }
    return out;
}

std::string deletionDate() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &local);
    return text;
}

// The name in the trash: the file's own, or "name.2.ext", "name.3.ext"... when taken.
std::string trashName(const fs::path& file, int attempt) {
    if (attempt == 1)
        return file.filename().native();
    return file.stem().native() + "." + std::to_string(attempt) + file.extension().native();
}

int writeNote(int fd, const std::string& text) {
    const char* data = text.data();
    std::size_t left = text.size();
    while (left > 0) {
        const ssize_t written = ::write(fd, data, left);
        if (written < 0) {
            if (errno == EINTR)
                continue;
            return errno;
        }
        data += written;
        left -= static_cast<std::size_t>(written);
    }
    return 0;
}

TrashResult moveInto(const fs::path& file, const TrashPlace& place) {
    const fs::path shown = place.top.empty() ? file : file.lexically_relative(place.top);
    const std::string note = "[Trash Info]\nPath=" + percentEncoded(shown.native()) +
                             "\nDeletionDate=" + deletionDate() + "\n";
    for (int attempt = 1; attempt < 10000; ++attempt) {
        const std::string name = trashName(file, attempt);
        const fs::path info = place.folder / "info" / (name + ".trashinfo");
        const fs::path target = place.folder / "files" / name;
        // The note is made first and exclusively: it reserves the name.
        const int fd = ::open(info.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (fd < 0) {
            if (errno == EEXIST)
                continue;
            return {TrashResult::Kind::NoTrash, errno, {}};
        }
        int error = writeNote(fd, note);
        if (::close(fd) != 0 && error == 0)
            error = errno;
        struct stat taken {};
        if (error == 0 && ::lstat(target.c_str(), &taken) == 0) {
            ::unlink(info.c_str());
            continue;
        }
        if (error == 0 && ::rename(file.c_str(), target.c_str()) != 0)
            error = errno;
        if (error != 0) {
            ::unlink(info.c_str());
            return {TrashResult::Kind::Failed, error, {}};
        }
        return {TrashResult::Kind::Trashed, 0, target};
    }
    return {TrashResult::Kind::NoTrash, EEXIST, {}};
}

} // namespace

fs::path homeTrash() {
    const char* data = std::getenv("XDG_DATA_HOME");
    if (data != nullptr && data[0] == '/')
        return fs::path(data) / "Trash";
    const char* home = std::getenv("HOME");
    return fs::path(home != nullptr ? home : "/") / ".local/share/Trash";
}

TrashResult moveToTrash(const fs::path& given) {
    std::error_code ignored;
    const fs::path file = fs::absolute(given, ignored).lexically_normal();
    struct stat info {};
    if (::lstat(file.c_str(), &info) != 0)
        return {TrashResult::Kind::Failed, errno, {}};

    const fs::path home = homeTrash();
    // The user's trash serves the disk of the data folder, made here when it is missing.
    if (makeFolders(home.parent_path(), 0700) == 0) {
        struct stat data {};
        if (::stat(home.parent_path().c_str(), &data) == 0 && data.st_dev == info.st_dev) {
            if (const int error = makeTrash(home))
                return {TrashResult::Kind::NoTrash, error, {}};
            return moveInto(file, {home, {}});
        }
    }
    TrashPlace place;
    if (const int error = diskTrash(topOf(file, info.st_dev), place))
        return {TrashResult::Kind::NoTrash, error, {}};
    return moveInto(file, place);
}

QString trashFailureText(const QString& name, const TrashResult& result) {
    const QString reason = errorText(result.error);
    if (result.kind == TrashResult::Kind::NoTrash)
        return QStringLiteral("« %1 » n'a pas pu être mis à la corbeille : son disque n'a pas "
                              "de corbeille utilisable.\n%2\nLe fichier reste à sa place.")
            .arg(name, reason);
    return QStringLiteral("« %1 » n'a pas pu être mis à la corbeille.\n%2\nLe fichier reste "
                          "à sa place.")
        .arg(name, reason);
}

} // namespace browser

#include "capture/PictureFile.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace capture {

namespace {

LoadedPicture failure(const QString& text) {
    return {QImage(), text};
}

// The whole file, read through its own bytes (a name that is not valid text still opens).
// Opening never waits on a pipe or a device, and a file that grows while it is read stops
// at the budget.
LoadedPicture readBytes(const std::filesystem::path& path, QByteArray& bytes) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0)
        return failure(errno == ENOENT ? QStringLiteral("Fichier non trouvé.")
                                       : QStringLiteral("Lecture du fichier impossible."));
    LoadedPicture outcome;
    struct stat info {};
    if (::fstat(fd, &info) != 0) {
        outcome = failure(QStringLiteral("Lecture du fichier impossible."));
    } else if (!S_ISREG(info.st_mode)) {
        outcome = failure(QStringLiteral("Ce n'est pas un fichier d'image."));
    } else if (info.st_size > PictureFile::kMaximumFileBytes) {
        outcome = failure(QStringLiteral("Le fichier est trop gros pour être affiché."));
    } else {
        bytes.resize(static_cast<qsizetype>(info.st_size) + 1);
        qsizetype got = 0;
        while (got < bytes.size()) {
            const ssize_t n =
                ::read(fd, bytes.data() + got, static_cast<size_t>(bytes.size() - got));
            if (n < 0 && errno == EINTR)
                continue;
            if (n < 0) {
                outcome = failure(QStringLiteral("Lecture du fichier impossible."));
                break;
            }
            if (n == 0)
                break;
            got += n;
        }
        if (got > info.st_size)
            outcome = failure(QStringLiteral("Le fichier a changé pendant sa lecture."));
        bytes.resize(got);
    }
    ::close(fd);
    return outcome;
}

} // namespace

QString PictureFile::filter() {
    // Both cases: the dialogs compare names as the file system does.
    return QStringLiteral("Images BMP, PNG et ICO|*.bmp;*.BMP;*.png;*.PNG;*.ico;*.ICO|"
                          "Tous fichiers|*");
}

LoadedPicture PictureFile::load(const std::filesystem::path& path) {
    QByteArray bytes;
    if (LoadedPicture refused = readBytes(path, bytes); !refused.error.isEmpty())
        return refused;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAllocationLimit(kMaximumDecodedMegabytes);
    QImage picture = reader.read();
    if (picture.isNull())
        return failure(QStringLiteral("Ce fichier n'est pas une image BMP, PNG ou ICO lisible."));
    return {picture, QString()};
}

} // namespace capture

#include "capture/PictureFile.h"

#include <QFile>
#include <QImageReader>

#include <system_error>

namespace capture {

namespace {

LoadedPicture failure(const QString& text) {
    return {QImage(), text};
}

} // namespace

QString PictureFile::filter() {
    // Both cases: the dialogs compare names as the file system does.
    return QStringLiteral("Images BMP, PNG et ICO|*.bmp;*.BMP;*.png;*.PNG;*.ico;*.ICO|"
                          "Tous fichiers|*");
}

LoadedPicture PictureFile::load(const std::filesystem::path& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (error || !std::filesystem::exists(status))
        return failure(QStringLiteral("Fichier non trouvé."));
    if (!std::filesystem::is_regular_file(status))
        return failure(QStringLiteral("Ce n'est pas un fichier d'image."));
    const auto size = std::filesystem::file_size(path, error);
    if (error)
        return failure(QStringLiteral("Lecture du fichier impossible."));
    if (size > static_cast<std::uintmax_t>(kMaximumFileBytes))
        return failure(QStringLiteral("Le fichier est trop gros pour être affiché."));

    QImageReader reader(QFile::decodeName(path.c_str()));
    reader.setAllocationLimit(kMaximumDecodedMegabytes);
    reader.setDecideFormatFromContent(true);
    QImage picture = reader.read();
    if (picture.isNull())
        return failure(QStringLiteral("Ce fichier n'est pas une image BMP, PNG ou ICO lisible."));
    return {picture, QString()};
}

} // namespace capture

#include "iconqt/Paths.h"

#include <QFile>

namespace iconqt {

std::filesystem::path pathFromText(const QString& text) {
    const QByteArray bytes = QFile::encodeName(text);
    return std::filesystem::path(
        std::string(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

QString textFromPath(const std::filesystem::path& path) {
    const std::string& bytes = path.native();
    return QFile::decodeName(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

} // namespace iconqt

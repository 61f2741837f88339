#include "icon/FileBytes.h"

#include <QFile>

namespace icon {

std::optional<std::vector<std::uint8_t>> readFileBytes(const QString& path, std::size_t maxBytes) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const qint64 size = file.size();
    if (size < 0 || static_cast<std::uint64_t>(size) > maxBytes)
        return std::nullopt;
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    if (size > 0 && file.read(reinterpret_cast<char*>(bytes.data()), size) != size)
        return std::nullopt;
    return bytes;
}

} // namespace icon

#include "browser/FolderTree.h"

#include <QDir>

namespace browser {

std::vector<FolderItem> folderItems(const QString& folder) {
    std::vector<FolderItem> items;
    const QString clean = QDir::cleanPath(folder);
    const QStringList parts = clean.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    items.push_back({QStringLiteral("/"), QStringLiteral("/"), 0, true});
    QString path;
    for (const QString& part : parts) {
        path += QLatin1Char('/') + part;
        items.push_back({path, part, static_cast<int>(items.size()), true});
    }
    const int depth = static_cast<int>(items.size());
    QDir dir(clean.isEmpty() ? QStringLiteral("/") : clean);
    const QStringList children =
        dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const QString& child : children)
        items.push_back({dir.filePath(child), child, depth, false});
    return items;
}

int currentItem(const std::vector<FolderItem>& items) {
    int index = 0;
    for (int i = 0; i < static_cast<int>(items.size()); ++i) {
        if (items[static_cast<std::size_t>(i)].open)
            index = i;
    }
    return index;
}

} // namespace browser

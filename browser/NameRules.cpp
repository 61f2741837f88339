#include "browser/NameRules.h"

namespace browser {

namespace {
constexpr qsizetype nameWidth = 12;
}

QString proposedName(const QString& path) {
    const QString tail = path.right(nameWidth);
    const qsizetype slash = tail.indexOf(QLatin1Char('/'));
    return slash < 0 ? tail : tail.mid(slash + 1);
}

QString proposedBmpName(const QString& path) {
    if (path.isEmpty())
        return QStringLiteral("*.bmp");
    const QString name = proposedName(path);
    return name.left(name.size() - 3) + QStringLiteral("bmp");
}

QString folderBeforeName(const QString& chosen) {
    return chosen.left(chosen.size() - proposedName(chosen).size());
}

} // namespace browser

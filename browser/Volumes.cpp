#include "browser/Volumes.h"

#include <QStorageInfo>

#include <algorithm>

namespace browser {

namespace {

bool isSystemMount(const QString& root, const QByteArray& type) {
    static const char* const hiddenTypes[] = {
        "proc",    "sysfs",   "devtmpfs", "devpts",    "cgroup",     "cgroup2",    "squashfs",
        "overlay", "autofs",  "mqueue",   "debugfs",   "tracefs",    "securityfs", "pstore",
        "bpf",     "fusectl", "configfs", "hugetlbfs", "binfmt_misc"};
    if (root == QLatin1String("/"))
        return false;
    for (const char* hidden : hiddenTypes) {
        if (type == hidden)
            return true;
    }
    for (const char* prefix : {"/proc", "/sys", "/dev", "/run", "/snap", "/boot/efi"}) {
        const QString start = QString::fromLatin1(prefix);
        if (root == start || root.startsWith(start + QLatin1Char('/')))
            return !root.startsWith(QStringLiteral("/run/media/"));
    }
    return false;
}

} // namespace

std::vector<Volume> mountedVolumes() {
    std::vector<Volume> volumes;
    bool hasRoot = false;
    for (const QStorageInfo& storage : QStorageInfo::mountedVolumes()) {
        const QString root = storage.rootPath();
        if (!storage.isValid() || isSystemMount(root, storage.fileSystemType()))
            continue;
        if (std::any_of(volumes.begin(), volumes.end(),
                        [&](const Volume& v) { return v.root == root; }))
            continue;
        hasRoot = hasRoot || root == QLatin1String("/");
        volumes.push_back({root, storage.name()});
    }
    if (!hasRoot)
        volumes.push_back({QStringLiteral("/"), {}});
    std::sort(volumes.begin(), volumes.end(), [](const Volume& a, const Volume& b) {
        if ((a.root == QLatin1String("/")) != (b.root == QLatin1String("/")))
            return a.root == QLatin1String("/");
        return a.root < b.root;
    });
    return volumes;
}

QString volumeOf(const QString& folder, const std::vector<Volume>& volumes) {
    QString best = QStringLiteral("/");
    for (const Volume& volume : volumes) {
        const QString root =
            volume.root.endsWith(QLatin1Char('/')) ? volume.root : volume.root + QLatin1Char('/');
        const QString path = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
        if (path.startsWith(root) && volume.root.size() > best.size())
            best = volume.root;
    }
    return best;
}

} // namespace browser

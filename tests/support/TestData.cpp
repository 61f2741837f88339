#include "tests/support/TestData.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace testsupport {

QString testData(const QString& relative) {
    return QDir(QStringLiteral(ORVANNE_TESTDATA)).filePath(relative);
}

QStringList testFiles(const QString& relativeFolder) {
    QDir dir(testData(relativeFolder));
    QStringList files;
    for (const QString& name : dir.entryList(QDir::Files, QDir::Name))
        files << dir.filePath(name);
    return files;
}

std::vector<std::uint8_t> fileBytes(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "cannot read " << path.toStdString();
        return {};
    }
    const QByteArray data = file.readAll();
    return {data.begin(), data.end()};
}

QString copyValidIcon(const QString& name, const QString& folder) {
    const QString target = QDir(folder).filePath(name);
    if (!QFile::copy(testData(QStringLiteral("ico/valid/") + name), target))
        ADD_FAILURE() << "cannot copy " << name.toStdString();
    QFile(target).setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    return target;
}

bool writeFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.flush()) {
        ADD_FAILURE() << "cannot write " << path.toStdString();
        return false;
    }
    return true;
}

QString screenshotFolder() {
    return QStringLiteral(ORVANNE_SCREENSHOTS);
}

} // namespace testsupport

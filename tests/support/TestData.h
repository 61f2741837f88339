#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <filesystem>
#include <vector>

namespace testsupport {

// Path of a file or folder under the shared test data, e.g. testData("ico/valid").
QString testData(const QString& relative);
// The files of a test-data folder (not recursive), sorted by name.
QStringList testFiles(const QString& relativeFolder);
// Whole content of a file; fails the current test when it cannot be read.
std::vector<std::uint8_t> fileBytes(const QString& path);
// Copies a valid icon of the test data into a folder, writable by its owner; gives its path.
QString copyValidIcon(const QString& name, const QString& folder);
// Writes a whole file, replacing it; fails the current test when it cannot be written.
bool writeFile(const QString& path, const QByteArray& content);
// The file system's bytes of a path, as the cores take it.
inline std::filesystem::path pathOf(const QString& path) {
    return std::filesystem::path(QFile::encodeName(path).toStdString());
}
// Folder where window tests save their screenshots.
QString screenshotFolder();

} // namespace testsupport

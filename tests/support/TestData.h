#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace testsupport {

// Path of a file or folder under the shared test data, e.g. testData("ico/valid").
QString testData(const QString& relative);
// The files of a test-data folder (not recursive), sorted by name.
QStringList testFiles(const QString& relativeFolder);
// Whole content of a file; fails the current test when it cannot be read.
std::vector<std::uint8_t> fileBytes(const QString& path);
// Writes a whole file, replacing it; fails the current test when it cannot be written.
bool writeFile(const QString& path, const QByteArray& content);
// Folder where window tests save their screenshots.
QString screenshotFolder();

} // namespace testsupport

#pragma once

// Runs the built orvanne-icons and collects what it said.
#include "icon/FileBytes.h"
#include "tests/support/TestData.h"

#include <QProcess>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace clitest {

struct Outcome {
    int code = -1; // -1 when the program did not end normally
    QString out;
    QString err;
};

inline Outcome run(const QStringList& args) {
    QProcess process;
    process.start(QStringLiteral(ORVANNE_CLI), args);
    process.waitForFinished(30000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

// The bytes of a file the program wrote; empty when there is none.
inline std::vector<std::uint8_t> bytesOf(const QString& path) {
    return icon::readFileBytes(testsupport::pathOf(path)).value_or(std::vector<std::uint8_t>{});
}

} // namespace clitest

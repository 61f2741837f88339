// The memory of the browser's grid while "Page suivante" goes through a folder of 10,000 icons,
// then back with "Page précédente": the resident size before the folder, after its first page,
// and the highest reached while paging (the process's peak, from /proc):
//   build/bin/grid_memory [SCALE]
// SCALE is the screen's scale factor the cells are decoded for (1 when not given).
#include "browser/IconGrid.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

constexpr int kIconCount = 10000;

// Kilobytes of one line of /proc/self/status ("VmRSS", "VmHWM").
long statusKb(const char* field) {
    std::ifstream status("/proc/self/status");
    std::string line;
    const std::string prefix = std::string(field) + ':';
    while (std::getline(status, line))
        if (line.rfind(prefix, 0) == 0)
            return std::strtol(line.c_str() + prefix.size(), nullptr, 10);
    return -1;
}

} // namespace

int main(int argc, char** argv) {
    const double scale = argc > 1 ? std::atof(argv[1]) : 1.0;
    QTemporaryDir dir;
    const QString target = dir.filePath(QStringLiteral("dix mille"));
    QDir().mkpath(target);
    const QDir source(QStringLiteral(ORVANNE_TESTDATA "/ico/valid"));
    const QStringList icons = source.entryList({QStringLiteral("*.ico")}, QDir::Files, QDir::Name);
    if (icons.isEmpty()) {
        std::fprintf(stderr, "no icons in %s\n", qPrintable(source.path()));
        return 1;
    }
    for (int i = 0; i < kIconCount; ++i)
        QFile::copy(
            source.filePath(icons[i % icons.size()]),
            QDir(target).filePath(QStringLiteral("icone%1.ico").arg(i, 5, 10, QLatin1Char('0'))));

    const long before = statusKb("VmRSS");
    const browser::IcoThumbnailProvider provider;
    browser::IconGrid grid(provider);
    grid.setDeviceScale(scale);
    grid.openFolder(target);
    grid.loadPage();
    const long firstPage = statusKb("VmRSS");
    int pages = 0;
    while (grid.current() < grid.count()) {
        grid.pageNext();
        grid.loadPage();
        ++pages;
    }
    while (grid.current() > 1) {
        grid.pagePrevious();
        grid.loadPage();
        ++pages;
    }
    const long after = statusKb("VmRSS");
    std::printf("%d icons (%lld source files), %d page moves, scale %.2f\n", grid.count(),
                static_cast<long long>(icons.size()), pages, scale);
    std::printf("resident before the folder  %7.1f MB\n", before / 1024.0);
    std::printf("after the first page        %7.1f MB\n", firstPage / 1024.0);
    std::printf("after paging there and back %7.1f MB\n", after / 1024.0);
    std::printf("peak                        %7.1f MB\n", statusKb("VmHWM") / 1024.0);
    return 0;
}

// The browser opening a folder of 10,000 icons and moving a page, each beside a plain listing of
// the same folder in the same run:
//   build/bin/bench_browser
#include "browser/IconGrid.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <dirent.h>

namespace {

constexpr int kIconCount = 10000;

// A folder of 10,000 real icon files: the 32×32 and multi-size icons of the test data, copied
// round under names in mixed case.
const QString& folder() {
    static QTemporaryDir dir;
    static const QString path = [] {
        const QString target = dir.filePath(QStringLiteral("dix mille"));
        QDir().mkpath(target);
        const QDir source(QStringLiteral(ORVANNE_TESTDATA "/ico/valid"));
        QStringList icons;
        for (const char* name :
             {"decodeico_apple.ico", "decodeico_github.ico", "decodeico_google.ico",
              "decodeico_palette.ico", "gtk_win32_rc_gtk.ico", "icojs_basic.ico",
              "decodeico_twitter.ico", "imagers_bmp-24bpp-mask.ico"}) {
            if (QFile::exists(source.filePath(QString::fromLatin1(name))))
                icons << source.filePath(QString::fromLatin1(name));
        }
        for (int i = 0; i < kIconCount; ++i) {
            const QString name =
                (i % 3 == 0 ? QStringLiteral("Icone%1.ICO") : QStringLiteral("icone%1.ico"))
                    .arg(i, 5, 10, QLatin1Char('0'));
            QFile::copy(icons[i % icons.size()], QDir(target).filePath(name));
        }
        return target;
    }();
    return path;
}

// The cheapest listing there is: the names the kernel gives, nothing else.
void PlainReaddir(benchmark::State& state) {
    const QByteArray path = QFile::encodeName(folder());
    for (auto _ : state) {
        DIR* dir = ::opendir(path.constData());
        std::vector<std::string> names;
        while (const dirent* entry = ::readdir(dir))
            names.emplace_back(entry->d_name);
        ::closedir(dir);
        benchmark::DoNotOptimize(names.data());
    }
}
BENCHMARK(PlainReaddir)->Unit(benchmark::kMillisecond);

// A plain listing as a Qt program writes it.
void PlainQDirListing(benchmark::State& state) {
    for (auto _ : state) {
        const QStringList names =
            QDir(folder()).entryList(QDir::Files | QDir::NoDotAndDotDot, QDir::Unsorted);
        benchmark::DoNotOptimize(names.size());
    }
}
BENCHMARK(PlainQDirListing)->Unit(benchmark::kMillisecond);

// The scan alone: names of the icon files, in order, with the paths the window shows.
void ScanOnly(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(browser::scanIconFolder(folder()));
}
BENCHMARK(ScanOnly)->Unit(benchmark::kMillisecond);

// Opening the folder: the scan, then the first page decoded (the centre and the cells after it).
void FirstPage(benchmark::State& state) {
    const browser::IcoThumbnailProvider provider;
    const auto view =
        state.range(0) == 48 ? browser::GridView::Icons48 : browser::GridView::Icons32;
    for (auto _ : state) {
        browser::IconGrid grid(provider);
        grid.setView(view);
        grid.openFolder(folder());
        benchmark::DoNotOptimize(grid.loadPage());
    }
}
BENCHMARK(FirstPage)->Arg(32)->Arg(48)->Unit(benchmark::kMillisecond);

// "Page suivante" through the folder, every page new to the cache (42 new cells at 32×32), on a
// screen at the scale given (1, or 2 where the cells are decoded at 64 pixels).
void PageMove(benchmark::State& state) {
    const browser::IcoThumbnailProvider provider;
    browser::IconGrid grid(provider);
    grid.setDeviceScale(static_cast<double>(state.range(0)));
    grid.openFolder(folder());
    grid.loadPage();
    for (auto _ : state) {
        if (grid.current() == grid.count()) {
            state.PauseTiming();
            grid.openFolder(folder());
            grid.loadPage();
            state.ResumeTiming();
        }
        grid.pageNext();
        benchmark::DoNotOptimize(grid.loadPage());
    }
}
BENCHMARK(PageMove)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();

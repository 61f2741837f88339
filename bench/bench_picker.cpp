// How soon the icon picker shows its first rows, and how long a jump of the scroll bar holds
// the window, on files that make a careless picker decode for minutes (tens of thousands of
// icon groups sharing one large image), on shared test files and on the program's own library.
//   bench_picker [--rounds N] [FILE...]
// Each figure is the median over the rounds, in milliseconds:
//   - open: read the file and find its icons;
//   - first rows: open, then the first pass over the rows in view (what the window paints first);
//   - window: the picker window built and painted once, offscreen;
//   - jump: one pass after moving the bar to the last row.
#include "browser/PickerCells.h"
#include "browser/PickerLayout.h"
#include "browser/PickerState.h"
#include "browser/ui/FrmIcons.h"
#include "tests/support/SharedIconsPe.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <functional>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
namespace fs = std::filesystem;

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double millisecondsOf(const std::function<void()>& work, int rounds) {
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        const auto start = Clock::now();
        work();
        times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    return median(times);
}

void measure(const fs::path& file, int rounds) {
    using browser::PickerLayout;
    const auto probe = browser::picker::openIcons(file);
    if (!probe) {
        std::printf("%-40s no icons\n", file.filename().c_str());
        return;
    }
    const int count = probe->count();
    const double open = millisecondsOf([&] { (void)browser::picker::openIcons(file); }, rounds);
    const double first = millisecondsOf(
        [&] {
            auto cells = browser::picker::openIcons(file);
            const auto rows = PickerLayout::rowsInView(0, count);
            cells->decode(1, (rows.last + 1) * PickerLayout::kPerRow);
        },
        rounds);
    const double window = millisecondsOf(
        [&] {
            browser::PickerState state = browser::PickerState::startingOn(file);
            browser::ui::FrmIcons picker(state, shell::ColourScheme{}, {});
            (void)picker.grab();
        },
        rounds);
    auto cells = browser::picker::openIcons(file);
    cells->decode(1, 50);
    const double jump = millisecondsOf(
        [&] {
            const auto rows = PickerLayout::rowsInView(PickerLayout::scrollRange(count), count);
            cells->decode(rows.first * PickerLayout::kPerRow + 1,
                          (rows.last + 1) * PickerLayout::kPerRow);
        },
        1);
    std::printf("%-40s %6d icons  open %8.2f  first rows %8.2f  window %8.2f  jump %8.2f\n",
                file.filename().c_str(), count, open, first, window, jump);
}

fs::path writeFile(const QString& folder, const char* name,
                   const std::vector<std::uint8_t>& bytes) {
    const fs::path path = fs::path(QFile::encodeName(folder).toStdString()) / name;
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    return path;
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    int rounds = 5;
    std::vector<fs::path> files;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--rounds" && i + 1 < argc)
            rounds = std::max(1, std::atoi(argv[++i]));
        else
            files.emplace_back(word);
    }
    QTemporaryDir dir;
    if (files.empty()) {
        files.push_back(
            writeFile(dir.path(), "shared-30000x256.dll", testsupport::sharedIconsPe(30000, 256)));
        files.push_back(
            writeFile(dir.path(), "shared-65535x256.dll", testsupport::sharedIconsPe(65535, 256)));
        for (const char* sample :
             {"pe/penet_firefox_x64.exe", "icl/pe_format/neko98_Neko98.icl", "ani/breeze_wait.ani"})
            files.emplace_back(std::string(ORVANNE_TESTDATA) + "/" + sample);
        files.emplace_back(QFile::encodeName(QCoreApplication::applicationDirPath() +
                                             QStringLiteral("/Orvanne®.icl"))
                               .toStdString());
    }
    std::printf("median of %d rounds, milliseconds\n", rounds);
    for (const fs::path& file : files)
        measure(file, rounds);
    return 0;
}

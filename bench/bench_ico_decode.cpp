// Decoding the 32×32 planes of every valid icon of the test data, with the program's own reader
// and with Qt's ICO image reader, on the same bytes in the same run; prints the ratio.
//   build/bin/bench_ico_decode [--benchmark_repetitions=N ...]
#include "icon/FileBytes.h"
#include "icon/IcoReader.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageReader>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

std::vector<QByteArray> loadIcons() {
    std::vector<QByteArray> files;
    const QDir dir(QStringLiteral(ORVANNE_TESTDATA "/ico/valid"));
    for (const QString& name : dir.entryList(QDir::Files, QDir::Name))
        if (const auto bytes = icon::readFileBytes(QFile::encodeName(dir.filePath(name)).toStdString()))
            files.emplace_back(reinterpret_cast<const char*>(bytes->data()),
                               static_cast<qsizetype>(bytes->size()));
    return files;
}

const std::vector<QByteArray>& icons() {
    static const std::vector<QByteArray> files = loadIcons();
    return files;
}

std::span<const std::uint8_t> span(const QByteArray& data) {
    return {reinterpret_cast<const std::uint8_t*>(data.constData()),
            static_cast<std::size_t>(data.size())};
}

void OrvanneReader(benchmark::State& state) {
    int decoded = 0;
    for (auto _ : state)
        for (const QByteArray& file : icons()) {
            const std::optional<icon::IconPlanes> planes = icon::decodeIconPlanes(span(file));
            benchmark::DoNotOptimize(planes);
            decoded += planes.has_value();
        }
    state.counters["files"] = static_cast<double>(icons().size());
    state.counters["decoded"] = decoded / static_cast<double>(state.iterations());
}

// What it takes to get 32×32 pixels out of Qt: read the image its reader gives, bring it to
// 32×32 without blending, as straight ARGB.
void QtIcoReader(benchmark::State& state) {
    int decoded = 0;
    for (auto _ : state)
        for (const QByteArray& file : icons()) {
            QByteArray data = file;
            QBuffer buffer(&data);
            buffer.open(QIODevice::ReadOnly);
            QImageReader reader(&buffer, "ico");
            QImage image = reader.read();
            if (!image.isNull())
                image = image.scaled(32, 32, Qt::IgnoreAspectRatio, Qt::FastTransformation)
                            .convertToFormat(QImage::Format_ARGB32);
            benchmark::DoNotOptimize(image);
            decoded += !image.isNull();
        }
    state.counters["files"] = static_cast<double>(icons().size());
    state.counters["decoded"] = decoded / static_cast<double>(state.iterations());
}

BENCHMARK(OrvanneReader)->Unit(benchmark::kMillisecond);
BENCHMARK(QtIcoReader)->Unit(benchmark::kMillisecond);

// Keeps the CPU time of each benchmark (steadier than wall time on a shared machine) to print the
// ratio once both have run.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration || run.aggregate_name == "mean")
                m_seconds[run.run_name.function_name] = run.GetAdjustedCPUTime();
    }
    void print() const {
        const auto own = m_seconds.find("OrvanneReader");
        const auto qt = m_seconds.find("QtIcoReader");
        if (own != m_seconds.end() && qt != m_seconds.end() && own->second > 0)
            std::printf("\nQt's ICO reader / Orvanne's reader: %.2fx (CPU %.3f ms against %.3f "
                        "ms for %zu files)\n",
                        qt->second / own->second, qt->second, own->second, icons().size());
    }

private:
    std::map<std::string, double> m_seconds;
};

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    icons(); // read the files before timing anything
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.print();
    benchmark::Shutdown();
    return 0;
}

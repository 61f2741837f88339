// The settings store: a flag toggled (read, then saved to the disk), beside a plain write of the
// same bytes with its flush, and the start with an 80 MB store that is set aside:
//   build/bin/bench_settings
#include "shell/Settings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <unistd.h>

namespace {

namespace keys = shell::keys;

QTemporaryDir& home() {
    static QTemporaryDir dir;
    return dir;
}

void Toggle(benchmark::State& state) {
    shell::Settings settings;
    bool on = false;
    for (auto _ : state) {
        on = !settings.readFlag(keys::kHelpBubbles, QStringLiteral("Oui"));
        settings.saveFlag(keys::kHelpBubbles, on);
    }
}
BENCHMARK(Toggle)->Unit(benchmark::kMillisecond);

void PlainWriteWithFlush(benchmark::State& state) {
    const QByteArray path = QFile::encodeName(home().filePath(QStringLiteral("plain.ini")));
    const QByteArray text(600, 'x');
    for (auto _ : state) {
        const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        benchmark::DoNotOptimize(::write(fd, text.constData(), text.size()));
        ::fsync(fd);
        ::close(fd);
    }
}
BENCHMARK(PlainWriteWithFlush)->Unit(benchmark::kMillisecond);

// The first read at start with an 80 MB store in place.
void StartOverHugeStore(benchmark::State& state) {
    shell::Settings settings;
    for (auto _ : state) {
        state.PauseTiming();
        {
            QFile file(settings.fileName());
            file.open(QIODevice::WriteOnly);
            const QByteArray line = "[A]\nB=" + QByteArray(1000, 'x') + "\n";
            for (int i = 0; i < 80 * 1024; ++i)
                file.write(line);
        }
        state.ResumeTiming();
        benchmark::DoNotOptimize(settings.read(keys::kHelpBubbles));
        state.PauseTiming();
        shell::Settings::takeNotice();
        for (const QString& name : QDir(home().filePath(QStringLiteral(".config")))
                                       .entryList({QStringLiteral("*mis-de-côté*")}))
            QFile::remove(home().filePath(QStringLiteral(".config/") + name));
        state.ResumeTiming();
    }
}
BENCHMARK(StartOverHugeStore)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

int main(int argc, char** argv) {
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home().filePath(QStringLiteral(".config"))));
    QDir().mkpath(home().filePath(QStringLiteral(".config")));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

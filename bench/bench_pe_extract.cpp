// Extracts every icon group of PE files to .ico files, side by side with wrestool -x -t 14
// (Debian's icoutils), and compares the outputs.
//   bench_pe_extract [--rounds N] [--all | FILE...]
// Without a file, the largest PE file of the shared test data. --all takes every PE file there.
// Three timings a round, each the median over the rounds:
//   - this program's readers in the process: read the file, find the groups, write the files;
//   - orvanne-icons extract, a process of its own (its start-up included);
//   - wrestool -x -t 14, a process of its own.
// wrestool writes, after the last image of each file, as many bytes as the group's directory
// takes in the executable, left uninitialised; the comparison checks that tail's length and
// that everything before it is identical.
#include "icon/ByteReader.h"
#include "icon/IconSource.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <vector>

extern char** environ;

namespace {

using Clock = std::chrono::steady_clock;

double seconds(Clock::duration d) {
    return std::chrono::duration<double>(d).count();
}

bool runProcess(const std::vector<std::string>& words) {
    std::vector<char*> argv;
    for (const std::string& w : words)
        argv.push_back(const_cast<char*>(w.c_str()));
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    pid_t pid = 0;
    const int spawned = posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (spawned != 0)
        return false;
    int status = 0;
    waitpid(pid, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// The work wrestool does, with this program's readers: one .ico file per icon group.
int extractInProcess(const QString& path, const QString& folder) {
    const std::optional<icon::IconSource> source = icon::IconSource::open(QFile::encodeName(path).toStdString());
    if (!source)
        return 0;
    const QString stem = QFileInfo(path).completeBaseName();
    for (int n = 1; n <= source->count(); ++n) {
        const std::vector<std::uint8_t> ico = source->icoBytes(n);
        QFile out(QDir(folder).filePath(QStringLiteral("%1_%2.ico").arg(stem).arg(n)));
        if (!out.open(QIODevice::WriteOnly) ||
            out.write(reinterpret_cast<const char*>(ico.data()), static_cast<qint64>(ico.size())) !=
                static_cast<qint64>(ico.size()))
            return -1;
    }
    return source->count();
}

double median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v.empty() ? 0 : v[v.size() / 2];
}

QByteArray readAll(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// The length of an ICO file up to the end of its last image, as its directory says.
qsizetype icoLength(const QByteArray& file) {
    const icon::ByteReader r(
        std::span(reinterpret_cast<const std::uint8_t*>(file.constData()), file.size()));
    std::size_t end = 6 + 16 * std::size_t{r.u16(4)};
    for (std::size_t i = 0; i < r.u16(4); ++i)
        end =
            std::max<std::size_t>(end, std::size_t{r.u32(6 + 16 * i + 12)} + r.u32(6 + 16 * i + 8));
    return static_cast<qsizetype>(end);
}

struct Comparison {
    int ours = 0;
    int theirs = 0;
    int identical = 0;      // byte for byte, tail aside
    int tailAsExpected = 0; // wrestool's tail is the group directory's size
};

Comparison compare(const QString& oursFolder, const QString& theirsFolder) {
    Comparison c;
    std::map<QByteArray, int> ours;
    for (const QString& name : QDir(oursFolder).entryList(QDir::Files)) {
        ++ours[readAll(QDir(oursFolder).filePath(name))];
        ++c.ours;
    }
    for (const QString& name : QDir(theirsFolder).entryList(QDir::Files)) {
        const QByteArray theirs = readAll(QDir(theirsFolder).filePath(name));
        ++c.theirs;
        const qsizetype length = icoLength(theirs);
        const auto it = ours.find(theirs.left(length));
        if (it == ours.end() || it->second == 0)
            continue;
        --it->second;
        ++c.identical;
        const qsizetype groupDirectory =
            6 + 14 * static_cast<qsizetype>(theirs[4] | theirs[5] << 8);
        c.tailAsExpected += theirs.size() - length == groupDirectory;
    }
    return c;
}

QStringList peFiles(bool all) {
    QStringList files;
    for (const char* folder : {"pe", "icl/pe_format"}) {
        const QDir dir(QDir(QStringLiteral(ORVANNE_TESTDATA)).filePath(folder));
        for (const QString& name : dir.entryList(QDir::Files, QDir::Size))
            files << dir.filePath(name);
        if (!all)
            return files.mid(0, 1); // sorted by size, largest first
    }
    return files;
}

} // namespace

int main(int argc, char** argv) {
    int rounds = 50;
    bool all = false;
    QStringList files;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--rounds" && i + 1 < argc)
            rounds = std::max(1, std::atoi(argv[++i]));
        else if (a == "--all")
            all = true;
        else
            files << QString::fromLocal8Bit(argv[i]);
    }
    if (files.isEmpty())
        files = peFiles(all);

    std::vector<double> inProcess, cliProcess, wrestool;
    QTemporaryDir scratch;
    int groups = 0;
    for (int round = 0; round < rounds; ++round) {
        const QString ours = scratch.filePath(QStringLiteral("ours%1").arg(round));
        const QString cli = scratch.filePath(QStringLiteral("cli%1").arg(round));
        const QString theirs = scratch.filePath(QStringLiteral("wrestool%1").arg(round));
        QDir().mkpath(ours);
        QDir().mkpath(theirs);
        // Alternate which side runs first, so that neither always finds a warmer cache.
        for (int side = 0; side < 3; ++side) {
            const int which = (side + round) % 3;
            const Clock::time_point start = Clock::now();
            for (const QString& file : files) {
                if (which == 0) {
                    groups += round == 0 ? extractInProcess(file, ours) : 0;
                    if (round > 0)
                        extractInProcess(file, ours);
                } else if (which == 1) {
                    runProcess({ORVANNE_CLI, "extract", file.toStdString(), cli.toStdString()});
                } else {
                    runProcess({"wrestool", "-x", "-t", "14", "-o", theirs.toStdString() + "/",
                                file.toStdString()});
                }
            }
            const double s = seconds(Clock::now() - start);
            (which == 0 ? inProcess : which == 1 ? cliProcess : wrestool).push_back(s);
        }
        if (round > 0) {
            QDir(ours).removeRecursively();
            QDir(cli).removeRecursively();
            QDir(theirs).removeRecursively();
        }
    }

    const Comparison c = compare(scratch.filePath("ours0"), scratch.filePath("wrestool0"));
    const double tIn = median(inProcess), tCli = median(cliProcess), tWr = median(wrestool);
    std::printf("Fichiers : %lld (%s%s), %d groupes d'icônes, %d tours\n",
                static_cast<long long>(files.size()), qPrintable(QFileInfo(files[0]).fileName()),
                files.size() > 1 ? ", ..." : "", groups, rounds);
    std::printf("  lecteurs d'Orvanne dans le processus : %9.3f ms\n", 1000 * tIn);
    std::printf("  orvanne-icons extract (processus)    : %9.3f ms\n", 1000 * tCli);
    std::printf("  wrestool -x -t 14 (processus)        : %9.3f ms\n", 1000 * tWr);
    std::printf("  rapport wrestool / Orvanne dans le processus : %.1f×\n", tWr / tIn);
    std::printf("  rapport wrestool / orvanne-icons             : %.2f×\n", tWr / tCli);
    std::printf("Sorties : %d fichiers d'Orvanne, %d de wrestool, %d identiques octet pour octet "
                "jusqu'à la fin de la dernière image, dont %d suivis chez wrestool d'autant "
                "d'octets non initialisés que le répertoire du groupe\n",
                c.ours, c.theirs, c.identical, c.tailAsExpected);
    return c.identical == c.theirs ? 0 : 1;
}

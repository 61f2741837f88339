// Whole processes timed side by side: each command runs RUNS times, the commands taking turns,
// standard output and error thrown away; prints each one's median and its ratio to the first.
// In a word of a command, "{}" stands for the run's number (a fresh output folder each run).
//   process_time RUNS NAME -- COMMAND... [NAME -- COMMAND...]...
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

extern char** environ;

namespace {

struct Command {
    std::string name;
    std::vector<std::string> words;
    std::vector<double> times;
};

double runOnce(const Command& c, int run) {
    std::vector<std::string> words = c.words;
    for (std::string& w : words)
        for (std::size_t at = w.find("{}"); at != std::string::npos; at = w.find("{}"))
            w.replace(at, 2, std::to_string(run));
    std::vector<char*> argv;
    for (std::string& w : words)
        argv.push_back(w.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    const auto start = std::chrono::steady_clock::now();
    pid_t pid = 0;
    const int spawned = posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    if (spawned != 0 || waitpid(pid, &status, 0) < 0)
        return -1;
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 5) {
        std::fprintf(stderr, "usage : process_time RUNS NOM -- COMMANDE... [NOM -- COMMANDE...]...\n");
        return 2;
    }
    const int runs = std::max(1, std::atoi(argv[1]));
    std::vector<Command> commands;
    for (int i = 2; i < argc; ++i) {
        if (i + 1 < argc && std::string(argv[i + 1]) == "--") {
            commands.push_back({argv[i], {}, {}});
            ++i;
            continue;
        }
        if (commands.empty())
            return 2;
        commands.back().words.push_back(argv[i]);
    }
    for (int run = 0; run < runs; ++run)
        for (std::size_t k = 0; k < commands.size(); ++k) {
            // The order turns with each run, so that no command always follows the same one.
            Command& c = commands[(k + static_cast<std::size_t>(run)) % commands.size()];
            const double ms = runOnce(c, run);
            if (ms < 0) {
                std::fprintf(stderr, "process_time : %s ne démarre pas\n", c.name.c_str());
                return 1;
            }
            c.times.push_back(ms);
        }
    double first = 0;
    for (Command& c : commands) {
        std::sort(c.times.begin(), c.times.end());
        const double median = c.times[c.times.size() / 2];
        if (first == 0)
            first = median;
        std::printf("  %-44s %9.3f ms  (%.2f× %s)\n", c.name.c_str(), median, median / first,
                    commands.front().name.c_str());
    }
    return 0;
}

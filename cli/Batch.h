#pragma once

#include "cli/Console.h"

#include <string>
#include <vector>

namespace cli {

// The file's name without its last extension: "shell32" for "/usr/lib/shell32.dll".
std::string stemOf(const std::string& path);

// `name` in `folder`, joined with one slash.
std::string inFolder(std::string folder, const std::string& name);

// One name per input file to name its outputs after, all different: the stem of each, with
// "-2", "-3"... after a stem an earlier input already took ("a/x.ico b/x.ico" gives x and x-2).
std::vector<std::string> distinctStems(const std::vector<std::string>& paths);

// Makes `folder` and its parents where missing; false, after saying so, when it cannot be made.
bool makeFolder(const std::string& folder, Console& console);

// The exit code of a command run over several inputs, each refusal already reported: a usage
// error stops everything; otherwise 0 when every input succeeded, 1 when one was refused.
class Outcomes {
public:
    void add(int code) { m_refused = m_refused || code != kSuccess; }
    int code() const { return m_refused ? kRefused : kSuccess; }

private:
    bool m_refused = false;
};

} // namespace cli

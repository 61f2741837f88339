#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace cli {

// The words after a command's name: positional arguments, "--name value" (or "--name=value")
// options and "--name" flags. Only declared options and flags are accepted.
class Arguments {
public:
    // Nothing, with a French sentence in `error`, when an option is unknown or lacks its value,
    // or a flag is given one.
    static std::optional<Arguments> parse(const std::vector<std::string>& words,
                                          const std::vector<std::string>& valueOptions,
                                          std::string& error);
    static std::optional<Arguments> parse(const std::vector<std::string>& words,
                                          const std::vector<std::string>& valueOptions,
                                          const std::vector<std::string>& flags,
                                          std::string& error);

    const std::vector<std::string>& positional() const { return m_positional; }
    // Positional argument i; empty when there is none.
    std::string at(std::size_t i) const;
    std::optional<std::string> option(const std::string& name) const;
    bool flag(const std::string& name) const;

private:
    std::vector<std::string> m_positional;
    std::map<std::string, std::string> m_options;
    std::vector<std::string> m_flags;
};

} // namespace cli

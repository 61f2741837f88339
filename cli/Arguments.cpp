#include "cli/Arguments.h"

#include <algorithm>

namespace cli {

std::optional<Arguments> Arguments::parse(const std::vector<std::string>& words,
                                          const std::vector<std::string>& valueOptions,
                                          std::string& error) {
    return parse(words, valueOptions, {}, error);
}

std::optional<Arguments> Arguments::parse(const std::vector<std::string>& words,
                                          const std::vector<std::string>& valueOptions,
                                          const std::vector<std::string>& flags,
                                          std::string& error) {
    Arguments args;
    bool onlyPositional = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (onlyPositional || !word.starts_with("--")) {
            args.m_positional.push_back(word);
            continue;
        }
        if (word == "--") { // what follows is a file name, even "--x"
            onlyPositional = true;
            continue;
        }
        std::string name = word;
        std::optional<std::string> value;
        if (const std::size_t eq = word.find('='); eq != std::string::npos && eq > 0) {
            name = word.substr(0, eq);
            value = word.substr(eq + 1);
        }
        if (std::find(flags.begin(), flags.end(), name) != flags.end()) {
            if (value) {
                error = "l'option « " + name + " » ne prend pas de valeur.";
                return std::nullopt;
            }
            args.m_flags.push_back(name);
            continue;
        }
        if (std::find(valueOptions.begin(), valueOptions.end(), name) == valueOptions.end()) {
            error = "option inconnue « " + name + " ».";
            return std::nullopt;
        }
        if (!value) {
            if (i + 1 >= words.size()) {
                error = "il manque la valeur de l'option « " + name + " ».";
                return std::nullopt;
            }
            value = words[++i];
        }
        args.m_options.insert_or_assign(name, *value);
    }
    return args;
}

std::string Arguments::at(std::size_t i) const {
    return i < m_positional.size() ? m_positional[i] : std::string();
}

std::optional<std::string> Arguments::option(const std::string& name) const {
    const auto it = m_options.find(name);
    if (it == m_options.end())
        return std::nullopt;
    return it->second;
}

bool Arguments::flag(const std::string& name) const {
    return std::find(m_flags.begin(), m_flags.end(), name) != m_flags.end();
}

} // namespace cli

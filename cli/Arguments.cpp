#include "cli/Arguments.h"

namespace cli {

std::optional<Arguments> Arguments::parse(const QStringList& words, const QStringList& valueOptions,
                                          QString& error) {
    Arguments args;
    bool onlyPositional = false;
    for (int i = 0; i < words.size(); ++i) {
        const QString& word = words[i];
        if (onlyPositional || !word.startsWith(QLatin1String("--"))) {
            args.m_positional << word;
            continue;
        }
        if (word == QLatin1String("--")) { // what follows is a file name, even "--x"
            onlyPositional = true;
            continue;
        }
        QString name = word;
        std::optional<QString> value;
        if (const qsizetype eq = word.indexOf(QLatin1Char('=')); eq > 0) {
            name = word.left(eq);
            value = word.mid(eq + 1);
        }
        if (!valueOptions.contains(name)) {
            error = QStringLiteral("option inconnue « %1 ».").arg(name);
            return std::nullopt;
        }
        if (!value) {
            if (i + 1 >= words.size()) {
                error = QStringLiteral("il manque la valeur de l'option « %1 ».").arg(name);
                return std::nullopt;
            }
            value = words[++i];
        }
        args.m_options.insert(name, *value);
    }
    return args;
}

std::optional<QString> Arguments::option(const QString& name) const {
    const auto it = m_options.find(name);
    if (it == m_options.end())
        return std::nullopt;
    return *it;
}

} // namespace cli

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace cli {

// The words after a command's name: positional arguments and "--name value" (or
// "--name=value") options. Only declared options are accepted.
class Arguments {
public:
    // Nothing, with a French sentence in `error`, when an option is unknown or lacks its value.
    static std::optional<Arguments> parse(const QStringList& words, const QStringList& valueOptions,
                                          QString& error);

    const QStringList& positional() const { return m_positional; }
    QString at(int i) const { return m_positional.value(i); }
    std::optional<QString> option(const QString& name) const;

private:
    QStringList m_positional;
    QMap<QString, QString> m_options;
};

} // namespace cli

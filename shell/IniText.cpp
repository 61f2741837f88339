#include "shell/IniText.h"

#include <QHash>
#include <QStringView>

namespace shell {

namespace {

const char kHex[] = "0123456789ABCDEF";

bool plainKeyChar(char16_t c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '.';
}

QByteArray escapedName(const QString& name) {
    QByteArray out;
    for (const QChar qc : name) {
        const char16_t c = qc.unicode();
        if (c == '/') {
            out += '\\';
        } else if (plainKeyChar(c)) {
            out += static_cast<char>(c);
        } else if (c <= 0xFF) {
            out += '%';
            out += kHex[c / 16];
            out += kHex[c % 16];
        } else {
            out += "%U";
            for (int shift = 12; shift >= 0; shift -= 4)
                out += kHex[(c >> shift) & 0xF];
        }
    }
    return out;
}

int hexDigit(QChar c) {
    const char16_t u = c.unicode();
    if (u >= '0' && u <= '9')
        return u - '0';
    if (u >= 'a' && u <= 'f')
        return u - 'a' + 10;
    if (u >= 'A' && u <= 'F')
        return u - 'A' + 10;
    return -1;
}

// The value of `count` hex digits at `at`, or -1.
int hexAt(const QString& text, qsizetype at, int count) {
    if (at + count > text.size())
        return -1;
    int value = 0;
    for (int i = 0; i < count; ++i) {
        const int digit = hexDigit(text[at + i]);
        if (digit < 0)
            return -1;
        value = value * 16 + digit;
    }
    return value;
}

QString unescapedName(const QString& text) {
    QString out;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == QLatin1Char('\\')) {
            out += QLatin1Char('/');
        } else if (c == QLatin1Char('%') && i + 1 < text.size() &&
                   text[i + 1] == QLatin1Char('U') && hexAt(text, i + 2, 4) >= 0) {
            out += QChar(static_cast<char16_t>(hexAt(text, i + 2, 4)));
            i += 5;
        } else if (c == QLatin1Char('%') && hexAt(text, i + 1, 2) >= 0) {
            out += QChar(static_cast<char16_t>(hexAt(text, i + 1, 2)));
            i += 2;
        } else {
            out += c;
        }
    }
    return out;
}

QByteArray quotedValue(const QString& value) {
    QString out = QStringLiteral("\"");
    for (const QChar c : value) {
        const char16_t u = c.unicode();
        if (u == '"' || u == '\\') {
            out += QLatin1Char('\\');
            out += c;
        } else if (u < 0x20 || u == 0x7F) {
            out += QStringLiteral("\\x");
            for (int shift = 12; shift >= 0; shift -= 4)
                out += QLatin1Char(kHex[(u >> shift) & 0xF]);
        } else {
            out += c;
        }
    }
    out += QLatin1Char('"');
    return out.toUtf8();
}

// A value as written in the file; nothing when it is not plain text.
std::optional<QString> unquotedValue(const QString& raw) {
    const QString text = raw.trimmed();
    // "@@" is how text starting with "@" is written; any other "@" starts a serialized type,
    // which the program never writes and never reads.
    if (text.startsWith(QLatin1Char('@')) && !text.startsWith(QLatin1String("@@")))
        return std::nullopt;
    QString out;
    bool quoted = false;
    for (qsizetype i = text.startsWith(QLatin1String("@@")) ? 1 : 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == QLatin1Char('"')) {
            quoted = !quoted;
        } else if (c == QLatin1Char('\\')) {
            if (++i >= text.size())
                return std::nullopt;
            const QChar e = text[i];
            if (e == QLatin1Char('n'))
                out += QLatin1Char('\n');
            else if (e == QLatin1Char('r'))
                out += QLatin1Char('\r');
            else if (e == QLatin1Char('t'))
                out += QLatin1Char('\t');
            else if (e == QLatin1Char('x')) {
                qsizetype digits = 0;
                int value = 0;
                while (digits < 4 && i + 1 < text.size() && hexDigit(text[i + 1]) >= 0) {
                    value = value * 16 + hexDigit(text[++i]);
                    ++digits;
                }
                if (digits == 0)
                    return std::nullopt;
                out += QChar(static_cast<char16_t>(value));
            } else {
                out += e;
            }
        } else {
            out += c;
        }
    }
    if (quoted)
        return std::nullopt;
    return out;
}

} // namespace

IniSections parseIni(const QString& text) {
    IniSections sections;
    // Where each section and key already is: a file of many thousands of lines reads in one pass.
    QHash<QString, std::size_t> sectionAt;
    QHash<QString, std::size_t> keyAt; // section index and key, joined
    std::optional<std::size_t> current;
    for (const QStringView rawLine : QStringView(text).split(QLatin1Char('\n'))) {
        const QStringView line = rawLine.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char(';')) ||
            line.startsWith(QLatin1Char('#')))
            continue;
        if (line.startsWith(QLatin1Char('['))) {
            current.reset();
            if (!line.endsWith(QLatin1Char(']')))
                continue;
            const QString name = unescapedName(line.mid(1, line.size() - 2).toString());
            const auto found = sectionAt.constFind(name);
            if (found != sectionAt.constEnd()) {
                current = found.value();
            } else {
                current = sections.size();
                sectionAt.insert(name, sections.size());
                sections.push_back({name, {}});
            }
            continue;
        }
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (!current || equals <= 0)
            continue;
        const QString key = unescapedName(line.left(equals).trimmed().toString());
        const std::optional<QString> value = unquotedValue(line.mid(equals + 1).toString());
        if (!value)
            continue;
        auto& values = sections[*current].values;
        const QString where = QString::number(*current) + QLatin1Char('/') + key;
        const auto known = keyAt.constFind(where);
        if (known != keyAt.constEnd()) {
            values[known.value()].second = *value;
        } else {
            keyAt.insert(where, values.size());
            values.emplace_back(key, *value);
        }
    }
    return sections;
}

QByteArray formatIni(const IniSections& sections) {
    QByteArray out;
    for (const IniSection& section : sections) {
        if (!out.isEmpty())
            out += '\n';
        out += '[' + escapedName(section.name) + "]\n";
        for (const auto& [key, value] : section.values)
            out += escapedName(key) + '=' + quotedValue(value) + '\n';
    }
    return out;
}

std::optional<QString> findValue(const IniSections& sections, const QString& section,
                                 const QString& key) {
    for (const IniSection& s : sections) {
        if (s.name != section)
            continue;
        for (const auto& [k, v] : s.values)
            if (k == key)
                return v;
    }
    return std::nullopt;
}

void setValue(IniSections& sections, const QString& section, const QString& key,
              const QString& value) {
    IniSection* target = nullptr;
    for (IniSection& s : sections)
        if (s.name == section)
            target = &s;
    if (target == nullptr) {
        sections.push_back({section, {}});
        target = &sections.back();
    }
    for (auto& [k, v] : target->values)
        if (k == key) {
            v = value;
            return;
        }
    target->values.emplace_back(key, value);
}

} // namespace shell

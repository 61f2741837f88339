#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace shell {

// The content of the settings file: sections of text values, in file order. Only strings are
// ever held; nothing in the file is taken for anything but text.
struct IniSection {
    QString name;
    std::vector<std::pair<QString, QString>> values;
};
using IniSections = std::vector<IniSection>;

// Reads the text of a settings file. Section and key names are percent-escaped as the file has
// always had them ("Conseils%20du%20jour"); values are plain or quoted text with backslash
// escapes. A value the program could not have written (a serialized type such as "@Variant(...)",
// a broken quote) is left out, so that its default applies; so is any line that makes no sense.
IniSections parseIni(const QString& text);
// The file text of `sections`, which parseIni reads back exactly.
QByteArray formatIni(const IniSections& sections);

// The value of one key, if the sections hold it.
std::optional<QString> findValue(const IniSections& sections, const QString& section,
                                 const QString& key);
// Sets one key, adding its section and key at the end when they are new.
void setValue(IniSections& sections, const QString& section, const QString& key,
              const QString& value);

} // namespace shell

#include "shell/Tips.h"

#include "icon/FileBytes.h"
#include "iconqt/Paths.h"

#include <QStringList>

#include <algorithm>

namespace shell {

bool Tips::load(const QString& path) {
    m_tips.clear();
    m_index = 0;
    if (path.isEmpty())
        return false;
    // A tips file is a few KiB; a file put in its place is not read whole, nor waited on.
    const auto bytes = icon::readFileBytes(iconqt::pathFromText(path), 1u << 20);
    if (!bytes)
        return false;
    QString text = QString::fromUtf8(reinterpret_cast<const char*>(bytes->data()),
                                     static_cast<qsizetype>(bytes->size()));
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    if (!text.isEmpty() || !bytes->empty())
        m_tips = text.split(QLatin1Char('\n'));
    return true;
}

void Tips::chooseFirst(double random) {
    if (m_tips.isEmpty())
        return;
    const int index = static_cast<int>(random * count() + 1);
    m_index = std::clamp(index, 1, count());
}

void Tips::next() {
    if (m_tips.isEmpty())
        return;
    m_index = m_index >= count() ? 1 : m_index + 1;
}

QString Tips::current() const {
    if (m_index < 1 || m_index > count())
        return {};
    return m_tips[m_index - 1];
}

QString Tips::missingFileText() {
    return QStringLiteral("Le fichier ") + QString::fromUtf8(kFileName) +
           QStringLiteral(" n'a pas été trouvé.") + QStringLiteral("\r\n\r\n") +
           QStringLiteral("Vous n'auriez pas dû le supprimer du dossier de Orvanne®");
}

} // namespace shell

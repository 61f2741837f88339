#include "shell/Tips.h"

#include <QFile>
#include <QTextStream>

#include <algorithm>

namespace shell {

bool Tips::load(const QString& path) {
    m_tips.clear();
    m_index = 0;
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    QTextStream in(&file);
    in.setEncoding(QStringConverter::Utf8);
    while (!in.atEnd())
        m_tips << in.readLine();
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

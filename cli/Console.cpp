#include "cli/Console.h"

#include <cstdio>

namespace cli {

Console::Console()
    : m_out(stdout)
    , m_err(stderr) {
    m_out.setEncoding(QStringConverter::Utf8);
    m_err.setEncoding(QStringConverter::Utf8);
}

int Console::fail(int code, const QString& message) {
    m_out.flush();
    m_err << "orvanne-icons : " << message << Qt::endl;
    return code;
}

void Console::warn(const QString& message) {
    m_out.flush();
    m_err << "orvanne-icons : attention : " << message << Qt::endl;
}

} // namespace cli

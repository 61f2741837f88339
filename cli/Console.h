#pragma once

#include <QString>
#include <QTextStream>

namespace cli {

// Exit status of every command.
enum ExitCode : int {
    kSuccess = 0,
    kRefused = 1, // the input is refused or the output cannot be written
    kUsage = 2,   // the command line is wrong
};

// Where a command writes: its results on standard output, its complaints on standard error,
// in UTF-8, each complaint one line prefixed with the program's name.
class Console {
public:
    Console();

    QTextStream& out() { return m_out; }
    // Prints "orvanne-icons : <message>" on standard error and gives `code` back.
    int fail(int code, const QString& message);
    // Prints "orvanne-icons : attention : <message>" on standard error; the command goes on.
    void warn(const QString& message);

private:
    QTextStream m_out;
    QTextStream m_err;
};

} // namespace cli

#pragma once

#include <QString>
#include <QStringList>

namespace shell {

// The tips shown at start-up: one per line of "Conseils.txt", the first chosen at random.
class Tips {
public:
    static constexpr const char* kFileName = "Conseils.txt";

    // Reads the file line by line, each line as it is. False when the file is missing.
    bool load(const QString& path);
    // Picks the first tip: index = integer part of (random × count + 1), random in [0, 1).
    void chooseFirst(double random);
    // The next tip, back to the first after the last. Nothing happens without tips.
    void next();

    bool isEmpty() const { return m_tips.isEmpty(); }
    int count() const { return static_cast<int>(m_tips.size()); }
    int index() const { return m_index; } // 1-based; 0 when there are no tips
    QString current() const;

    // What the tips window shows when the file is not there.
    static QString missingFileText();

private:
    QStringList m_tips;
    int m_index = 0;
};

} // namespace shell

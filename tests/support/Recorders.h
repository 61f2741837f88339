#pragma once

#include "platform/Launcher.h"
#include "platform/Sound.h"

#include <QList>
#include <QUrl>

namespace platform {

// Doubles for tests: they remember what the program asked and start nothing.
class RecordingSound : public Sound {
public:
    void playClick() override { ++clicks; }
    int clicks = 0;
};

class RecordingLauncher : public Launcher {
public:
    bool openDocument(const QUrl& url) override {
        documents << url;
        return true;
    }
    bool startProgram(const QString& program, const QStringList&) override {
        programs << program;
        return startsPrograms;
    }
    QList<QUrl> documents;
    QStringList programs;
    bool startsPrograms = true;
};

} // namespace platform

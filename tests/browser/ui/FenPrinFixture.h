#pragma once

#include "browser/ui/FenPrin.h"
#include "platform/GradientButton.h"
#include "platform/GradientPanel.h"
#include "tests/support/Recorders.h"
#include "tests/support/ScriptedDialogs.h"
#include "platform/Services.h"
#include "shell/Settings.h"
#include "tests/browser/FakeProvider.h"
#include "tests/support/TestData.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace browsertest {

// A main window over a folder of the test's own, every question answered from a script.
class FenPrinFixture : public ::testing::Test {
protected:
    void SetUp() override {
        shell::Settings().deleteAll();
        m_window = std::make_unique<browser::ui::FenPrin>(provider());
        m_window->show();
    }
    void TearDown() override {
        m_window.reset();
        shell::Settings().deleteAll();
    }
    virtual const browser::ThumbnailProvider& provider() { return m_fake; }

    // A folder of `count` generated icons.
    QString iconFolder(int count) {
        const QString path = m_dir.filePath(QStringLiteral("icônes%1").arg(count));
        makeIcons(path, count);
        return path;
    }
    // A folder of real icons from the shared test data.
    QString realIconFolder() {
        const QString path = m_dir.filePath(QStringLiteral("Vraies Icônes"));
        QDir().mkpath(path);
        for (const QString& file : testsupport::testFiles(QStringLiteral("ico/valid")))
            QFile::copy(file, QDir(path).filePath(QFileInfo(file).fileName()));
        return path;
    }
    platform::GradientButton* button(const char* name) {
        return m_window->findChild<platform::GradientButton*>(QString::fromLatin1(name));
    }
    QWidget* control(const char* name) {
        return m_window->findChild<QWidget*>(QString::fromLatin1(name));
    }
    void click(const char* name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    void rightPress(const char* name) {
        QTest::mousePress(button(name), Qt::RightButton);
        QTest::mouseRelease(button(name), Qt::RightButton);
    }

    QTemporaryDir m_dir;
    FakeProvider m_fake;
    platform::ScriptedDialogs m_dialogs;
    platform::RecordingSound m_sound;
    platform::RecordingLauncher m_launcher;
    platform::ServicesOverride m_services{&m_dialogs, &m_sound, &m_launcher};
    std::unique_ptr<browser::ui::FenPrin> m_window;
};

// The same over the program's own icon reader, for windows that show real icons.
class RealIconsFenPrin : public FenPrinFixture {
protected:
    const browser::ThumbnailProvider& provider() override { return m_real; }
    browser::IcoThumbnailProvider m_real;
};

} // namespace browsertest

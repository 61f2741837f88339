#pragma once

// Test doubles for a failing disk: writes that fail part-way as a full disk does, and a real
// file system of a few KiB for the tests that can mount one.
#include "icon/SafeSave.h"

#include <QByteArray>
#include <QDir>
#include <QString>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace testsupport {

// While alive, every save may write `allowed` bytes in all; the write past them fails with
// ENOSPC after writing what still fits.
class FailingWrites {
public:
    explicit FailingWrites(std::size_t allowed) {
        left() = allowed;
        icon::setWriteFunction(&write);
    }
    ~FailingWrites() { icon::setWriteFunction(nullptr); }
    FailingWrites(const FailingWrites&) = delete;
    FailingWrites& operator=(const FailingWrites&) = delete;

private:
    static std::atomic<std::size_t>& left() {
        static std::atomic<std::size_t> bytes{0};
        return bytes;
    }
    static ssize_t write(int fd, const void* data, std::size_t count) {
        const std::size_t room = left().load();
        if (room == 0) {
            errno = ENOSPC;
            return -1;
        }
        const ssize_t done = ::write(fd, data, count < room ? count : room);
        if (done > 0)
            left() -= static_cast<std::size_t>(done);
        return done;
    }
};

// A tmpfs of `kib` KiB mounted on a fresh folder for the test's life; usable() is false (and
// nothing mounted) when the test does not run as root or the system refuses the mount.
class SmallFileSystem {
public:
    explicit SmallFileSystem(int kib) {
        char pattern[] = "/tmp/orvanne-full-XXXXXX";
        if (::geteuid() != 0 || ::mkdtemp(pattern) == nullptr)
            return;
        m_folder = QString::fromLocal8Bit(pattern);
        const QByteArray command = "mount -t tmpfs -o size=" + QByteArray::number(kib) +
                                   "k orvanne-test " + QByteArray(pattern) + " 2>/dev/null";
        m_mounted = std::system(command.constData()) == 0;
    }
    ~SmallFileSystem() {
        if (m_mounted)
            std::system(("umount " + m_folder.toLocal8Bit()).constData());
        if (!m_folder.isEmpty())
            QDir().rmdir(m_folder);
    }
    SmallFileSystem(const SmallFileSystem&) = delete;
    SmallFileSystem& operator=(const SmallFileSystem&) = delete;

    bool usable() const { return m_mounted; }
    QString path(const QString& name) const { return m_folder + QLatin1Char('/') + name; }

    // Fills the file system with one file until no byte more fits.
    void fill() const {
        const QByteArray file = path(QStringLiteral("filler")).toLocal8Bit();
        FILE* out = std::fopen(file.constData(), "wb");
        if (out == nullptr)
            return;
        const char block[512] = {};
        while (std::fwrite(block, 1, sizeof block, out) == sizeof block && std::fflush(out) == 0) {
        }
        while (std::fwrite(block, 1, 1, out) == 1 && std::fflush(out) == 0) {
        }
        std::fclose(out);
    }

private:
    QString m_folder;
    bool m_mounted = false;
};

} // namespace testsupport

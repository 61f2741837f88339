#pragma once

#include <QString>

#include <vector>

namespace browser {

// A mounted volume as the drive list shows it.
struct Volume {
    QString root;  // mount point, "/" first
    QString label; // the volume's name, may be empty
    QString text() const {
        return label.isEmpty() ? root : root + QStringLiteral(" [") + label + QLatin1Char(']');
    }
};

// The mounted volumes a user keeps files on: the root, then the others by mount point. Kernel
// and runtime file systems (/proc, /sys, /dev, /run, snap images) are left out.
std::vector<Volume> mountedVolumes();

// The volume a folder lies on: the longest mount point that holds it.
QString volumeOf(const QString& folder, const std::vector<Volume>& volumes);

} // namespace browser

#include "tests/support/Screenshot.h"
#include "tests/support/TestData.h"

#include <QDir>
#include <QPixmap>
#include <QWidget>

namespace testsupport {

void saveScreenshot(QWidget& widget, const QString& name) {
    QDir().mkpath(screenshotFolder());
    widget.grab().save(QDir(screenshotFolder()).filePath(name + QStringLiteral(".png")));
}

} // namespace testsupport

#pragma once

#include <QString>

class QWidget;

namespace testsupport {

// Saves a picture of the widget as build/screenshots/<name>.png, for a person to look at.
void saveScreenshot(QWidget& widget, const QString& name);

} // namespace testsupport

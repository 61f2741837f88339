#pragma once

#include <QString>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace testsupport {

// A named control of a window; the current test fails when there is none.
template <typename T = QWidget>
T* child(const QWidget& window, const QString& name) {
    T* found = window.findChild<T*>(name);
    EXPECT_NE(found, nullptr) << name.toStdString();
    return found;
}

// A click of the left mouse button on a named control.
inline void click(const QWidget& window, const QString& name) {
    QTest::mouseClick(child(window, name), Qt::LeftButton);
}

} // namespace testsupport

#pragma once

#include "platform/DesktopGrab.h"

namespace testsupport {

// Hands the capture windows a known desktop, or the failure a desktop without capture gives.
class FakeDesktopGrabber : public platform::DesktopGrabber {
public:
    explicit FakeDesktopGrabber(QImage picture)
        : m_picture(std::move(picture)) {}

    platform::DesktopPicture grab() override {
        ++grabs;
        if (fails)
            return {QImage(), platform::noDesktopPictureText()};
        return {m_picture, QString()};
    }

    bool fails = false;
    int grabs = 0;

private:
    QImage m_picture;
};

// A desktop where every pixel tells where it is.
inline QImage patternedDesktop(QSize size) {
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, qRgb(x % 256, y % 256, (x / 256) * 64 + (y / 256) * 16));
    return picture;
}

} // namespace testsupport

// Under a real X server: a window shows a known picture, the desktop is read the way the
// capture windows read it, and the picture must come back pixel for pixel.
#include "platform/ScreenGrab.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QThread>

#include <cstdio>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QImage known(64, 48, QImage::Format_RGB32);
    for (int y = 0; y < known.height(); ++y)
        for (int x = 0; x < known.width(); ++x)
            known.setPixel(x, y, qRgb(x * 4, y * 5, (x + y) % 2 ? 250 : 10));
    const QPoint place(100, 120);

    QLabel window;
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    window.setPixmap(QPixmap::fromImage(known));
    window.setGeometry(QRect(place, known.size()));
    window.show();

    platform::ScreenGrab grabber;
    QImage seen;
    int wrong = -1;
    QElapsedTimer clock;
    clock.start();
    // The window takes a moment to reach the screen.
    while (clock.elapsed() < 10000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        QThread::msleep(50);
        const platform::DesktopPicture desktop = grabber.grab();
        if (!desktop.ok())
            continue;
        seen = desktop.picture;
        wrong = 0;
        for (int y = 0; y < known.height(); ++y)
            for (int x = 0; x < known.width(); ++x)
                if (seen.pixel(place.x() + x, place.y() + y) != known.pixel(x, y))
                    ++wrong;
        if (wrong == 0)
            break;
    }
    if (argc > 1 && !seen.isNull())
        seen.save(QString::fromLocal8Bit(argv[1]));
    if (wrong != 0) {
        std::fprintf(stderr, "the desktop picture differs from the window in %d pixels\n", wrong);
        return 1;
    }
    std::printf("e2e: the screen grab gave back the %dx%d picture exactly\n", known.width(),
                known.height());
    return 0;
}

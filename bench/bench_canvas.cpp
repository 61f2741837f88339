// A mouse press on the editor's canvas up to the repainted canvas, through the real window on
// the offscreen platform, beside the repaint of a plain widget that only draws a 320×320 picture
// (the "paints" counter says the canvas was painted once a press):
//   build/bin/bench_canvas
#include "editor/ui/FrmIcoEd.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include <benchmark/benchmark.h>

namespace {

// The least a canvas repaint can cost: one picture drawn.
class PlainPicture : public QWidget {
public:
    int paints = 0;
    PlainPicture()
        : m_picture(320, 320, QImage::Format_RGB32) {
        m_picture.fill(Qt::white);
        setFixedSize(320, 320);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.drawImage(0, 0, m_picture);
        ++paints;
    }

private:
    QImage m_picture;
};

void send(QWidget* target, QEvent::Type type, QPointF at,
          Qt::MouseButton pressed = Qt::LeftButton) {
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : pressed;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : pressed;
    QMouseEvent event(type, at, target->mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

void PlainRepaint(benchmark::State& state) {
    PlainPicture widget;
    widget.show();
    QCoreApplication::processEvents();
    for (auto _ : state)
        widget.repaint();
    state.counters["paints"] = widget.paints;
}
BENCHMARK(PlainRepaint)->Unit(benchmark::kMicrosecond);

// Counts the paints a widget receives.
class PaintCounter : public QObject {
public:
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

// Each pass presses with the pencil, which paints a cell, and lets the window repaint what the
// press changed, as the event loop would; the release (one history step) is outside the timing.
void PencilPressToRepaintedCanvas(benchmark::State& state) {
    editor::ui::FrmIcoEd window;
    window.show();
    QCoreApplication::processEvents();
    window.engine().selectTool(editor::Tool::Pencil);
    QWidget* canvas = window.findChild<QWidget*>(QStringLiteral("PicMain"));
    PaintCounter counter;
    canvas->installEventFilter(&counter);
    int i = 0;
    for (auto _ : state) {
        const QPointF at(15 + (i % 30) * 10, 15 + (i / 30 % 30) * 10);
        // Black with the left button, white with the right one on the next round: every press
        // changes its cell.
        const Qt::MouseButton button = (i / 900) % 2 == 0 ? Qt::LeftButton : Qt::RightButton;
        send(canvas, QEvent::MouseButtonPress, at, button);
        QCoreApplication::sendPostedEvents();
        state.PauseTiming();
        send(canvas, QEvent::MouseButtonRelease, at, button);
        ++i;
        state.ResumeTiming();
    }
    window.engine().setModified(false);
    state.counters["paints"] = counter.paints;
}
BENCHMARK(PencilPressToRepaintedCanvas)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

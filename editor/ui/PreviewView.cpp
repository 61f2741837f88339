#include "editor/ui/PreviewView.h"

#include "editor/ui/Edges.h"
#include "icon/IconBitmap.h"

#include <QImage>
#include <QPainter>

namespace editor::ui {

PreviewView::PreviewView(const IconEditor& engine, QWidget* parent)
    : QWidget(parent)
    , m_engine(engine) {
    setObjectName(QStringLiteral("PicIcon"));
    setFixedSize(icon::kIconSize + 2, icon::kIconSize + 2);
}

void PreviewView::paintEvent(QPaintEvent*) {
    const icon::Frame shown = icon::composeOver(icon::fromPlanes(m_engine.displayedPlanes()),
                                                m_engine.previewBackground());
    QImage picture(icon::kIconSize, icon::kIconSize, QImage::Format_RGB32);
    for (int y = 0; y < icon::kIconSize; ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < icon::kIconSize; ++x) {
            const icon::Colour c = shown.at(x, y);
            line[x] = qRgb(icon::redOf(c), icon::greenOf(c), icon::blueOf(c));
        }
    }
    QPainter painter(this);
    painter.drawImage(1, 1, picture);
    drawEdge(painter, rect(), true);
}

} // namespace editor::ui

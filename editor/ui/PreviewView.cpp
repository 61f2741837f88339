#include "editor/ui/PreviewView.h"

#include "editor/ui/Edges.h"
#include "icon/Frame.h"
#include "iconqt/FrameImage.h"

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
    const QImage picture =
        iconqt::toImage(icon::compose(m_engine.displayedPlanes(), m_engine.previewBackground(), 1));
    QPainter painter(this);
    painter.drawImage(1, 1, picture);
    drawEdge(painter, rect(), true);
}

} // namespace editor::ui

#include "platform/GradientPanel.h"

#include "platform/WindowStyle.h"

#include <QLinearGradient>
#include <QPainter>

namespace platform {

GradientPanel::GradientPanel(QWidget* parent)
    : QWidget(parent) {}

void GradientPanel::setColours(icon::Colour start, icon::Colour end) {
    m_start = start;
    m_end = end;
    update();
}

void GradientPanel::setTextColour(icon::Colour colour) {
    m_textColour = colour;
    update();
}

void GradientPanel::setText(const QString& text) {
    m_text = text;
    update();
}

void GradientPanel::setAlignment(Qt::Alignment alignment) {
    m_alignment = alignment;
    update();
}

void GradientPanel::setWordWrap(bool on) {
    m_wordWrap = on;
    update();
}

void GradientPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(0, toQColor(m_start));
    gradient.setColorAt(1, toQColor(m_end));
    painter.fillRect(rect(), gradient);
    painter.setPen(toQColor(m_start).darker(160));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    if (m_text.isEmpty())
        return;
    painter.setPen(toQColor(m_textColour));
    QString shown = m_text;
    if (m_wordWrap) {
        // Long paths break after their slashes rather than in the middle of a name.
        shown.replace(QLatin1Char('/'), QStringLiteral("/\u200B"));
    }
    const int flags = static_cast<int>(m_alignment) | (m_wordWrap ? Qt::TextWordWrap : 0);
    painter.drawText(rect().adjusted(6, 2, -6, -2), flags, shown);
}

} // namespace platform

#pragma once

#include "icon/Colour.h"

#include <QWidget>

namespace platform {

// A gradient-filled panel that may carry a text: the counters, path labels and frames of the
// windows, in the same colours as the buttons.
class GradientPanel : public QWidget {
    Q_OBJECT
public:
    explicit GradientPanel(QWidget* parent = nullptr);

    void setColours(icon::Colour start, icon::Colour end);
    void setTextColour(icon::Colour colour);
    void setText(const QString& text);
    void setAlignment(Qt::Alignment alignment);
    void setWordWrap(bool on);

    QString text() const { return m_text; }
    icon::Colour startColour() const { return m_start; }
    icon::Colour endColour() const { return m_end; }
    icon::Colour textColour() const { return m_textColour; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    icon::Colour m_start = 0x808000;
    icon::Colour m_end = 0xE0E0E0;
    icon::Colour m_textColour = 0x000000;
    QString m_text;
    Qt::Alignment m_alignment = Qt::AlignCenter;
    bool m_wordWrap = false;
};

} // namespace platform

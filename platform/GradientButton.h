#pragma once

#include "icon/Colour.h"

#include <QAbstractButton>
#include <QPixmap>

namespace platform {

// The push button of every window: a gradient from the start colour to the end colour, the
// caption in the text colour, a frame of the light colour while the mouse is over it, and an
// optional picture. It reports the right button too, which several commands use.
// The caption sits on whichever end of the gradient it reads best on: the gradient fades into
// that colour outside the caption, so a caption of the start colour never lies on the start.
// Tab reaches it (a click leaves the keyboard where it was); with the focus it shows a dotted
// frame around its caption, and Space or Return presses it.
class GradientButton : public QAbstractButton {
    Q_OBJECT
public:
    enum class Direction { Vertical, Horizontal };

    explicit GradientButton(const QString& caption = {}, QWidget* parent = nullptr);

    void setColours(icon::Colour start, icon::Colour end, icon::Colour text, icon::Colour light);
    void setStartColour(icon::Colour colour);
    void setEndColour(icon::Colour colour);
    void setTextColour(icon::Colour colour);
    void setLightColour(icon::Colour colour);
    void setDirection(Direction direction);
    // The picture is drawn at its own size; the alignment places it (left of the caption when
    // AlignLeft, alone in the middle when there is no caption).
    void setPicture(const QPixmap& picture, Qt::Alignment alignment = Qt::AlignLeft);

    icon::Colour startColour() const { return m_start; }
    icon::Colour endColour() const { return m_end; }
    icon::Colour textColour() const { return m_text; }
    icon::Colour lightColour() const { return m_light; }
    bool isLit() const { return m_lit; }

    QSize sizeHint() const override;
    // Where the caption is drawn (empty without one), the button at rest.
    QRect captionRect() const;
    // The font the caption is drawn in: the button's own, smaller when the caption would not
    // fit between the button's edges otherwise.
    QFont captionFont() const;

signals:
    // A right button press on the button: moves and commands that act on the press itself.
    void rightPressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // The area of the caption and picture, and the picture's place in it.
    QRect contentRect(QRect* picturePlace) const;
    void paintFace(QPainter& painter, const QRect& caption, bool sunken) const;
    QPixmap shownPicture() const;

    icon::Colour m_start = 0x808000;
    icon::Colour m_end = 0xE0E0E0;
    icon::Colour m_text = 0x000000;
    icon::Colour m_light = 0xDEFF6C;
    Direction m_direction = Direction::Vertical;
    QPixmap m_picture;
    Qt::Alignment m_pictureAlignment = Qt::AlignLeft;
    bool m_lit = false;
};

} // namespace platform

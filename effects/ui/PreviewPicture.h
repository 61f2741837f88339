#pragma once

#include "icon/Frame.h"

#include <QWidget>

namespace effects::ui {

// The 32×32 preview of an effect dialog, at the icon's actual size inside a sunken frame. It
// only shows the picture its dialog gives it.
class PreviewPicture : public QWidget {
    Q_OBJECT
public:
    static constexpr int kBorder = 2;
    static constexpr int kSide = 32 + 2 * kBorder;

    explicit PreviewPicture(const QString& name, QWidget* parent = nullptr);

    void setPicture(const icon::Frame& picture);
    // What it shows, without the frame.
    QImage picture() const { return m_picture; }

signals:
    void doubleClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QImage m_picture;
};

} // namespace effects::ui

#pragma once

#include "browser/IconGrid.h"

#include "icon/Colour.h"
#include "shell/ColourScheme.h"

#include <QWidget>

namespace browser::ui {

// The centre picture (`Picture24`, `Picture12`): the centred icon on its own background, a
// little larger than a cell. A double click reads the file again; the right button hands the
// icon to the editor.
class CentrePicture : public QWidget {
    Q_OBJECT
public:
    CentrePicture(const IconGrid& grid, GridView view, QWidget* parent = nullptr);

    void setBackground(icon::Colour colour);
    icon::Colour background() const { return m_background; }
    // What it shows, background included, at `scale` screen pixels per window pixel (1 for
    // the clipboard, the screen's own when painted).
    QImage picture(double scale = 1.0) const;

    static QString helpText();

signals:
    void doubleClicked();
    void rightPressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    const IconGrid& m_grid;
    GridView m_view;
    icon::Colour m_background = shell::kDefaultViewing;
};

} // namespace browser::ui

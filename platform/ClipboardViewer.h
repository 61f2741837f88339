#pragma once

#include "platform/ToolWindow.h"

#include <QImage>
#include <QString>

class QLabel;

namespace platform {

// The program's clipboard viewer: what the clipboard holds now, a picture at its actual size
// with its size in pixels, or its text, followed while the window is open. One viewer serves
// the whole run, whoever calls it (the browser, the editor, the capture window).
class ClipboardViewer : public ToolWindow {
    Q_OBJECT
public:
    // Shows the viewer, creating it the first time, and brings it to the front.
    static ClipboardViewer& showViewer();
    // The viewer while it is open, otherwise nullptr.
    static ClipboardViewer* current();

    // What the line under the title says: "64 x 48 pixels", "Texte", or that it is empty.
    QString summary() const;
    // The picture shown, null when the clipboard holds no picture.
    QImage picture() const;

private:
    ClipboardViewer();
    void refresh();

    QLabel* m_summary = nullptr;
    QLabel* m_content = nullptr;
};

} // namespace platform

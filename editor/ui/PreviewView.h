#pragma once

#include "editor/IconEditor.h"

#include <QWidget>

namespace editor::ui {

// The preview `PicIcon`: the icon at its actual size over the preview's background, in a
// sunken frame.
class PreviewView : public QWidget {
    Q_OBJECT
public:
    explicit PreviewView(const IconEditor& engine, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const IconEditor& m_engine;
};

} // namespace editor::ui

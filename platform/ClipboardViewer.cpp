#include "platform/ClipboardViewer.h"

#include "platform/WindowStyle.h"
#include "shell/AppState.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMimeData>
#include <QPointer>
#include <QScrollArea>
#include <QVBoxLayout>

namespace platform {

namespace {

QPointer<ClipboardViewer>& viewer() {
    static QPointer<ClipboardViewer> window;
    return window;
}

} // namespace

ClipboardViewer& ClipboardViewer::showViewer() {
    if (viewer().isNull())
        viewer() = new ClipboardViewer;
    ClipboardViewer& window = *viewer();
    window.bringUp();
    return window;
}

ClipboardViewer* ClipboardViewer::current() {
    return viewer().data();
}

ClipboardViewer::ClipboardViewer()
    : ToolWindow(QStringLiteral("Presse-papiers"), QStringLiteral("FrmPressePapiers")) {
    auto* body = new QWidget;
    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    m_summary = new QLabel;
    m_summary->setObjectName(QStringLiteral("LblContenu"));
    layout->addWidget(m_summary);
    auto* scroll = new QScrollArea;
    scroll->setObjectName(QStringLiteral("PicPressePapiers"));
    m_content = new QLabel;
    m_content->setObjectName(QStringLiteral("LblPressePapiers"));
    m_content->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_content->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_content->setMargin(4);
    scroll->setWidget(m_content);
    scroll->setWidgetResizable(false);
    layout->addWidget(scroll, 1);
    setContent(body);
    // The picture lies on the viewing colour, as the browser's grid does.
    const auto& colours = shell::appState().preferences.colours;
    setBackground(*scroll->viewport(), colours[shell::SchemeColour::Viewing]);
    setBackground(*m_content, colours[shell::SchemeColour::Viewing]);
    resize(420, 320);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            &ClipboardViewer::refresh);
    refresh();
}

QString ClipboardViewer::summary() const {
    return m_summary->text();
}

QImage ClipboardViewer::picture() const {
    return m_content->pixmap().toImage();
}

void ClipboardViewer::refresh() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (data != nullptr && data->hasImage()) {
        const QImage image = QGuiApplication::clipboard()->image();
        m_content->setPixmap(QPixmap::fromImage(image));
        m_summary->setText(QString::number(image.width()) + QStringLiteral(" x ") +
                           QString::number(image.height()) + QStringLiteral(" pixels"));
    } else if (data != nullptr && data->hasText()) {
        m_content->setPixmap({});
        m_content->setText(data->text());
        m_summary->setText(QStringLiteral("Texte"));
    } else {
        m_content->setPixmap({});
        m_content->setText({});
        m_summary->setText(QStringLiteral("Le presse-papiers est vide."));
    }
    m_content->adjustSize();
}

} // namespace platform

#include "platform/ToolWindow.h"

#include "platform/ApplyScheme.h"
#include "platform/GradientButton.h"
#include "platform/HelpBubbles.h"
#include "platform/PlaceWindow.h"
#include "platform/TitleButton.h"
#include "platform/WindowStyle.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSizeGrip>
#include <QVBoxLayout>

namespace platform {

ToolWindow::ToolWindow(const QString& title, const QString& objectName, QWidget* parent)
    : QWidget(parent, Qt::Window) {
    setObjectName(objectName);
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
    makeFrameless(*this);

    m_title = new TitleButton(title, this);
    m_title->setFixedHeight(22);
    auto* close = new GradientButton(QStringLiteral("X"), this);
    close->setObjectName(QStringLiteral("CmdFermer"));
    close->setFixedSize(22, 22);
    setHelpText(*close, QStringLiteral("Fermer"));
    connect(close, &QAbstractButton::clicked, this, &QWidget::close);

    auto* titleRow = new QHBoxLayout;
    titleRow->setSpacing(4);
    titleRow->addWidget(m_title, 1);
    titleRow->addWidget(close);
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(4, 4, 4, 4);
    m_layout->setSpacing(4);
    m_layout->addLayout(titleRow);
    auto* gripRow = new QHBoxLayout;
    gripRow->addStretch(1);
    gripRow->addWidget(new QSizeGrip(this));
    m_layout->addLayout(gripRow);
}

void ToolWindow::setContent(QWidget* content) {
    content->setParent(this);
    m_layout->insertWidget(1, content, 1);
    applyScheme(*this);
}

void ToolWindow::setTitle(const QString& title) {
    setWindowTitle(title);
    m_title->setText(title);
}

void ToolWindow::bringUp() {
    if (!m_placed) {
        m_placed = true;
        const QWidget* active = QApplication::activeWindow();
        placeWindow(*this, active != this ? active : nullptr);
    }
    show();
    raise();
    activateWindow();
}

void ToolWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace platform

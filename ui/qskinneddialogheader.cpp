#include "qskinneddialogheader.h"

#include "qskinneddialog.h"
#include "windowplacement.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QToolTip>

namespace {

constexpr int kHeight = 20;

} // namespace

QSkinnedDialogHeader::QSkinnedDialogHeader(QSkinnedDialog *dialog)
    : QLabel(dialog)
    , m_dialog(dialog)
{
    setObjectName(QStringLiteral("skinnedDialogHeader"));
    setFixedHeight(kHeight);
}

void QSkinnedDialogHeader::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || m_dialog->isMaximized()) {
        event->ignore();
        return;
    }
    if (compositorPlacesWindows()) {
        m_dialog->windowHandle()->startSystemMove();
        return;
    }
    m_dragging = true;
    m_lastMouse = event->globalPosition().toPoint();
    m_dialogPosition = m_dialog->pos();
}

void QSkinnedDialogHeader::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_dragging)
        return;
    // The position is kept here: the window's own lags behind until the window manager has answered.
    const QPoint mouse = event->globalPosition().toPoint();
    m_dialogPosition += mouse - m_lastMouse;
    m_lastMouse = mouse;
    m_dialog->move(m_dialogPosition);
}

void QSkinnedDialogHeader::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_dragging = false;
    else
        event->ignore();
}

bool QSkinnedDialogHeader::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && m_dialog->isResizable()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                           m_dialog->isMaximized() ? tr("Double click: restore the window")
                                                   : tr("Drag: move the window. Double click: maximise it"),
                           this);
        return true;
    }
    return QLabel::event(event);
}

void QSkinnedDialogHeader::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_dialog->isResizable()) {
        event->ignore();
        return;
    }
    m_dragging = false;
    if (m_dialog->isMaximized())
        m_dialog->showNormal();
    else
        m_dialog->showMaximized();
}

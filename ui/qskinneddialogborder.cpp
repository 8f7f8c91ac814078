#include "qskinneddialogborder.h"

#include "qskinneddialog.h"
#include "windowplacement.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>

#include <array>

namespace {

struct Role {
    const char *objectName;
    Qt::CursorShape cursor;
    Qt::Edges edges;
};

const Role &roleOf(QSkinnedDialogBorder::Position position)
{
    // In the order of the positions.
    static const std::array<Role, QSkinnedDialogBorder::kCount> roles{{
        {"skinnedDialogTopBorder", Qt::SizeVerCursor, Qt::TopEdge},
        {"skinnedDialogBottomBorder", Qt::SizeVerCursor, Qt::BottomEdge},
        {"skinnedDialogLeftBorder", Qt::SizeHorCursor, Qt::LeftEdge},
        {"skinnedDialogRightBorder", Qt::SizeHorCursor, Qt::RightEdge},
        {"skinnedDialogTopLeftBorder", Qt::SizeFDiagCursor, Qt::TopEdge | Qt::LeftEdge},
        {"skinnedDialogTopRightBorder", Qt::SizeBDiagCursor, Qt::TopEdge | Qt::RightEdge},
        {"skinnedDialogBottomLeftBorder", Qt::SizeBDiagCursor, Qt::BottomEdge | Qt::LeftEdge},
        {"skinnedDialogBottomRightBorder", Qt::SizeFDiagCursor, Qt::BottomEdge | Qt::RightEdge},
    }};
    return roles[position];
}

} // namespace

QSkinnedDialogBorder::QSkinnedDialogBorder(Position position, QSkinnedDialog *dialog)
    : QWidget(dialog)
    , m_position(position)
    , m_dialog(dialog)
{
    setObjectName(QLatin1String(roleOf(position).objectName));
    showCursor();
}

void QSkinnedDialogBorder::setThickness(int width)
{
    const Qt::Edges edges = roleOf(m_position).edges;
    const bool vertical = edges & (Qt::TopEdge | Qt::BottomEdge);
    const bool horizontal = edges & (Qt::LeftEdge | Qt::RightEdge);
    if (vertical)
        setFixedHeight(width);
    if (horizontal)
        setFixedWidth(width);
    setSizePolicy(horizontal ? QSizePolicy::Fixed : QSizePolicy::Expanding,
                  vertical ? QSizePolicy::Fixed : QSizePolicy::Expanding);
}

// A dialog of a fixed size, or a maximised one, has no edge to take hold of.
void QSkinnedDialogBorder::showCursor()
{
    if (m_dialog->isResizable() && !m_dialog->isMaximized())
        setCursor(roleOf(m_position).cursor);
    else
        unsetCursor();
}

void QSkinnedDialogBorder::enterEvent(QEnterEvent *event)
{
    showCursor(); // it may be maximised by now
    QWidget::enterEvent(event);
}

void QSkinnedDialogBorder::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_dialog->isResizable() || m_dialog->isMaximized()) {
        event->ignore();
        return;
    }
    if (compositorPlacesWindows()) {
        m_dialog->windowHandle()->startSystemResize(roleOf(m_position).edges);
        return;
    }
    m_dragging = true;
    m_pressedAt = event->globalPosition().toPoint();
    m_pressedInside = event->scenePosition().toPoint();
    m_pressedGeometry = m_dialog->geometry();
}

void QSkinnedDialogBorder::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragging)
        dragTo(event->globalPosition().toPoint(), event->scenePosition().toPoint());
}

void QSkinnedDialogBorder::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_dragging = false;
    else
        event->ignore();
}

void QSkinnedDialogBorder::dragTo(QPoint globalPosition, QPoint inside)
{
    const QPoint moved = globalPosition - m_pressedAt;
    // Global positions jump where another scale begins. The right and the bottom edge can follow the mouse from the
    // dialog's corner, which they leave where it is.
    const bool strays = QGuiApplication::screenAt(globalPosition) != m_dialog->screen();
    const QPoint gained = strays ? inside - m_pressedInside : moved;
    const Qt::Edges edges = roleOf(m_position).edges;
    QRect wanted = m_pressedGeometry;
    if (edges & Qt::LeftEdge)
        wanted.setLeft(wanted.left() + moved.x());
    if (edges & Qt::RightEdge)
        wanted.setRight(wanted.right() + gained.x());
    if (edges & Qt::TopEdge)
        wanted.setTop(wanted.top() + moved.y());
    if (edges & Qt::BottomEdge)
        wanted.setBottom(wanted.bottom() + gained.y());

    // The size that the dialog can take decides the position, so that the edges not dragged stay where they were at
    // the press, however late the window system's answers to earlier moves arrive.
    const QSize size = wanted.size().boundedTo(m_dialog->maximumSize()).expandedTo(m_dialog->minimumSize());
    if (size == m_dialog->size())
        return;
    QRect taken(m_pressedGeometry.topLeft(), size);
    if (edges & Qt::LeftEdge)
        taken.moveRight(m_pressedGeometry.right());
    if (edges & Qt::TopEdge)
        taken.moveBottom(m_pressedGeometry.bottom());
    m_dialog->setGeometry(taken);
    m_dialog->update();
}

void QSkinnedDialogBorder::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_Widget, option);
}

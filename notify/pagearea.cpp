#include "pagearea.h"

#include <QtCore/QEvent>
#include <QtWidgets/QScrollBar>

PageArea::PageArea(QWidget *parent)
    : QScrollArea(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
}

void PageArea::settleSizes(QWidget &window)
{
    for (QWidget *widget : window.findChildren<QWidget *>())
        widget->ensurePolished();
    for (PageArea *area : window.findChildren<PageArea *>())
        area->updateGeometry();
}

QSize PageArea::sizeHint() const
{
    return widget() ? withBar(widget()->sizeHint()) : QScrollArea::sizeHint();
}

QSize PageArea::minimumSizeHint() const
{
    const QSize least = QScrollArea::minimumSizeHint();
    return widget() ? QSize(withBar(widget()->minimumSizeHint()).width(), least.height()) : least;
}

bool PageArea::event(QEvent *event)
{
    // What is on the page asks its area alone; another language or text size changes what the window has to offer.
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::event(event);
}

QSize PageArea::withBar(QSize size) const
{
    return {size.width() + verticalScrollBar()->sizeHint().width(), size.height()};
}

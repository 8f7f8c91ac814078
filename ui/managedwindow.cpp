#include "managedwindow.h"

#include <QtCore/QEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QWidget>

void keepManaged(QWidget *window, const QEvent *event)
{
    if (event->type() == QEvent::WinIdChange && window->windowHandle())
        window->windowHandle()->setFlag(Qt::BypassWindowManagerHint, false);
}

void keepAbove(QWidget *window, bool above)
{
    if (window->windowFlags().testFlag(Qt::WindowStaysOnTopHint) == above)
        return;
    const bool wasVisible = window->isVisible();
    window->setWindowFlag(Qt::WindowStaysOnTopHint, above); // hides it
    if (wasVisible)
        window->show();
}

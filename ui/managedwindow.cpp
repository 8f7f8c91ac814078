#include "managedwindow.h"

#include <QtCore/QEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QWidget>

void keepManaged(QWidget *window, const QEvent *event)
{
    if (event->type() == QEvent::WinIdChange && window->windowHandle())
        window->windowHandle()->setFlag(Qt::BypassWindowManagerHint, false);
}

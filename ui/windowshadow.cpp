#include "windowshadow.h"

#include <system/tdesktop.h>

#include <QtWidgets/QWidget>

void addDropShadow(QWidget *window)
{
    // Not winId(): that would make a native window, also in the middle of one's end.
    if (const WId native = window->internalWinId())
        TDesktop::AddDropShadow(native);
}

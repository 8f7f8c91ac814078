#include "windowshadow.h"

#include <tdesktop.h>

#include <QtWidgets/QWidget>

void addDropShadow(QWidget *window)
{
    TDesktop::AddDropShadow(window->winId());
}

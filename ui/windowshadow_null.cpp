#include "windowshadow.h"

void addDropShadow(QWidget *) { }

#pragma once

#include <QtGui/QColor>
#include <QtGui/QIcon>

/// The shape of a drawing in one colour: that of the texts beside it. In the size given, also for dense screens.
QIcon tintedIcon(const QIcon &drawing, QSize size, const QColor &colour);

#pragma once

#include <QtGui/QColor>
#include <QtGui/QIcon>

// Icons of the viewer's buttons, drawn dimly while they are disabled: what the style makes of a disabled icon would be
// brighter than this window.

/// By its name; while the button is checked by that of another, where there is one.
QIcon viewerIcon(const QString &name, const QString &checked = {});
/// Of the row that plays.
QIcon playerIcon(const QString &name);
/// With the colour that the button chooses in it, in a part of its 16 by 16 units.
QIcon swatchIcon(const QString &name, const QColor &color, const QRectF &swatch);

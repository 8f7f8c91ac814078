#pragma once

#include <QtCore/QList>
#include <QtCore/QMargins>
#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/QSize>

class QWidget;

/// Whether windows are placed by the compositor alone (Wayland), so that drags have to be handed to it.
bool compositorPlacesWindows();

/// A window's rectangle made usable on these work areas (in logical pixels, primary first): no larger than the one it
/// lies on, and moved onto the nearest when its top edge, where its header is, can no longer be grasped on any.
/// A rectangle that is fine, also across two screens, comes back as it is; so does any when there is no area.
QRect fittedToAreas(const QRect &wanted, const QList<QRect> &areas);

/// The place of a window that opens after another: shifted down and to the right, at the work area's edges from its other
/// side again. Never that of the other one.
QPoint cascaded(const QRect &last, QSize size, const QRect &area);

/// The parent for a box: null for one that is hidden, whose screen is not where the user is. A box without a parent
/// opens on the screen of the pointer.
QWidget *shownParent(QWidget *parent);

/// The frame that the desktop puts around the window; a guess until the window has been on screen.
QMargins frameOf(const QWidget &window);

/// fittedToAreas() with the work areas of the present screens.
QRect fittedToScreens(const QRect &wanted);

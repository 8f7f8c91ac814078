#pragma once

class QEvent;
class QWidget;

/// Keeps a window that bears Qt::BypassWindowManagerHint with its window manager. On X11 the hint would take the
/// window's frame and the keyboard away; the widget keeps its flags, its native window goes without. To be called from
/// the widget's event() with every event.
void keepManaged(QWidget *window, const QEvent *event);

/// Keeps the window above others, or no longer; one that is shown stays so.
void keepAbove(QWidget *window, bool above);

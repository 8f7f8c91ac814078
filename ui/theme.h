#pragma once

#include <QtGui/QPalette>

/// The program's colours, made from the desktop's.
///
/// Every palette made here can be read, whatever the desktop chose: texts have a contrast of 4.5:1 to what lies behind
/// them, edges, selections and the focus one of 3:1 (WCAG 2.1, 1.4.3 and 1.4.11; what is disabled is exempt). Where the
/// desktop's own colours keep that, they are taken as they are. The roles, as the style sheets use them:
///
///   Window, Base, Button        surfaces         Dark              edges of fields and indicators
///   WindowText, Text, …         text on them     BrightText        edges under the pointer, of what is the default
///   Midlight, Shadow            hover, pressed   Mid               lines that only separate
///   Highlight, HighlightedText  what is chosen   Link              focus, progress, the mark of what is on
///   PlaceholderText             secondary text
namespace Theme {

/// The desktop's palette, with the roles that it lacks or that cannot be read made to fit.
QPalette readable(const QPalette &desktop);
/// The greys of the picture viewer: what is seen beside a picture must not tint it, on any desktop.
QPalette neutral();
/// A dark or a light desktop, for one that says no more than that.
QPalette plain(bool isDark, bool hasHighContrast);
/// Whether texts are lighter than what lies behind them.
bool isDark(const QPalette &palette);

/// The contrast ratio of two opaque colours, 1 to 21.
double contrast(const QColor &one, const QColor &other);

} // namespace Theme

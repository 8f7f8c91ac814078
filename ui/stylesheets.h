#pragma once

#include <QtCore/QString>

class QApplication;
class QPalette;

/// The program's style sheets in the colours of a palette.
///
/// In the sheets, palette(role) stands for a colour of the palette, that of the disabled group in rules for what is
/// disabled. The toolkit knows it too, but takes the application's palette for it, whatever palette a window has. Pictures
/// in the folders "ink" and "mark" are light or dark, as is seen on windows and fields or on what is chosen.
namespace StyleSheets {

/// For every window: tarrow.qss, then shared.qss. Empty when neither can be read.
QString forProgram(const QPalette &palette);
/// For the picture viewer's windows and what opens from them, behind the program's: in neutral greys, and in a size of text
/// that leaves the room to the picture.
QString forViewer();

/// Gives the program its sheets; those for the viewer from the first wantViewer() on, which comes before a viewer is made:
/// a start does not pay for them.
void install(QApplication &application, const QPalette &palette);
void wantViewer(QApplication &application);

} // namespace StyleSheets

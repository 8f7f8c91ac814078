#pragma once

class QApplication;

/// Fonts, palette, style and style sheets of the program.
namespace Look {

/// Installs the program's fonts; one that cannot be installed is reported on standard error.
void installFonts();
/// Takes the etched shadow from disabled texts.
void installPalette();
void installStyle(QApplication &application);

} // namespace Look

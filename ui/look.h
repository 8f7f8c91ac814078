#pragma once

#include "desktopappearance.h"

#include <QtCore/QObject>
#include <QtGui/QFont>

class QApplication;

/// Fonts, palette, style and style sheets of the program. They follow the desktop: its palette as far as it can be
/// read, its size of text in the program's own family, now and when either changes.
class Look final : public QObject {
    Q_OBJECT

public:
    /// Installs the program's fonts; one that cannot be installed is reported on standard error.
    static void installFonts();

    /// The program's family in the desktop's size.
    static QFont font();

    /// Installs fonts, palette, style and style sheets.
    explicit Look(QApplication &application);
    /// Begins to ask the desktop what the toolkit cannot tell: when there is time for it.
    void askDesktop();

private:
    void follow();
    void installPalette();

    QApplication &m_application;
    DesktopAppearance m_appearance;
};

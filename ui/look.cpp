#include "look.h"

#include "qtarrowstyle.h"
#include "stylesheets.h"
#include "theme.h"

#include <QtCore/QResource>
#include <QtGui/QFontDatabase>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>

#include <cstdio>

void Look::installFonts()
{
    for (const char *name :
         {"Lato-Bla.ttf", "Lato-BlaIta.ttf", "Lato-Bol.ttf", "Lato-BolIta.ttf", "Lato-Hai.ttf",
          "Lato-HaiIta.ttf", "Lato-Lig.ttf", "Lato-LigIta.ttf", "Lato-Reg.ttf", "Lato-RegIta.ttf"}) {
        // Where it lies: a copy of all ten would take longer than installing them.
        const QResource font(QStringLiteral(":/Fonts/Resources/fonts/") + QLatin1String(name));
        if (QFontDatabase::addApplicationFontFromData(font.uncompressedData()) == -1)
            std::fprintf(stderr, "Failed to install font resource %s\n", name);
    }
}

QFont Look::font()
{
    QFont font(QStringLiteral("Lato"));
    const qreal size = QFontDatabase::systemFont(QFontDatabase::GeneralFont).pointSizeF();
    if (size > 0)
        font.setPointSizeF(size);
    return font;
}

Look::Look(QApplication &application)
    : m_application(application)
{
    installFonts();
    installPalette();
    QApplication::setStyle(new QTarrowStyle);
    follow();
    connect(&m_appearance, &DesktopAppearance::changed, this, [this] {
        // What the toolkit's theme says is seen only where the program has set nothing.
        QApplication::setPalette(QPalette());
        installPalette();
        follow();
    });
}

void Look::askDesktop()
{
    m_appearance.ask();
}

void Look::installPalette()
{
    const QPalette desktop = QApplication::palette();
    const bool isDark = m_appearance.prefersDark() || Theme::isDark(desktop);
    const bool isToldMore = m_appearance.prefersHighContrast() || isDark != Theme::isDark(desktop);
    QApplication::setPalette(
        Theme::readable(isToldMore ? Theme::plain(isDark, m_appearance.prefersHighContrast()) : desktop));
}

void Look::follow()
{
    QApplication::setFont(font());
    StyleSheets::install(m_application, QApplication::palette());
}

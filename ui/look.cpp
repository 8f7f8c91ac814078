#include "look.h"

#include "qtarrowstyle.h"

#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtGui/QFontDatabase>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

QString textOf(const QString &resource)
{
    QFile file(resource);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

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

void Look::installPalette()
{
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Disabled, QPalette::Light, QColor(0, 0, 0, 0));
    QApplication::setPalette(palette);
}

void Look::installStyle(QApplication &application)
{
    QApplication::setStyle(new QTarrowStyle);
    const QString sheet = textOf(QStringLiteral(":/Styles/tarrow.qss"))
        + textOf(QStringLiteral(":/Styles/viewer.qss")) + textOf(QStringLiteral(":/Styles/shared.qss"));
    if (!sheet.isEmpty())
        application.setStyleSheet(sheet);
}

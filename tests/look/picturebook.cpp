#include "desktops.h"
#include "windowbook.h"

#include <ui/glprobe.h>
#include <ui/language.h>
#include <ui/look.h>
#include <ui/product.h>
#include <ui/tappstate.h>

#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <cstdio>

/// tarrow-picturebook FOLDER DESKTOP LANGUAGE: saves a picture of each window, menu and box of the program as they look on
/// the desktop.
int main(int argc, char *argv[])
{
    if (argc != 4) {
        std::fputs("usage: tarrow-picturebook FOLDER DESKTOP LANGUAGE\n", stderr);
        return 2;
    }
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(product::kOrganisation);
    QCoreApplication::setApplicationName(product::kApplicationName);
    QApplication::setQuitOnLastWindowClosed(false);
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const QString name = QString::fromLocal8Bit(argv[2]);
    for (const Desktop &desktop : desktops()) {
        if (desktop.name == name)
            QApplication::setPalette(desktop.palette);
    }
    installLanguage(QString::fromLocal8Bit(argv[3]));
    const Look look(application);
    probeOpenGl(TAppState::instance());
    bool isSaved = true;
    WindowBook book([&](const QString &window, QWidget &widget) {
        // From the screen: a grabbed widget lacks what OpenGL draws.
        const QRect place = widget.frameGeometry();
        const QPixmap picture =
            widget.screen()->grabWindow(0, place.x(), place.y(), place.width(), place.height());
        isSaved = picture.save(QStringLiteral("%1/%2.png").arg(folder, window)) && isSaved;
    });
    book.visitAll();
    return isSaved ? 0 : 1;
}

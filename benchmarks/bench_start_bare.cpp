#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>
#include <QtWidgets/QSystemTrayIcon>

/// The least that a Qt program with a tray icon can do: what bench_start.py measures the client against.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QPixmap pixmap(24, 24);
    pixmap.fill(Qt::red);
    QSystemTrayIcon tray{QIcon(pixmap)};
    tray.show();
    return QApplication::exec();
}

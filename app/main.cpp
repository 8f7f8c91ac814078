#include "commandline.h"

#include <alertor.h>
#include <product.h>

#include <QtWidgets/QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(product::kOrganisation);
    QCoreApplication::setOrganizationDomain(product::kDomain);
    QCoreApplication::setApplicationName(product::kApplicationName);
    QApplication::setQuitOnLastWindowClosed(false);
    Alertor alertor;
    alertor.setCommandLineOverrides(CommandLine::parse(QCoreApplication::arguments()).overrides);
    alertor.loadSettings();
    alertor.minimize();
    return QApplication::exec();
}

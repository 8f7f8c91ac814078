#include "setup.h"

#include "alertor.h"
#include "firstrun.h"
#include "messages.h"

#include <notify/settings/remembered.h>

void Setup::offer(Alertor &alertor)
{
    if (alertor.isConfigured() || Remembered::isSetupPutOff())
        return;
    open(alertor);
    QObject::connect(alertor.findChild<FirstRun *>(), &QDialog::rejected, &alertor, &Remembered::putOffSetup);
}

void Setup::open(Alertor &alertor)
{
    auto *window = alertor.findChild<FirstRun *>();
    if (!window) {
        window = new FirstRun(alertor.settings().link(), &alertor);
        window->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(window, &FirstRun::connectRequested, &alertor, [&alertor](const LinkSettings &link) {
            Settings edited = alertor.settings();
            edited.setLink(link);
            alertor.applySettings(edited);
        });
    }
    window->show();
    window->raise();
    window->activateWindow();
}

void Setup::openAbout(Alertor &alertor)
{
    if (Messages::showAbout(&alertor))
        open(alertor);
}

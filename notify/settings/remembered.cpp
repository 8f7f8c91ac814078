#include "remembered.h"

#include "settingsstore.h"

#include <QtCore/QSettings>

namespace {

const QString kPreferencesSize = QStringLiteral("windows/preferencesSize");
const QString kSetupPutOff = QStringLiteral("windows/setupPutOff");

} // namespace

QSize Remembered::preferencesSize()
{
    return QSettings().value(kPreferencesSize).toSize();
}

void Remembered::setPreferencesSize(QSize size)
{
    saveAside(kPreferencesSize, size);
}

bool Remembered::isSetupPutOff()
{
    return QSettings().value(kSetupPutOff).toBool();
}

void Remembered::putOffSetup()
{
    saveAside(kSetupPutOff, true);
}

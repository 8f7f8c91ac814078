#include "settings.h"

#include "settingscipher.h"
#include "settingsstore.h"

#include <QtCore/QSettings>

namespace {

SettingsCipher passwordCipher()
{
    SettingsCipher cipher;
    cipher.setKey(0x5b17e93c2d40a68fULL);
    return cipher;
}

QString encipherPassword(const QString &text)
{
    return passwordCipher().encipher(text);
}

QString decipherPassword(const QString &cipherText)
{
    return passwordCipher().decipher(cipherText);
}

constexpr SettingsRow kRows[] = {
    {"network/dispatcherAddress", &Settings::dispatcherAddress},
    {"network/authenticationUser", &Settings::authenticationUser},
    {"network/authenticationPassword",
     SecretText{&Settings::authenticationPassword, &encipherPassword, &decipherPassword}},
    {"network/dispatcherPort", &Settings::dispatcherPort},
    {"network/skipDirectoryAuthentication", &Settings::skipDirectoryAuthentication},

    {"behaviours/filterServiceActivities", &Settings::filterServiceActivities},
    {"behaviours/filterJobStart", &Settings::filterJobStart},
    {"behaviours/filterJobCompletedWithErrors", &Settings::filterJobCompletedWithErrors},
    {"behaviours/filterJobCompletedWithWarnings", &Settings::filterJobCompletedWithWarnings},
    {"behaviours/filterJobCompletedWithSuccess", &Settings::filterJobCompletedWithSuccess},
    {"behaviours/filterChunkStart", &Settings::filterChunkStart},
    {"behaviours/filterChunkCompletedWithErrors", &Settings::filterChunkCompletedWithErrors},
    {"behaviours/filterChunkCompletedWithWarnings", &Settings::filterChunkCompletedWithWarnings},
    {"behaviours/filterChunkCompletedWithSuccess", &Settings::filterChunkCompletedWithSuccess},
    {"behaviours/showBubble", &Settings::showBubble},
    {"behaviours/autoAckOnRaise", &Settings::autoAckOnRaise},
    {"behaviours/playErrorSound", &Settings::playErrorSound},
    {"behaviours/playWarningSound", &Settings::playWarningSound},
    {"behaviours/playSuccessSound", &Settings::playSuccessSound},
    {"behaviours/playStartSound", &Settings::playStartSound},
    {"behaviours/playServiceSound", &Settings::playServiceSound},
    {"behaviours/errorSound", &Settings::errorSound},
    {"behaviours/warningSound", &Settings::warningSound},
    {"behaviours/successSound", &Settings::successSound},
    {"behaviours/startSound", &Settings::startSound},
    {"behaviours/serviceSound", &Settings::serviceSound},

    {"eventsWindow/keepAbove", &Settings::keepAbove},
};

} // namespace

LinkSettings Settings::link() const
{
    return {dispatcherAddress, dispatcherPort, authenticationUser, authenticationPassword,
            skipDirectoryAuthentication};
}

void Settings::setLink(const LinkSettings &link)
{
    dispatcherAddress = link.address;
    dispatcherPort = link.port;
    authenticationUser = link.user;
    authenticationPassword = link.password;
    skipDirectoryAuthentication = link.skipDirectoryAuthentication;
}

void CommandLineOverrides::applyTo(Settings &settings) const
{
    settings.dispatcherAddress = server.value_or(settings.dispatcherAddress);
    settings.authenticationUser = user.value_or(settings.authenticationUser);
    settings.authenticationPassword = password.value_or(settings.authenticationPassword);
    settings.dispatcherPort = port.value_or(settings.dispatcherPort);
}

Settings loadSettings()
{
    return loadRows({kRows, kImageViewerRows});
}

bool anySettingStored()
{
    return anyRowStored({kRows, kImageViewerRows});
}

bool saveSettings(const Settings &settings)
{
    return saveRows({kRows, kImageViewerRows}, settings);
}

int loadHeartbeatResolution()
{
    constexpr int kDefault = 600;
    const int seconds = QSettings().value(QStringLiteral("network/heartbeat_resolution"), kDefault).toInt();
    return seconds > 0 ? seconds : kDefault;
}

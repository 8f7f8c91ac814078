#include "settings.h"

#include "settingscipher.h"

#include "settingslog.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryFile>
#include <QtCore/QVariant>

#include <cmath>
#include <variant>

namespace {

/// A text that is kept enciphered in the store.
struct SecretText {
    QString Settings::*member;
};

using Member = std::variant<bool Settings::*, int Settings::*, quint64 Settings::*, float Settings::*,
                            QString Settings::*, SecretText>;

struct Entry {
    const char *key;
    Member member;

    QString path() const { return QLatin1String(key); }
};

const Entry kEntries[] = {
    {"network/dispatcherAddress", &Settings::dispatcherAddress},
    {"network/authenticationUser", &Settings::authenticationUser},
    {"network/authenticationPassword", SecretText{&Settings::authenticationPassword}},
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

    {"imageViewer/imageViewerMaxGPUCache", &Settings::imageViewerMaxGPUCache},
    {"imageViewer/imageViewerMaxRAMCache", &Settings::imageViewerMaxRAMCache},
    {"imageViewer/imageViewerExrImportGamma", &Settings::imageViewerExrImportGamma},
    {"imageViewer/imageViewerDefaultImportGamma", &Settings::imageViewerDefaultImportGamma},
    {"imageViewer/imageViewerMode", &Settings::imageViewerMode},
    {"imageViewer/imageViewer", &Settings::imageViewer},
    {"imageViewer/launchImageViewer", &Settings::launchImageViewer},
};

SettingsCipher passwordCipher()
{
    SettingsCipher cipher;
    cipher.setKey(0x5b17e93c2d40a68fULL);
    return cipher;
}

/// Reads a stored value into one member; false, and the member as it was, when the value is not of its type.
struct Reader {
    const QVariant &stored;
    Settings &settings;

    bool operator()(bool Settings::*member) const
    {
        // A variant takes any text but a few for true, which would make a damaged file switch things on.
        const QString text = stored.toString();
        const bool isTrue = text == QLatin1String("true") || text == QLatin1String("1");
        const bool isFalse = text == QLatin1String("false") || text == QLatin1String("0");
        return assign(member, isTrue, isTrue || isFalse);
    }
    bool operator()(int Settings::*member) const
    {
        bool ok = false;
        const int value = stored.toInt(&ok);
        return assign(member, value, ok);
    }
    bool operator()(quint64 Settings::*member) const
    {
        bool ok = false;
        const quint64 value = stored.toULongLong(&ok);
        return assign(member, value, ok);
    }
    bool operator()(float Settings::*member) const
    {
        bool ok = false;
        const float value = stored.toFloat(&ok);
        return assign(member, value, ok && std::isfinite(value));
    }
    // An unquoted comma in a file edited by hand makes a list of a text.
    bool operator()(QString Settings::*member) const { return assign(member, stored.toString(), isText()); }
    bool operator()(const SecretText &secret) const
    {
        return isText() && assign(secret.member, passwordCipher().decipher(stored.toString()), true);
    }

    bool isText() const { return stored.typeId() == QMetaType::QString; }

    template <typename T>
    bool assign(T Settings::*member, const T &value, bool ok) const
    {
        if (ok)
            settings.*member = value;
        return ok;
    }
};

struct Writer {
    const Settings &settings;

    QVariant operator()(float Settings::*member) const { return double(settings.*member); }
    QVariant operator()(const SecretText &secret) const
    {
        return passwordCipher().encipher(settings.*secret.member);
    }
    template <typename T>
    QVariant operator()(T Settings::*member) const
    {
        return QVariant::fromValue(settings.*member);
    }
};

/// QSettings does not notice a write that a full disk or a quota cuts off, and puts the torn file in the place of the
/// old one. So there must be room for the whole file first.
bool hasRoom(const QSettings &store)
{
#ifdef Q_OS_WIN
    Q_UNUSED(store); // the registry
    return true;
#else
    const QFileInfo file(store.fileName());
    if (!QDir().mkpath(file.path()))
        return false;
    constexpr qsizetype kMargin = 16'384;
    const QByteArray ballast(file.size() + kMargin, '\0');
    QTemporaryFile probe(file.filePath() + QStringLiteral(".XXXXXX"));
    return probe.open() && probe.write(ballast) == ballast.size() && probe.flush();
#endif
}

/// The file holds a password that the cipher merely hides: it is for its owner alone, from its first byte on. QSettings
/// would make it readable by everybody, and leaves the permissions of a file that is there. Who put a link in its place
/// has chosen who reads what it points to.
void keepToOwner(const QSettings &store)
{
#ifdef Q_OS_WIN
    Q_UNUSED(store); // the registry
#else
    constexpr QFile::Permissions kOwner = QFile::ReadOwner | QFile::WriteOwner;
    QFile file(store.fileName());
    const bool isNew = file.open(QIODevice::WriteOnly | QIODevice::NewOnly, kOwner);
    if (!isNew && !QFileInfo(file).isSymLink())
        file.setPermissions(kOwner);
#endif
}

} // namespace

LinkSettings Settings::link() const
{
    return {dispatcherAddress, dispatcherPort, authenticationUser, authenticationPassword,
            skipDirectoryAuthentication};
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
    const QSettings store;
    Settings settings;
    QStringList unreadable;
    for (const Entry &entry : kEntries) {
        const QVariant stored = store.value(entry.path());
        if (stored.isValid() && !std::visit(Reader{stored, settings}, entry.member))
            unreadable += entry.path();
    }
    if (store.status() != QSettings::NoError)
        unreadable.prepend(QStringLiteral("parts of the file"));
    if (!unreadable.isEmpty())
        qCWarning(lcSettings, "%s: cannot read %s; the defaults are used", qUtf8Printable(store.fileName()),
                  qUtf8Printable(unreadable.join(QStringLiteral(", "))));
    return settings;
}

bool saveSettings(const Settings &settings)
{
    QSettings store;
    // Writing over a file that could not be read would lose what it holds.
    bool saved = store.status() != QSettings::AccessError && hasRoom(store);
    if (saved) {
        keepToOwner(store);
        for (const Entry &entry : kEntries)
            store.setValue(entry.path(), std::visit(Writer{settings}, entry.member));
        store.sync();
        // A store that found its file damaged goes on saying so: one opened anew tells whether the write mended it.
        saved = store.status() == QSettings::NoError
            || (store.status() == QSettings::FormatError && QSettings().status() == QSettings::NoError);
    }
    if (!saved)
        qCWarning(lcSettings, "%s: the settings cannot be saved", qUtf8Printable(store.fileName()));
    return saved;
}

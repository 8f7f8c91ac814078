#include "settingsstore.h"

#include "settingslog.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryFile>
#include <QtCore/QVariant>

#include <algorithm>
#include <cmath>

namespace {

QString keyOf(const SettingsRow &row)
{
    return QLatin1String(row.key);
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
    // An unquoted comma in a file edited by hand makes a list of a text; here it stands before decimals.
    bool operator()(float Settings::*member) const
    {
        bool ok = false;
        const bool isList = stored.typeId() == QMetaType::QStringList;
        QString text = isList ? stored.toStringList().join(u'.') : stored.toString();
        const float value = text.replace(u',', u'.').toFloat(&ok);
        return assign(member, value, ok && std::isfinite(value));
    }
    bool operator()(QString Settings::*member) const { return assign(member, stored.toString(), isText()); }
    bool operator()(const SecretText &secret) const
    {
        return isText() && assign(secret.member, secret.decipher(stored.toString()), true);
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
    QVariant operator()(const SecretText &secret) const { return secret.encipher(settings.*secret.member); }
    template <typename T>
    QVariant operator()(T Settings::*member) const
    {
        return QVariant::fromValue(settings.*member);
    }
};

/// False of the registry.
bool isFile(const QSettings &store)
{
    return !store.fileName().startsWith(QLatin1String("\\HKEY_"));
}

/// QSettings does not notice a write that a full disk or a quota cuts off, and puts the torn file in the place of the
/// old one. So there must be room for the whole file first.
bool hasRoom(const QSettings &store)
{
    if (!isFile(store))
        return true;
    const QFileInfo file(store.fileName());
    if (!QDir().mkpath(file.path()))
        return false;
    constexpr qsizetype kMargin = 16'384;
    const QByteArray ballast(file.size() + kMargin, '\0');
    QTemporaryFile probe(file.filePath() + QStringLiteral(".XXXXXX"));
    return probe.open() && probe.write(ballast) == ballast.size() && probe.flush();
}

/// The file holds a password that the cipher merely hides: it is for its owner alone, from its first byte on. QSettings
/// would make it readable by everybody, and leaves the permissions of a file that is there. Who put a link in its place
/// has chosen who reads what it points to.
void keepToOwner(const QSettings &store)
{
    if (!isFile(store))
        return;
    constexpr QFile::Permissions kOwner = QFile::ReadOwner | QFile::WriteOwner;
    QFile file(store.fileName());
    const bool isNew = file.open(QIODevice::WriteOnly | QIODevice::NewOnly, kOwner);
    if (!isNew && !QFileInfo(file).isSymLink())
        file.setPermissions(kOwner);
}

} // namespace

Settings loadRows(std::initializer_list<SettingsRows> tables)
{
    const QSettings store;
    Settings settings;
    QStringList unreadable;
    for (const SettingsRows &table : tables) {
        for (const SettingsRow &row : table) {
            const QVariant stored = store.value(keyOf(row));
            if (stored.isValid() && !std::visit(Reader{stored, settings}, row.member))
                unreadable += keyOf(row);
        }
    }
    if (store.status() != QSettings::NoError)
        unreadable.prepend(QStringLiteral("parts of the file"));
    if (!unreadable.isEmpty())
        qCWarning(lcSettings, "Cannot read %s in %s; using the defaults",
                  qUtf8Printable(unreadable.join(QStringLiteral(", "))), qUtf8Printable(store.fileName()));
    return settings;
}

bool anyRowStored(std::initializer_list<SettingsRows> tables)
{
    const QSettings store;
    return std::any_of(tables.begin(), tables.end(), [&store](SettingsRows table) {
        return std::any_of(table.begin(), table.end(),
                           [&store](const SettingsRow &row) { return store.contains(keyOf(row)); });
    });
}

bool saveRows(std::initializer_list<SettingsRows> tables, const Settings &settings)
{
    QSettings store;
    // Writing over a file that could not be read would lose what it holds.
    bool saved = store.status() != QSettings::AccessError && hasRoom(store);
    if (saved) {
        keepToOwner(store);
        for (const SettingsRows &table : tables) {
            for (const SettingsRow &row : table)
                store.setValue(keyOf(row), std::visit(Writer{settings}, row.member));
        }
        store.sync();
        // A store that found its file damaged goes on saying so: one opened anew tells whether the write mended it.
        saved = store.status() == QSettings::NoError
            || (store.status() == QSettings::FormatError && QSettings().status() == QSettings::NoError);
    }
    if (!saved)
        qCWarning(lcSettings, "Cannot save the settings to %s", qUtf8Printable(store.fileName()));
    return saved;
}

void saveAside(const QString &key, const QVariant &value)
{
    QSettings store;
    if (store.value(key) == value || store.status() != QSettings::NoError || !hasRoom(store))
        return;
    keepToOwner(store);
    store.setValue(key, value);
}

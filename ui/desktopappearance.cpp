#include "desktopappearance.h"

#include <QtCore/QEvent>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusReply>
#include <QtDBus/QDBusVariant>
#include <QtGui/QWindow>

#include <utility>

namespace {

using Settings = QMap<QString, QVariantMap>;

constexpr auto kService = "org.freedesktop.portal.Desktop";
constexpr auto kPath = "/org/freedesktop/portal/desktop";
constexpr auto kInterface = "org.freedesktop.portal.Settings";
constexpr auto kSpace = "org.freedesktop.appearance";
constexpr uint kDark = 1;
constexpr uint kHighContrast = 1;

/// Never shown: the toolkit tells every window, shown or not, that its theme has changed.
class ThemeWatch final : public QWindow {
public:
    explicit ThemeWatch(DesktopAppearance &owner)
        : m_owner(owner)
    { }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::ThemeChange)
            Q_EMIT m_owner.changed();
        return QWindow::event(event);
    }

private:
    DesktopAppearance &m_owner;
};

} // namespace

DesktopAppearance::DesktopAppearance(QObject *parent)
    : QObject(parent)
    , m_watch(std::make_unique<ThemeWatch>(*this))
{ }

DesktopAppearance::~DesktopAppearance() = default;

void DesktopAppearance::ask()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    // From whomever: to name a sender would wait for the bus to say who that is.
    bus.connect(QString(), QLatin1String(kPath), QLatin1String(kInterface), QStringLiteral("SettingChanged"),
                this, SLOT(take(QDBusMessage)));
    QDBusMessage call = QDBusMessage::createMethodCall(QLatin1String(kService), QLatin1String(kPath),
                                                       QLatin1String(kInterface), QStringLiteral("ReadAll"));
    call << QStringList{QLatin1String(kSpace)};
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusMessage reply = answer->reply();
        if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
            return;
        const Settings settings = qdbus_cast<Settings>(reply.arguments().constFirst());
        const QVariantMap values = settings.value(QLatin1String(kSpace));
        for (auto value = values.begin(); value != values.end(); ++value)
            apply(value.key(), value.value());
    });
}

void DesktopAppearance::take(const QDBusMessage &change)
{
    const QVariantList said = change.arguments();
    if (said.size() == 3 && said[0].toString() == QLatin1String(kSpace))
        apply(said[1].toString(), said[2].value<QDBusVariant>().variant());
}

void DesktopAppearance::apply(const QString &key, const QVariant &value)
{
    const bool isScheme = key == QLatin1String("color-scheme");
    if (!isScheme && key != QLatin1String("contrast"))
        return;
    bool &kept = isScheme ? m_prefersDark : m_prefersHighContrast;
    const bool said = value.toUInt() == (isScheme ? kDark : kHighContrast);
    if (std::exchange(kept, said) == said)
        return;
    Q_EMIT changed();
}

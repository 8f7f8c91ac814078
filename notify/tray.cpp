#include "tray.h"

#include <ui/svgicon.h>

#include <chrono>

namespace {

constexpr auto kBubbleTime = std::chrono::milliseconds(5000);

QString iconPath(const char *name)
{
    return QStringLiteral(":/icons/") + QLatin1String(name);
}

QString stateIconPath(LinkReport::State state)
{
    switch (state) {
    case LinkReport::State::LookingUp:
    case LinkReport::State::Connecting:
        return iconPath("connectingIcon");
    case LinkReport::State::Connected:
        return iconPath("mainIcon");
    default:
        return iconPath("unconnectedIcon");
    }
}

const char *levelIcon(PendingLevel level)
{
    switch (level) {
    case OtherPending:
        return "service";
    case SuccessPending:
        return "itemCompleted";
    case WarningPending:
        return "itemWarning";
    case ErrorPending:
        return "itemError";
    case NothingPending:
        break;
    }
    return nullptr;
}

} // namespace

const QString Tray::kNormal = iconPath("mainIcon");

Tray::Tray(QObject *parent)
    : QSystemTrayIcon(parent)
{
    for (const char *name : {"mainIcon", "connectingIcon", "unconnectedIcon", "service", "itemStart",
                             "itemCompleted", "itemWarning", "itemError"})
        m_icons.emplace(iconPath(name), svgIcon(iconPath(name)));
    showIcon(stateIconPath(LinkReport::State::Idle));
}

const QIcon &Tray::stateIcon(LinkReport::State state) const
{
    return m_icons.at(stateIconPath(state));
}

void Tray::update(LinkReport::State state, PendingLevel level, bool normal)
{
    const char *severity = normal ? nullptr : levelIcon(level);
    showIcon(severity ? iconPath(severity) : stateIconPath(state));
}

void Tray::explain(LinkReport::State state, const QString &words)
{
    const QString name =
        state == LinkReport::State::Connected ? tr("Tarrow Alertor") : tr("Tarrow Alertor (not connected)");
    if (const QString tip = name + u'\n' + words; toolTip() != tip)
        setToolTip(tip);
}

void Tray::showIcon(const QString &path)
{
    if (m_shown == path)
        return;
    m_shown = path;
    setIcon(m_icons.at(path));
}

void Tray::showNewEvent()
{
    if (m_bubbleWaiting)
        return;
    m_bubbleWaiting = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_bubbleWaiting = false;
            showBubble(tr("New event available!"));
        },
        Qt::QueuedConnection);
}

void Tray::showBackgroundHint()
{
    showBubble(tr(
        "Tarrow Alertor is running in the background.\nRight-click on this icon to access the context menu "
        "or double click to raise the application."));
}

void Tray::showBubble(const QString &text)
{
    if (supportsMessages())
        showMessage(tr("Tarrow Alertor"), text, Information, int(kBubbleTime.count()));
}

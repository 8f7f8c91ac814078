#pragma once

#include <net/linkreport.h>
#include <notify/events/eventkind.h>

#include <QtGui/QIcon>
#include <QtWidgets/QSystemTrayIcon>

#include <map>

/// The icon in the system tray: shows the state of the link, flashes what is pending, shows bubbles.
class Tray final : public QSystemTrayIcon {
    Q_OBJECT

public:
    explicit Tray(QObject *parent = nullptr);

    const QIcon &normalIcon() const { return m_icons.at(kNormal); }
    const QIcon &stateIcon(LinkReport::State state) const;
    /// Resource path of the icon that is shown.
    const QString &shownIcon() const { return m_shown; }

    /// Shows the link's icon, or with `normal` false that of the level; sets nothing that is shown already.
    void update(LinkReport::State state, PendingLevel level, bool normal);
    /// Says how the link stands below the program's name.
    void explain(LinkReport::State state, const QString &words);
    /// Shows the bubble for new events, once for all that come before control returns to the event loop.
    void showNewEvent();
    void showBackgroundHint();

private:
    static const QString kNormal;

    void showIcon(const QString &path);
    void showBubble(const QString &text);

    std::map<QString, QIcon> m_icons; // by resource path
    QString m_shown;
    bool m_bubbleWaiting = false;
};

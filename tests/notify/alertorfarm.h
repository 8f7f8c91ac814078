#pragma once

#include "farmpackets.h"
#include "loopbackpeer.h"

#include <notify/alertor.h>
#include <notify/eventsview.h>
#include <ui/product.h>

#include <QtCore/QSettings>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>

/// All entries, or those that can be chosen.
inline QString textsOf(const QMenu *menu, bool enabled = false)
{
    QStringList texts;
    for (const QAction *action : menu->actions()) {
        if (!enabled || (action->isEnabled() && !action->isSeparator()))
            texts += action->isSeparator() ? QStringLiteral("-") : action->text();
    }
    return texts.join(u'|');
}

/// The window on a link of its own.
struct Farm {
    static void prepare()
    {
        QCoreApplication::setOrganizationName(product::kOrganisation);
        QCoreApplication::setApplicationName(product::kApplicationName);
        QApplication::setQuitOnLastWindowClosed(false);
    }

    LoopbackPeer peer;
    Alertor alertor;
    QStringList trayWhileConnecting; // icon and tooltip

    explicit Farm(const QString &key = {}, const QVariant &value = {})
    {
        if (!key.isEmpty())
            QSettings().setValue(key, value);
        CommandLineOverrides overrides;
        overrides.port = peer.port();
        alertor.setCommandLineOverrides(overrides);
        alertor.loadSettings();
        QSettings().clear();
        alertor.checkLocalConnection();
        trayWhileConnecting = tray();
        QTRY_VERIFY(!peer.received().isEmpty());
    }
    QStringList tray() const
    {
        return {alertor.tray().shownIcon(), alertor.tray().toolTip().section(QLatin1Char('\n'), 0, 0)};
    }
    void send(const NotificationPacket &packet) { peer.send(farm::frame(packet)); }
    /// One event of each of these job statuses.
    void sendJobs(const QList<int> &statuses)
    {
        const qsizetype before = alertor.events().size();
        for (const int status : statuses) {
            const TClientLib::TJob job = farm::job(status);
            send(farm::notification(1, &job));
        }
        QTRY_COMPARE(alertor.events().size(), before + statuses.size());
    }
    void tick(int times)
    {
        while (times-- > 0)
            QMetaObject::invokeMethod(&alertor, "timerEvent");
    }
    QString text(const char *label) const
    {
        const auto *found = alertor.findChild<QLabel *>(QLatin1String(label));
        return found->isVisible() ? found->text() : QString();
    }
    EventsView *list() const { return alertor.findChild<EventsView *>(QStringLiteral("treeWidget")); }
    QMenu *menu(const char *name) const { return alertor.findChild<QMenu *>(QLatin1String(name)); }
    void show()
    {
        alertor.show();
        QVERIFY(QTest::qWaitForWindowExposed(&alertor));
    }
    void click(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const QRect cell = list()->visualRect(list()->model()->index(row, EventsModel::Message));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, modifiers, cell.center());
    }
};

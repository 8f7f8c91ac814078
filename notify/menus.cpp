#include "menus.h"

#include <notify/events/notifyevent.h>

#include <algorithm>

TrayMenu::TrayMenu(QWidget *parent)
    : QMenu(parent)
    , restore(new QAction(tr("&Restore"), this))
    , acknowledge(new QAction(tr("&Acknowledge pending events"), this))
    , silent(new QAction(tr("&Silent"), this))
    , openViewer(new QAction(tr("&Open images viewer"), this))
    , configure(new QAction(tr("&Configure"), this))
    , quit(new QAction(tr("&Quit"), this))
{
    setObjectName(QStringLiteral("trayMenu"));
    silent->setCheckable(true);
    // The roles keep the entries in this menu on systems that would move them into an application menu.
    configure->setMenuRole(QAction::NoRole);
    quit->setMenuRole(QAction::NoRole);
    addAction(restore);
    addSeparator();
    addActions({acknowledge, silent});
    addSeparator();
    addAction(openViewer);
    addSeparator();
    addActions({configure, quit});
}

void TrayMenu::follow(const State &state)
{
    acknowledge->setEnabled(state.anyPending);
    restore->setEnabled(state.canRestore);
    silent->setChecked(state.isSilent);
}

WindowMenu::WindowMenu(const TrayMenu &trayMenu, QMenu *columns, QWidget *parent)
    : QMenu(parent)
    , about(new QAction(tr("A&bout"), this))
{
    setObjectName(QStringLiteral("windowMenu"));
    about->setToolTip(tr("Shows the version, and where the log is"));
    about->setMenuRole(QAction::NoRole);
    addActions(trayMenu.actions());
    insertMenu(trayMenu.configure, columns);
    insertSeparator(trayMenu.configure);
    insertAction(trayMenu.quit, about);
}

ListMenu::ListMenu(QWidget *parent)
    : QMenu(parent)
    , acknowledge(new QAction(tr("&Acknowledge selection"), this))
    , openOutput(new QAction(tr("&Open output folder"), this))
    , openFrames(new QAction(tr("Open &frame(s)"), this))
    , openFramesExternally(new QAction(tr("Open frame(s) exter&nally"), this))
    , removeSelection(new QAction(tr("&Remove selection\tDEL"), this))
    , removeAll(new QAction(tr("Remove all"), this))
{
    setObjectName(QStringLiteral("listMenu"));
    addAction(acknowledge);
    addSeparator();
    addAction(openOutput);
    addSeparator();
    addActions({openFrames, openFramesExternally});
    addSeparator();
    addActions({removeSelection, removeAll});
}

void ListMenu::follow(const QList<const NotifyEvent *> &selected, bool anyEvents)
{
    const auto any = [&selected](auto test) { return std::any_of(selected.begin(), selected.end(), test); };
    const bool anyFrames = any([](const NotifyEvent *event) { return event->has(EventKey::kFramesMask); });
    acknowledge->setEnabled(any([](const NotifyEvent *event) { return !event->acknowledged; }));
    openOutput->setEnabled(any([](const NotifyEvent *event) { return event->has(EventKey::kFramesPath); }));
    openFrames->setEnabled(anyFrames);
    openFramesExternally->setEnabled(anyFrames);
    removeSelection->setEnabled(!selected.isEmpty());
    removeAll->setEnabled(anyEvents);
}

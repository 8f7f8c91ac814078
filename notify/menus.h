#pragma once

#include <QtCore/QList>
#include <QtWidgets/QMenu>

class NotifyEvent;

/// Menu of the tray icon. Its owner connects the actions and calls follow() before the menu shows.
class TrayMenu final : public QMenu {
    Q_OBJECT

public:
    struct State {
        bool anyPending = false;
        bool canRestore = false;
        bool isSilent = false;
    };

    explicit TrayMenu(QWidget *parent);

    void follow(const State &state);

    QAction *const restore;
    QAction *const acknowledge;
    QAction *const silent;
    QAction *const openViewer;
    QAction *const configure;
    QAction *const quit;
};

/// Menu of the window's button: that of the tray icon, and what concerns the window alone.
class WindowMenu final : public QMenu {
    Q_OBJECT

public:
    WindowMenu(const TrayMenu &trayMenu, QMenu *columns, QWidget *parent);

    QAction *const about;
};

/// Context menu of the events list. Its owner connects the actions and calls follow() before the menu shows.
class ListMenu final : public QMenu {
    Q_OBJECT

public:
    explicit ListMenu(QWidget *parent);

    /// Enables what can be done with the selected events, of a list that holds any events or none.
    void follow(const QList<const NotifyEvent *> &selected, bool anyEvents);

    QAction *const acknowledge;
    QAction *const openOutput;
    QAction *const openFrames;
    QAction *const openFramesExternally;
    QAction *const removeSelection;
    QAction *const removeAll;
};

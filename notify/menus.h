#pragma once

#include <QtWidgets/QMenu>

/// Menu of the tray icon. Its owner connects the actions and keeps their states up to date.
class TrayMenu final : public QMenu {
    Q_OBJECT

public:
    explicit TrayMenu(QWidget *parent);

    QAction *const restore;
    QAction *const acknowledge;
    QAction *const silent;
    QAction *const openViewer;
    QAction *const configure;
    QAction *const quit;
};

/// Context menu of the events list.
class ListMenu final : public QMenu {
    Q_OBJECT

public:
    explicit ListMenu(QWidget *parent);

    QAction *const acknowledge;
    QAction *const openOutput;
    QAction *const openFrames;
    QAction *const openFramesExternally;
    QAction *const removeSelection;
    QAction *const removeAll;
};

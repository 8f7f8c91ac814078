#pragma once

#include "eventactions.h"
#include "eventsmodel.h"
#include "soundplayer.h"
#include "tray.h"
#include "viewerwindows.h"
#include "windowmemory.h"

#include <framework/sendentry.h>
#include <net/dispatchersession.h>
#include <notify/events/eventslist.h>
#include <notify/settings/settings.h>

#include <QtCore/QByteArray>
#include <QtCore/QTimer>
#include <QtWidgets/QDialog>

#include <functional>
#include <memory>

class ImageViewer;
class LinkDisplay;
class ListMenu;
class TrayMenu;

namespace Ui {
class AlertorClass;
}

/// The main window, mostly hidden behind its tray icon: shows the farm's events and owns the link to the Dispatcher.
/// It wires the events list, the session, the settings and the tray to each other and holds little of its own.
class Alertor final : public QDialog {
    Q_OBJECT

public:
    /// Receives the Dispatcher's messages for the templates.
    using CustomMessageHandler = std::function<void(int templateId, const QByteArray &message)>;

    explicit Alertor(QWidget *parent = nullptr);
    ~Alertor() override;

    const EventsList &events() const { return m_events; }
    const Settings &settings() const { return m_settings; }
    const Tray &tray() const { return m_tray; }
    /// False where nothing was ever stored and the command line says nothing.
    bool isConfigured() const { return m_isConfigured; }
    /// For the templates; valid as long as the window.
    TFramework::TSendEntry *sendEntry() { return &m_sendEntry; }

    void setCommandLineOverrides(const CommandLineOverrides &overrides)
    {
        m_commandLineOverrides = overrides;
    }
    void setCustomMessageHandler(CustomMessageHandler handler)
    {
        m_customMessageHandler = std::move(handler);
    }
    /// Reads the stored settings and puts the command line's values over them.
    void loadSettings();
    void saveSettings();
    /// Takes the settings over and saves them; connects anew where that changes the link.
    void applySettings(const Settings &edited);
    /// Keeps and announces the event, or drops it where its filter is off.
    void handleNewEvent(std::unique_ptr<NotifyEvent> event);
    /// Brings the tray in line with what is pending in the list.
    void refreshList();
    /// False without a connection object or when the message does not fit the link's send buffer.
    bool sendMessage(uint command, const QByteArray &payload, uint param);

public Q_SLOTS:
    void checkLocalConnection();
    void socketStateChanged(QAbstractSocket::SocketState state);
    void socketError(QAbstractSocket::SocketError error);
    void socketConnected();
    void socketDisconnected();
    void socketMessage();
    void openConnection();
    void closeConnection();
    void updateIcon(bool normal);
    void processCommand(uint cmd, QByteArray *payload);
    void actAckEvents();
    void actRemoveSelected();
    void actRemoveAll();
    void actAckSelection();
    void actOpenOutput();
    void actOpenFrame();
    void actOpenFrameExternally();
    void onQuit();
    void actIsSilent();
    void popupMenu(const QPoint &position);
    void minimize();
    void restore();
    void openImageViewer();
    ImageViewer *CreateImageViewer(QWidget *parent);
    void iconActivated(QSystemTrayIcon::ActivationReason reason);
    void handleMessage(const QString &message);
    void configure();
    void timerEvent();

protected:
    using QDialog::timerEvent;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
    bool event(QEvent *event) override;
    /// Escape does what closing does.
    void reject() override { minimize(); }

private:
    void buildMenus();
    void connectSession();
    void processCustomMessage(const QByteArray &payload);
    void updateTrayMenu();
    void standInForTray();

    std::unique_ptr<Ui::AlertorClass> m_ui;
    EventsList m_events;
    EventsModel m_model{m_events};
    DispatcherSession m_session;
    Settings m_settings;
    CommandLineOverrides m_commandLineOverrides;
    CustomMessageHandler m_customMessageHandler;
    TFramework::TSendEntry m_sendEntry;
    SoundPlayer m_sounds;
    Tray m_tray;
    ViewerWindows m_viewers{*this};
    EventActions m_actions{{m_events, m_settings, m_viewers, *this}};
    LinkDisplay *m_linkDisplay = nullptr;
    TrayMenu *m_trayMenu = nullptr;
    ListMenu *m_listMenu = nullptr;
    QPointer<QDialog> m_refusal;
    QTimer m_timer;
    quint32 m_tick = 0;
    PendingLevel m_pendingLevel = NothingPending;
    quint64 m_nextEventId = 1;
    WindowMemory m_place{*this};
    bool m_isConfigured = true;
    bool m_silent = false;
    bool m_firstHideHint = true;
};

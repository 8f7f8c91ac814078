#pragma once

#include "linkreport.h"
#include "linktrouble.h"

#include <notify/settings/linksettings.h>

#include <QtCore/QPointer>
#include <QtNetwork/QAbstractSocket>

#include <chrono>
#include <functional>
#include <optional>

class QLWTCPSocket;

/// The client's link to the Dispatcher: owns the socket, logs in as soon as the connection stands, and tries again
/// when asked to check it. Faults show as a socket that is unconnected, and in words in the report; the caller's timer
/// does the retrying.
class DispatcherSession final : public QObject {
    Q_OBJECT

public:
    explicit DispatcherSession(QObject *parent = nullptr);

    /// Tells the state of the socket; null while there is none.
    std::optional<QAbstractSocket::SocketState> state() const;
    /// True unless the Dispatcher refused the log-in since the settings were last applied.
    bool autoReconnect() const { return m_autoReconnect; }
    /// Tells how the link stands; every change of it is logged.
    const LinkReport &report() const { return m_report; }

    /// Stores the settings for the next connection.
    void setSettings(const LinkSettings &settings);
    void openConnection();
    void closeConnection();
    /// Connects when there is no connection and none under way.
    void checkLocalConnection();
    /// Drops the link and connects anew with other settings, also after a refusal.
    void reconnect(const LinkSettings &settings);
    /// Connects at once where there is no connection and none under way, also after a refusal; what waits to be sent stays.
    void retry();
    /// Drops the link and leaves it down, as the Dispatcher refused the log-in.
    void refuse();
    /// Has the system find out soon whether the link survived, where this machine slept since the last call.
    void checkAfterSleep();
    /// False when there is no socket or the message does not fit the send buffer. Messages sent while the link is down
    /// wait and follow the next log-in.
    bool send(uint command, const QByteArray &payload, uint param);
    /// Hands every whole message buffered to `process`, which may run an event loop and close the connection.
    void drain(const std::function<void(uint command, QByteArray *data)> &process);

Q_SIGNALS:
    void stateChanged(QAbstractSocket::SocketState state);
    void errorOccurred(QAbstractSocket::SocketError error);
    void connected();
    void disconnected();
    /// There may be whole messages to drain().
    void messageReady();
    void reportChanged();
    /// Messages were lost, or a stream that cannot be believed ended the link.
    void troubled(const LinkTrouble &trouble);

private Q_SLOTS:
    void logIn();
    void stopHeartbeat();
    void dropConnection();

private:
    LinkReport::State reportedState() const;
    void updateReport();
    void explain(LinkReport::Reason reason, const QString &detail = {});
    void noteTrouble(const LinkTrouble &trouble);

    LinkSettings m_settings;
    LinkReport m_report;
    LinkReport::Reason m_reason = LinkReport::Reason::None;
    QString m_reasonDetail;
    LinkReport m_told; // what the log said last
    std::chrono::milliseconds m_asleep; // in all, when last looked at
    QPointer<QLWTCPSocket> m_socket;
    bool m_autoReconnect = true;
};

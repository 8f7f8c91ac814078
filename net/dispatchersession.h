#pragma once

#include <notify/settings/linksettings.h>

#include <QtCore/QPointer>
#include <QtNetwork/QAbstractSocket>

#include <functional>
#include <optional>

class QLWTCPSocket;

/// The client's link to the Dispatcher: owns the socket, logs in as soon as the connection stands, and tries again
/// when asked to check it. Faults show as a socket that is unconnected; the caller's timer does the retrying.
class DispatcherSession final : public QObject {
    Q_OBJECT

public:
    explicit DispatcherSession(QObject *parent = nullptr);

    /// Tells the state of the socket; null while there is none.
    std::optional<QAbstractSocket::SocketState> state() const;
    /// True unless the Dispatcher refused the log-in since the settings were last applied.
    bool autoReconnect() const { return m_autoReconnect; }

    /// Stores the settings for the next connection.
    void setSettings(const LinkSettings &settings) { m_settings = settings; }
    void openConnection();
    void closeConnection();
    /// Connects when there is no connection and none under way.
    void checkLocalConnection();
    /// Drops the link and connects anew with other settings, also after a refusal.
    void reconnect(const LinkSettings &settings);
    /// Drops the link and leaves it down, as the Dispatcher refused the log-in.
    void refuse();
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

private Q_SLOTS:
    void logIn();
    void stopHeartbeat();
    void dropConnection();

private:
    LinkSettings m_settings;
    QPointer<QLWTCPSocket> m_socket;
    bool m_autoReconnect = true;
};

#include "dispatchersession.h"

#include "qlwtcpsocket.h"

#include <framework/tframework.h>
#include <net/protocol/packets.h>

DispatcherSession::DispatcherSession(QObject *parent)
    : QObject(parent)
{ }

std::optional<QAbstractSocket::SocketState> DispatcherSession::state() const
{
    return m_socket ? std::optional(m_socket->state()) : std::nullopt;
}

void DispatcherSession::openConnection()
{
    m_socket = new QLWTCPSocket(this);
    connect(m_socket, &QAbstractSocket::connected, this, &DispatcherSession::logIn);
    connect(m_socket, &QAbstractSocket::disconnected, this, &DispatcherSession::stopHeartbeat);
    connect(m_socket, &QAbstractSocket::errorOccurred, this, &DispatcherSession::dropConnection);
    connect(m_socket, &QAbstractSocket::stateChanged, this, &DispatcherSession::stateChanged);
    connect(m_socket, &QAbstractSocket::errorOccurred, this, &DispatcherSession::errorOccurred);
    connect(m_socket, &QLWTCPSocket::messageReady, this, &DispatcherSession::messageReady);
}

void DispatcherSession::closeConnection()
{
    if (!m_socket)
        return;
    m_socket->disconnect(this);
    m_socket->retire();
    m_socket = nullptr;
}

void DispatcherSession::checkLocalConnection()
{
    if (!m_socket)
        openConnection();
    if (m_socket->state() == QAbstractSocket::UnconnectedState)
        m_socket->connectToHost(m_settings.address, quint16(m_settings.port & 0xFFFF), QIODevice::ReadWrite);
}

void DispatcherSession::reconnect(const LinkSettings &settings)
{
    closeConnection();
    m_settings = settings;
    m_autoReconnect = true;
    checkLocalConnection();
}

void DispatcherSession::refuse()
{
    m_autoReconnect = false;
    dropConnection();
}

bool DispatcherSession::send(uint command, const QByteArray &payload, uint param)
{
    return m_socket && m_socket->sendMessage(command, payload, param);
}

void DispatcherSession::drain(const std::function<void(uint command, QByteArray *data)> &process)
{
    const QPointer<QLWTCPSocket> socket = m_socket;
    uint command = 0;
    QByteArray data;
    // A message that cannot be taken out leaves nothing behind it to go on with.
    while (socket && socket == m_socket && socket->getMessage(&command, &data, nullptr))
        process(command, &data);
}

void DispatcherSession::logIn()
{
    // The link may die silently while the machine sleeps: let the system ask the other end now and then.
    m_socket->setSocketOption(QAbstractSocket::KeepAliveOption, 1);

    LoginPacket login;
    login.user = m_settings.user;
    login.password = m_settings.password;
    login.skipDirectoryAuthentication = m_settings.skipDirectoryAuthentication;
    login.hostName = QString::fromStdString(TFramework::GetHostName());
    const QByteArray payload = encodeLogin(login);
    // Refused only where waiting messages filled the buffer; the refusal has emptied it.
    if (!m_socket->sendFirst(CMD_LOGIN, payload, 0))
        m_socket->sendFirst(CMD_LOGIN, payload, 0);
    m_socket->setHeartbeatCommand(CMD_HEARTBEAT);
    m_socket->startHeartbeat();
    Q_EMIT connected();
}

void DispatcherSession::stopHeartbeat()
{
    m_socket->stopHeartbeat();
    Q_EMIT disconnected();
}

void DispatcherSession::dropConnection()
{
    if (m_socket)
        m_socket->disconnectFromHost();
}

#include "dispatchersession.h"

#include "netlog.h"
#include "qlwtcpsocket.h"

#include <framework/tframework.h>
#include <net/protocol/packets.h>
#include <system/machine.h>

namespace {

constexpr auto kNap = std::chrono::seconds(1); // the clocks are not read at once

QByteArray inWords(const LinkReport &report)
{
    using State = LinkReport::State;
    switch (report.state) {
    case State::Idle:
        return "no attempt";
    case State::LookingUp:
        return "looking up";
    case State::Connecting:
        return "connecting";
    case State::Connected:
        return "connected and logged in";
    case State::Closing:
        return "closing";
    case State::Waiting:
        return "not connected, the next try comes by itself";
    case State::Refused:
        return "log-in refused, no next try until asked for";
    }
    return {};
}

QByteArray reasonInWords(const LinkReport &report)
{
    switch (report.reason) {
    case LinkReport::Reason::None:
        return {};
    case LinkReport::Reason::System:
        return " (" + report.detail.toUtf8() + ')';
    case LinkReport::Reason::Foreign:
        return " (not a Dispatcher: it sent " + report.detail.toUtf8() + ')';
    case LinkReport::Reason::BrokenStream:
        return " (the stream was damaged)";
    }
    return {};
}

} // namespace

DispatcherSession::DispatcherSession(QObject *parent)
    : QObject(parent)
    , m_asleep(Machine::timeAsleep())
{ }

void DispatcherSession::setSettings(const LinkSettings &settings)
{
    m_settings = settings;
    updateReport();
}

std::optional<QAbstractSocket::SocketState> DispatcherSession::state() const
{
    return m_socket ? std::optional(m_socket->state()) : std::nullopt;
}

void DispatcherSession::openConnection()
{
    m_socket = new QLWTCPSocket(this);
    connect(m_socket, &QAbstractSocket::connected, this, &DispatcherSession::logIn);
    connect(m_socket, &QAbstractSocket::disconnected, this, &DispatcherSession::stopHeartbeat);
    connect(m_socket, &QAbstractSocket::errorOccurred, this,
            [this] { explain(LinkReport::Reason::System, m_socket->errorString()); });
    connect(m_socket, &QAbstractSocket::errorOccurred, this, &DispatcherSession::dropConnection);
    connect(m_socket, &QAbstractSocket::stateChanged, this, [this](QAbstractSocket::SocketState state) {
        if (state == QAbstractSocket::ConnectedState)
            m_reason = LinkReport::Reason::None;
        updateReport();
    });
    connect(m_socket, &QAbstractSocket::stateChanged, this, &DispatcherSession::stateChanged);
    connect(m_socket, &QAbstractSocket::errorOccurred, this, &DispatcherSession::errorOccurred);
    connect(m_socket, &QLWTCPSocket::messageReady, this, &DispatcherSession::messageReady);
    m_socket->setTroubleHandler([this](const LinkTrouble &trouble) { noteTrouble(trouble); });
}

void DispatcherSession::closeConnection()
{
    if (!m_socket)
        return;
    m_socket->disconnect(this);
    m_socket->setTroubleHandler({});
    m_socket->retire();
    m_socket = nullptr;
    updateReport();
}

void DispatcherSession::checkLocalConnection()
{
    if (!m_socket)
        openConnection();
    if (m_socket->state() == QAbstractSocket::UnconnectedState)
        m_socket->connectToHost(m_settings.host(), m_settings.tcpPort(), QIODevice::ReadWrite);
}

void DispatcherSession::reconnect(const LinkSettings &settings)
{
    closeConnection();
    m_settings = settings;
    m_autoReconnect = true;
    explain(LinkReport::Reason::None);
    checkLocalConnection();
}

void DispatcherSession::retry()
{
    m_autoReconnect = true;
    checkLocalConnection();
}

void DispatcherSession::refuse()
{
    m_autoReconnect = false;
    explain(LinkReport::Reason::None);
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

void DispatcherSession::checkAfterSleep()
{
    const std::chrono::milliseconds asleep = Machine::timeAsleep();
    const bool slept = asleep - m_asleep > kNap;
    m_asleep = asleep;
    if (slept && m_socket)
        m_socket->probeConnection();
}

LinkReport::State DispatcherSession::reportedState() const
{
    const auto state = m_socket ? m_socket->state() : QAbstractSocket::UnconnectedState;
    switch (state) {
    case QAbstractSocket::HostLookupState:
        return LinkReport::State::LookingUp;
    case QAbstractSocket::ConnectingState:
        return LinkReport::State::Connecting;
    case QAbstractSocket::ConnectedState:
        return LinkReport::State::Connected;
    case QAbstractSocket::ClosingState:
        return LinkReport::State::Closing;
    default:
        break;
    }
    if (!m_autoReconnect)
        return LinkReport::State::Refused;
    return m_socket ? LinkReport::State::Waiting : LinkReport::State::Idle;
}

void DispatcherSession::updateReport()
{
    LinkReport report{reportedState(), m_settings.host(), m_settings.tcpPort(),
                      m_settings.user, m_reason,          m_reasonDetail};
    if (report == m_report)
        return;
    // The same failure every few seconds is told once.
    const bool tells = report != m_told
        && (report.state == LinkReport::State::Waiting || report.state == LinkReport::State::Refused
            || (report.state == LinkReport::State::Connected && report.state != m_told.state));
    m_report = report;
    if (tells) {
        m_told = report;
        const QString host = report.address.contains(u':') ? u'[' + report.address + u']' : report.address;
        qCInfo(lcNet, "%s@%s:%d: %s%s", qUtf8Printable(report.user), qUtf8Printable(host), report.port,
               inWords(report).constData(), reasonInWords(report).constData());
    }
    Q_EMIT reportChanged();
}

void DispatcherSession::explain(LinkReport::Reason reason, const QString &detail)
{
    m_reason = reason;
    m_reasonDetail = detail;
    updateReport();
}

void DispatcherSession::noteTrouble(const LinkTrouble &trouble)
{
    if (trouble.kind == LinkTrouble::Kind::Foreign)
        explain(LinkReport::Reason::Foreign, trouble.detail);
    else if (trouble.kind == LinkTrouble::Kind::Broken)
        explain(LinkReport::Reason::BrokenStream);
    Q_EMIT troubled(trouble);
}

void DispatcherSession::logIn()
{
    m_socket->watchConnection();
    LoginPacket login;
    login.user = m_settings.user;
    login.password = m_settings.password;
    login.skipDirectoryAuthentication = m_settings.skipDirectoryAuthentication;
    login.hostName = QString::fromStdString(TFramework::GetHostName());
    m_socket->sendFirst(CMD_LOGIN, encodeLogin(login), 0);
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

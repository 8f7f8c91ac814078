#include "connectiontest.h"

#include "linkwords.h"

#include <net/protocol/packets.h>
#include <ui/plaintext.h>

#include <chrono>

namespace {

constexpr auto kConnectPatience = std::chrono::seconds(10);
constexpr auto kRefusalPatience = std::chrono::seconds(2);

} // namespace

ConnectionTest::ConnectionTest(QObject *parent)
    : QObject(parent)
{
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, &ConnectionTest::outOfPatience);
    connect(&m_session, &DispatcherSession::connected, this, &ConnectionTest::waitForRefusal);
    connect(&m_session, &DispatcherSession::messageReady, this, &ConnectionTest::readMessages);
    connect(&m_session, &DispatcherSession::errorOccurred, this, &ConnectionTest::noteError);
    // Not from within the socket's own call, which goes on with what closing takes away.
    connect(&m_session, &DispatcherSession::troubled, this, &ConnectionTest::noteTrouble,
            Qt::QueuedConnection);
    connect(&m_session, &DispatcherSession::disconnected, this, &ConnectionTest::noteEnd,
            Qt::QueuedConnection);
}

QString ConnectionTest::words() const
{
    const LinkReport &report = m_session.report();
    const QString server = LinkWords::server(report);
    const QString user = shortened(report.user);
    switch (m_stage) {
    case Stage::Idle:
        return {};
    case Stage::Connecting:
        return tr("Connecting to %1…").arg(server);
    case Stage::LoggingIn:
        return tr("Connected to %1. Waiting whether it refuses the log-in of %2…").arg(server, user);
    case Stage::NotRefused:
        return tr("Connected to %1 and logged in as %2: it did not refuse within 2 seconds.")
            .arg(server, user);
    case Stage::Refused:
        return tr("Connected to %1, but it refused the log-in of %2. Check login and password.")
            .arg(server, user);
    case Stage::NameUnknown:
        return tr("The name %1 is not known. Check the address.").arg(shortened(report.address));
    case Stage::NobodyListens:
        return tr("Nobody listens at %1. Check the port, and whether the Dispatcher runs.").arg(server);
    case Stage::NoAnswer:
        return tr("No answer from %1 within 10 seconds. Check the address.").arg(server);
    case Stage::NoDispatcher:
        return tr("What answers at %1 is no Dispatcher. Check the port.").arg(server);
    case Stage::HungUp:
        return tr("Connected to %1, but it hung up after the log-in of %2.").arg(server, user);
    case Stage::Failed:
        return tr("Cannot connect to %1: %2").arg(server, report.detail);
    }
    return {};
}

void ConnectionTest::start(const LinkSettings &settings)
{
    stop();
    m_patience.start(kConnectPatience);
    m_stage = Stage::Connecting; // before anything can fail
    m_session.reconnect(settings);
    Q_EMIT stageChanged();
}

void ConnectionTest::stop()
{
    m_patience.stop();
    m_session.closeConnection();
    m_stage = Stage::Idle;
}

void ConnectionTest::waitForRefusal()
{
    m_patience.start(kRefusalPatience);
    enter(Stage::LoggingIn);
}

void ConnectionTest::readMessages()
{
    m_session.drain([this](uint command, const QByteArray *) {
        if (command == CMD_LOGIN_DENIED)
            finish(Stage::Refused);
    });
}

void ConnectionTest::noteError(QAbstractSocket::SocketError error)
{
    switch (error) {
    case QAbstractSocket::HostNotFoundError:
        return finish(Stage::NameUnknown);
    case QAbstractSocket::ConnectionRefusedError:
        return finish(Stage::NobodyListens);
    case QAbstractSocket::SocketTimeoutError:
        return finish(Stage::NoAnswer);
    default:
        return finish(m_stage == Stage::LoggingIn ? Stage::HungUp : Stage::Failed);
    }
}

void ConnectionTest::noteTrouble()
{
    using Reason = LinkReport::Reason;
    const Reason reason = m_session.report().reason;
    if (reason == Reason::Foreign || reason == Reason::BrokenStream)
        finish(Stage::NoDispatcher);
}

void ConnectionTest::noteEnd()
{
    noteTrouble();
    if (m_stage == Stage::LoggingIn)
        finish(Stage::HungUp);
}

void ConnectionTest::outOfPatience()
{
    finish(m_stage == Stage::LoggingIn ? Stage::NotRefused : Stage::NoAnswer);
}

void ConnectionTest::finish(Stage stage)
{
    if (!isRunning())
        return;
    m_patience.stop();
    m_session.closeConnection();
    enter(stage);
}

void ConnectionTest::enter(Stage stage)
{
    m_stage = stage;
    Q_EMIT stageChanged();
}

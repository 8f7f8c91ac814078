#include "farmlink.h"

#include "farmlog.h"

#include <net/protocol/packets.h>

#include <QtCore/QDebug>
#include <QtCore/QTimer>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpSocket>

#include <chrono>

namespace {

/// Unsent bytes above which a client counts as slow.
constexpr qint64 kHighWater = 256LL * 1024;
/// No client has a reason to send a larger message.
constexpr qsizetype kMaxReceived = 1024LL * 1024;
/// Longest piece of a message's text in the log, in bytes.
constexpr qsizetype kMaxLogged = 200;
/// How long a client may take to hang up on a broken message.
constexpr std::chrono::seconds kHangUpPatience{10};

/// In double quotes, with what does not print written as escapes.
template <typename Text>
QString quoted(const Text &text)
{
    QString result;
    QDebug(&result).nospace() << text;
    return result;
}

} // namespace

FarmLink::FarmLink(int number, QTcpSocket *socket, int fragmentSize, QObject *parent)
    : QObject(parent)
    , m_number(number)
    , m_socket(socket)
    , m_fragmentSize(fragmentSize)
{
    m_socket->setParent(this);
    m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    connect(m_socket, &QTcpSocket::readyRead, this, &FarmLink::readMessages);
    connect(m_socket, &QTcpSocket::bytesWritten, this, [this] {
        writeMore();
        Q_EMIT progressed();
    });
    connect(m_socket, &QTcpSocket::disconnected, this, [this] {
        log(QStringLiteral("gone after %1 events").arg(m_events));
        m_listening = false;
        Q_EMIT gone();
    });
    log(QStringLiteral("connected from %1").arg(m_socket->peerAddress().toString()));
}

bool FarmLink::isReady() const
{
    return !m_broken && m_unsent.size() - m_sent + m_socket->bytesToWrite() < kHighWater;
}

bool FarmLink::isIdle() const
{
    return m_unsent.isEmpty() && m_socket->bytesToWrite() == 0;
}

void FarmLink::send(const QByteArray &bytes)
{
    if (m_closing || m_socket->state() != QAbstractSocket::ConnectedState)
        return;
    m_unsent.append(bytes);
    writeMore();
}

void FarmLink::sendEvent(const QByteArray &message)
{
    ++m_events;
    send(message);
}

void FarmLink::sendBroken(const QByteArray &bytes)
{
    m_broken = true;
    send(bytes);
    QTimer::singleShot(kHangUpPatience, this, [this] {
        log(QStringLiteral("did not hang up on a broken message"));
        m_socket->abort();
    });
}

void FarmLink::hangUp()
{
    m_closing = true;
    writeMore();
}

void FarmLink::writeMore()
{
    if (m_fragmentSize == 0) {
        if (!m_unsent.isEmpty())
            m_socket->write(m_unsent);
        m_sent = m_unsent.size();
    } else if (m_sent < m_unsent.size() && m_socket->bytesToWrite() == 0) {
        // The next piece waits until the system took this one.
        const qsizetype size = qMin<qsizetype>(m_fragmentSize, m_unsent.size() - m_sent);
        m_socket->write(m_unsent.constData() + m_sent, size);
        m_sent += size;
    }
    if (m_sent == m_unsent.size()) {
        m_unsent.resize(0);
        m_sent = 0;
        if (m_closing)
            m_socket->disconnectFromHost();
    }
}

void FarmLink::readMessages()
{
    m_reader.append(m_socket->readAll());
    RawMessage message;
    MessageReader::Next next = m_reader.take(message);
    for (; next == MessageReader::Next::Message; next = m_reader.take(message))
        logMessage(message);
    if (next == MessageReader::Next::Broken || m_reader.size() > kMaxReceived) {
        log(QStringLiteral("sent a broken message"));
        m_reader.clear();
        m_socket->abort();
    }
}

void FarmLink::logMessage(const RawMessage &message)
{
    switch (message.header.command) {
    case CMD_LOGIN:
        logIn(message.payload);
        break;
    case CMD_HEARTBEAT:
        log(QStringLiteral("heartbeat"));
        break;
    default:
        log(QStringLiteral("message command=%1 param=%2 size=%3 text=%4")
                .arg(QString::number(message.header.command), QString::number(message.header.param),
                     QString::number(message.payload.size()),
                     quoted(message.payload.first(qMin(kMaxLogged, message.payload.size())).toByteArray())));
        break;
    }
}

void FarmLink::logIn(QByteArrayView payload)
{
    const std::optional<LoginPacket> login = decodeLogin(payload);
    if (!login) {
        log(QStringLiteral("sent a log-in that cannot be read"));
        return;
    }
    log(QStringLiteral("log-in user=%1 password=%2 skip-directory=%3 host=%4")
            .arg(quoted(login->user), quoted(login->password),
                 QString::number(int(login->skipDirectoryAuthentication)), quoted(login->hostName)));
    Q_EMIT loggedIn();
}

void FarmLink::log(const QString &text) const
{
    farmLog(QStringLiteral("client %1 %2").arg(m_number).arg(text));
}

#include "qlwtcpsocket.h"

#include "netlog.h"

#include <notify/settings/inflate.h>
#include <notify/settings/settings.h>

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtCore/QtEndian>

#include <algorithm>
#include <chrono>
#include <cstring>

namespace {

constexpr qint64 kBufferLimit = qint64(1024) * 1024;
// Small reads keep what is read, cut into messages and copied out of them in the processor's nearest cache, and so does a
// limit on what the toolkit reads ahead; the limit also holds while a modal box keeps us from reading.
constexpr qint64 kReadSize = 16384;
constexpr qint64 kReadAhead = qint64(512) * 1024;
// What the toolkit may hold of our queue: its own write buffer knows no limit.
constexpr qint64 kWriteAhead = qint64(64) * 1024;
constexpr auto kHeartbeatCheck = std::chrono::seconds(5);

} // namespace

QLWTCPSocket::QLWTCPSocket(QObject *parent)
    : QTcpSocket(parent)
    , m_maxReceiveSize(kBufferLimit)
    , m_maxSendSize(kBufferLimit)
    , m_heartbeatResolution(loadHeartbeatResolution())
    , m_clock(&QDateTime::currentDateTime)
{
    m_receiveBuffer.reserve(kBufferLimit);
    m_sendBuffer.reserve(kBufferLimit);
    setReadBufferSize(kReadAhead);
    connect(this, &QIODevice::readyRead, this, &QLWTCPSocket::readReady);
    connect(this, &QIODevice::bytesWritten, this, &QLWTCPSocket::writeReady);
    connect(this, &QAbstractSocket::disconnected, this, [this] { m_sendBuffer.resize(0); });
    connect(this, &QAbstractSocket::stateChanged, this, [this](SocketState state) {
        // Not at the end of the old link: what came whole before it can still be taken out.
        if (state == ConnectingState)
            m_receiveBuffer.clear();
    });
}

QLWTCPSocket::~QLWTCPSocket()
{
    // The base destructor aborts an open connection: nobody shall hear of it, least of all the members gone by then.
    disconnect();
}

bool QLWTCPSocket::sendMessage(uint command, const QByteArray &payload, uint param)
{
    return queueMessage(m_sendBuffer.size(), command, payload, param);
}

bool QLWTCPSocket::sendFirst(uint command, const QByteArray &payload, uint param)
{
    return queueMessage(0, command, payload, param);
}

bool QLWTCPSocket::queueMessage(qsizetype position, uint command, const QByteArray &payload, uint param)
{
    const qint64 messageSize = MessageHeader::kSize + payload.size();
    if (m_maxSendSize != 0 && m_sendBuffer.size() + messageSize > m_maxSendSize) {
        Q_EMIT sendBufferOverflow();
        clearBuffers();
        return false;
    }
    m_sendBuffer.insert(position, encodeMessage(command, payload, param));
    Q_EMIT sendActivity();
    writeQueued();
    m_lastActivity = m_clock();
    return true;
}

void QLWTCPSocket::writeQueued()
{
    // Before the connection stands the toolkit would take the bytes, and they would overtake the log-in.
    if (m_sendBuffer.isEmpty() || state() != ConnectedState)
        return;
    const qint64 offered = std::min<qint64>(m_sendBuffer.size(), kWriteAhead - bytesToWrite());
    if (offered <= 0)
        return;
    const qint64 taken = write(m_sendBuffer.constData(), offered);
    if (taken > 0)
        m_sendBuffer.remove(0, taken);
}

void QLWTCPSocket::writeReady(qint64 lastBytesWritten)
{
    Q_UNUSED(lastBytesWritten);
    Q_EMIT sendActivity();
    writeQueued();
}

void QLWTCPSocket::readReady()
{
    // A receiver may run an event loop in which this socket is given up.
    m_reading = true;
    while (!m_retired && isOpen()) {
        const qint64 got = read(m_receiveBuffer.room(kReadSize), kReadSize);
        if (got < 1)
            break;
        Q_EMIT rcvActivity();
        if (m_maxReceiveSize != 0 && m_receiveBuffer.size() + got > m_maxReceiveSize) {
            Q_EMIT rcvBufferOverflow();
            clearBuffers();
            break;
        }
        m_receiveBuffer.commit(got);
        if (hasMessage())
            Q_EMIT messageReady();
    }
    m_reading = false;
    if (m_retired)
        deleteLater();
}

bool QLWTCPSocket::getMessage(uint *command, QByteArray *data, uint *param)
{
    RawMessage message;
    const MessageReader::Next found = m_receiveBuffer.take(message);
    if (param)
        *param = message.header.param;
    if (found != MessageReader::Next::Message) {
        data->resize(0);
        if (found == MessageReader::Next::Broken)
            breakStream("a message of negative length");
        return false;
    }
    *command = message.header.command;
    if (message.header.type == MessageHeader::Compressed)
        return inflateMessage(message, data);
    const qsizetype size = message.header.type == MessageHeader::NoPayload ? 0 : message.payload.size() + 1;
    // The memory of the last message serves the next.
    if (data->size() != size)
        data->resize(size);
    if (size > 0) {
        char *to = data->data();
        std::memcpy(to, message.payload.data(), std::size_t(size - 1));
        to[size - 1] = '\0';
    }
    return true;
}

bool QLWTCPSocket::inflateMessage(const RawMessage &message, QByteArray *data)
{
    data->clear();
    constexpr qsizetype kSizeField = 4;
    std::optional<QByteArray> inflated;
    if (message.header.length >= kSizeField) {
        const auto announced = qFromLittleEndian<qint32>(message.payload.data());
        if (announced < 0) {
            breakStream("a payload of negative size");
            return false;
        }
        // The stream is offered one byte less than the payload's length, counted from behind the size: it ends by
        // itself, and up to three bytes behind the message are offered with it.
        const qsizetype offered = std::min<qsizetype>(
            message.header.length - 1, message.payload.size() - kSizeField + message.beyond.size());
        inflated = inflateStream(QByteArrayView{message.payload.data() + kSizeField, offered}, announced);
    }
    if (!inflated) {
        Q_EMIT zDecompressError();
        clearBuffers();
        return false;
    }
    *data = *std::move(inflated);
    data->append('\0');
    return true;
}

void QLWTCPSocket::breakStream(const char *why)
{
    qCWarning(lcNet, "Dropped the connection: the Dispatcher sent %s", why);
    clearBuffers();
    abort();
}

void QLWTCPSocket::clearBuffers()
{
    m_receiveBuffer.clear();
    m_sendBuffer.resize(0);
}

void QLWTCPSocket::startHeartbeat()
{
    m_lastActivity = m_clock();
    if (m_heartbeatTimer)
        return;
    m_heartbeatTimer = new QTimer(this);
    connect(m_heartbeatTimer, &QTimer::timeout, this, &QLWTCPSocket::checkHeartBeat);
    m_heartbeatTimer->start(kHeartbeatCheck);
}

void QLWTCPSocket::checkHeartBeat()
{
    // Unsigned on purpose: a clock that was set back sends one heartbeat and starts counting anew.
    const auto silence = quint32(m_clock().toSecsSinceEpoch() - m_lastActivity.toSecsSinceEpoch());
    if (silence < quint32(m_heartbeatResolution))
        return;
    sendMessage(m_heartbeatCommand, {}, 0);
    m_lastActivity = m_clock();
}

void QLWTCPSocket::stopHeartbeat()
{
    delete m_heartbeatTimer;
    m_heartbeatTimer = nullptr;
}

void QLWTCPSocket::retire()
{
    m_retired = true;
    disconnectFromHost();
    if (!m_reading)
        deleteLater();
}

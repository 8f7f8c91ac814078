#include "qlwtcpsocket.h"

#include "netlog.h"

#include <notify/settings/inflate.h>
#include <notify/settings/settings.h>
#include <system/tcpconnection.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtCore/QtEndian>
#include <QtNetwork/QNetworkProxy>

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
// For how long a queue that is full waits for a connection that is merely slower than a burst.
constexpr auto kPatience = std::chrono::milliseconds(1000);
constexpr auto kPause = std::chrono::milliseconds(250); // in which a Dispatcher that reads takes something

constexpr TcpConnection::Watch kWatch{std::chrono::seconds(60), std::chrono::seconds(15), 4,
                                      std::chrono::seconds(120)};
// Long enough for a wireless network to be back.
constexpr TcpConnection::Watch kProbe{std::chrono::seconds(5), std::chrono::seconds(5), 3,
                                      std::chrono::seconds(20)};

/// Gives the first word of a server that talks in text, as "SSH" or "HTTP"; empty for other bytes.
QString greeting(QByteArrayView bytes)
{
    const auto isText = [](char c) { return c >= ' ' && c <= '~'; };
    const auto isWord = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    };
    const auto head = bytes.first(std::min(bytes.size(), MessageHeader::kSize));
    const auto end = std::find_if_not(head.begin(), head.end(), isWord);
    const bool talks =
        end != head.begin() && std::all_of(head.begin(), std::min(end + 1, head.end()), isText);
    return talks ? QString::fromLatin1(head.data(), end - head.begin()) : QString();
}

} // namespace

QLWTCPSocket::QLWTCPSocket(QObject *parent)
    : QTcpSocket(parent)
    , m_maxReceiveSize(kBufferLimit)
    , m_maxSendSize(kBufferLimit)
    , m_heartbeatResolution(loadHeartbeatResolution())
    , m_clock(&QDateTime::currentDateTime)
    , m_patience(kPatience)
{
    m_receiveBuffer.reserve(kBufferLimit);
    m_sendBuffer.reserve(kBufferLimit);
    setReadBufferSize(kReadAhead);
    setProxy(QNetworkProxy::NoProxy);
    connect(this, &QIODevice::readyRead, this, &QLWTCPSocket::readReady);
    connect(this, &QIODevice::bytesWritten, this, &QLWTCPSocket::writeReady);
    connect(this, &QAbstractSocket::disconnected, this, [this] { m_sendBuffer.clear(); });
    connect(this, &QAbstractSocket::stateChanged, this, [this](SocketState state) {
        // Not at the end of the old link: what came whole before it can still be taken out.
        if (state != ConnectingState)
            return;
        m_receiveBuffer.clear();
        m_isDispatcher = false;
        m_isStalled = false;
    });
}

QLWTCPSocket::~QLWTCPSocket()
{
    // The base destructor aborts an open connection: nobody shall hear of it, least of all the members gone by then.
    disconnect();
}

bool QLWTCPSocket::sendMessage(uint command, const QByteArray &payload, uint param)
{
    if (const qsizetype size = MessageHeader::kSize + payload.size(); !fits(size) && !makeRoom(size)) {
        const bool isOnlySlow = state() == ConnectedState && !m_isStalled;
        if (isOnlySlow && size <= m_maxSendSize)
            return false;
        Q_EMIT sendBufferOverflow();
        using Kind = LinkTrouble::Kind;
        emptyBuffers({size > m_maxSendSize ? Kind::Oversized : Kind::NotRead, {}, {}, {}});
        return false;
    }
    m_sendBuffer.append(encodeMessage(command, payload, param));
    sendQueued();
    return true;
}

void QLWTCPSocket::sendFirst(uint command, const QByteArray &payload, uint param)
{
    m_sendBuffer.prepend(encodeMessage(command, payload, param));
    sendQueued();
}

void QLWTCPSocket::sendQueued()
{
    Q_EMIT sendActivity();
    writeQueued();
    m_lastActivity = m_clock();
}

bool QLWTCPSocket::fits(qsizetype messageSize) const
{
    return m_maxSendSize == 0 || m_sendBuffer.size() + messageSize <= m_maxSendSize;
}

bool QLWTCPSocket::makeRoom(qsizetype messageSize)
{
    const auto waiting = [this] { return m_sendBuffer.size() + bytesToWrite(); };
    while (!fits(messageSize) && !m_sendBuffer.isEmpty() && state() == ConnectedState) {
        const qint64 before = waiting();
        writeQueued();
        flush();
        if (waiting() < before)
            continue;
        if (!awaitRoom())
            break;
    }
    return fits(messageSize);
}

bool QLWTCPSocket::awaitRoom()
{
    if (m_isStalled || m_patience < kPause)
        return false;
    if (m_patience == kPatience)
        QMetaObject::invokeMethod(
            this, [this] { m_patience = kPatience; }, Qt::QueuedConnection);
    QElapsedTimer timer;
    timer.start();
    const std::int64_t before = TcpConnection::Unacknowledged(socketDescriptor());
    // Not the toolkit's own wait: that reads as well, and would call a template from within itself.
    const bool hasRoom = TcpConnection::WaitUntilWritable(socketDescriptor(), kPause);
    m_patience -= std::chrono::milliseconds(timer.elapsed());
    const bool reads = before >= 0 && TcpConnection::Unacknowledged(socketDescriptor()) < before;
    m_isStalled = !hasRoom && !reads;
    return !m_isStalled;
}

void QLWTCPSocket::writeQueued()
{
    // Before the connection stands the toolkit would take the bytes, and they would overtake the log-in.
    if (m_sendBuffer.isEmpty() || state() != ConnectedState)
        return;
    const qint64 offered = std::min<qint64>(m_sendBuffer.size(), kWriteAhead - bytesToWrite());
    if (offered <= 0)
        return;
    const qint64 taken = write(m_sendBuffer.bytes().data(), offered);
    if (taken > 0)
        m_sendBuffer.remove(taken);
}

void QLWTCPSocket::writeReady(qint64 lastBytesWritten)
{
    Q_UNUSED(lastBytesWritten);
    m_isStalled = false;
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
            m_receiveBuffer.commit(got);
            emptyBuffers({LinkTrouble::Kind::TooLarge, {}, {}, {}});
            // The toolkit, its own buffer full, may not tell of it again.
            QMetaObject::invokeMethod(this, &QLWTCPSocket::readReady, Qt::QueuedConnection);
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
            breakStream("a message has a length that no Dispatcher sends");
        return false;
    }
    m_isDispatcher = true;
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
            breakStream("a payload has a negative size");
            return false;
        }
        // The stream is offered one byte less than the payload's length, counted from behind the size: it ends by
        // itself, and up to three bytes behind the message are offered with it.
        const qsizetype offered = std::min<qsizetype>(
            message.header.length - 1, message.payload.size() - kSizeField + message.beyond.size());
        inflated = inflateStream(QByteArrayView{message.payload.data() + kSizeField, offered}, announced);
    }
    if (!inflated) {
        const qint64 own = MessageHeader::kSize + message.header.length;
        Q_EMIT zDecompressError();
        emptyBuffers({LinkTrouble::Kind::Damaged, {}, {own, 1}, {}});
        return false;
    }
    *data = *std::move(inflated);
    data->append('\0');
    return true;
}

void QLWTCPSocket::breakStream(const char *why)
{
    LinkTrouble trouble;
    trouble.detail = greeting(m_receiveBuffer.held());
    const bool isForeign = !m_isDispatcher && !trouble.detail.isEmpty();
    trouble.kind = isForeign ? LinkTrouble::Kind::Foreign : LinkTrouble::Kind::Broken;
    trouble.received.bytes = m_receiveBuffer.size();
    trouble.unsent = m_sendBuffer.drop();
    m_receiveBuffer.clear();
    report(trouble, why);
    abort();
}

void QLWTCPSocket::emptyBuffers(LinkTrouble trouble)
{
    const Loss received = m_receiveBuffer.drop();
    trouble.received.bytes += received.bytes;
    trouble.received.messages += received.messages;
    trouble.unsent = m_sendBuffer.drop();
    constexpr const char *kWhy[] = {"a message is over 1 MiB", "a compressed message is damaged",
                                    "the queue of what it does not read is full",
                                    "a message to it is over 1 MiB"};
    report(trouble, kWhy[int(trouble.kind)]);
    if (m_receiveBuffer.next() == MessageReader::Next::Broken)
        breakStream("a message has a length that no Dispatcher sends");
}

void QLWTCPSocket::report(const LinkTrouble &trouble, const char *why)
{
    const bool ends = trouble.kind == LinkTrouble::Kind::Broken || trouble.kind == LinkTrouble::Kind::Foreign;
    const QByteArray sent =
        trouble.detail.isEmpty() ? QByteArray() : " (it sent " + trouble.detail.toUtf8() + ')';
    qCWarning(
        lcNet,
        "%s the Dispatcher: %s%s; lost %lld bytes in %d messages from it, %lld bytes in %d messages to it",
        ends ? "Hung up on" : "Lost messages of", why, sent.constData(), trouble.received.bytes,
        trouble.received.messages, trouble.unsent.bytes, trouble.unsent.messages);
    if (m_troubleHandler)
        m_troubleHandler(trouble);
}

void QLWTCPSocket::watchConnection()
{
    if (state() == ConnectedState)
        TcpConnection::SetWatch(socketDescriptor(), kWatch);
}

void QLWTCPSocket::probeConnection()
{
    if (state() != ConnectedState)
        return;
    TcpConnection::SetWatch(socketDescriptor(), kProbe);
    sendMessage(m_heartbeatCommand, {}, 0);
    QTimer::singleShot(2 * kProbe.unanswered, this, &QLWTCPSocket::watchConnection);
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

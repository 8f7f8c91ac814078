#pragma once

#include <net/protocol/messagereader.h>

#include <QtCore/QDateTime>
#include <QtNetwork/QTcpSocket>

#include <functional>

class QTimer;

/// The framed link to the Dispatcher: turns the byte stream into whole messages and back, inflates compressed
/// payloads, and sends a heartbeat after a time of send silence. Knows nothing of what the commands mean.
///
/// Both directions are buffered within limits; what passes a limit empties both buffers, reports it by a signal and
/// leaves the connection open. A stream whose header cannot be believed is aborted. The buffers do not outlive the
/// connection whose bytes they hold.
class QLWTCPSocket final : public QTcpSocket {
    Q_OBJECT

public:
    using Clock = std::function<QDateTime()>;

    /// Reads "network/heartbeat_resolution" from the settings.
    explicit QLWTCPSocket(QObject *parent = nullptr);
    ~QLWTCPSocket() override;

    bool hasMessage() const { return m_receiveBuffer.next() != MessageReader::Next::NeedMore; }

    /// Queues a message and writes what the connection takes now. False when it was refused for overflow.
    bool sendMessage(uint command, const QByteArray &payload, uint param);
    /// Queues a message in front of all that waits: the log-in must be the first on a connection.
    bool sendFirst(uint command, const QByteArray &payload, uint param);
    /// Takes the first message out. `data` becomes the payload and a terminating zero byte, or empty for a message that
    /// delivers none; `param` may be null. False when no whole message is buffered, inflating failed (both buffers are
    /// then empty) or the stream is broken (the connection is then aborted as well).
    bool getMessage(uint *command, QByteArray *data, uint *param);

    void setHeartbeatCommand(uint command) { m_heartbeatCommand = command; }
    void startHeartbeat();
    void stopHeartbeat();
    /// Sets the source of the time for the heartbeat.
    void setClock(Clock clock) { m_clock = std::move(clock); }

    /// Closes the connection and deletes the socket once nothing of it is running any more.
    void retire();

Q_SIGNALS:
    void messageReady();
    void sendBufferOverflow();
    void rcvBufferOverflow();
    void zCompressError();
    void zDecompressError();
    void sendActivity();
    void rcvActivity();

public Q_SLOTS:
    void readReady();
    void writeReady(qint64 lastBytesWritten);
    void checkHeartBeat();

private:
    bool queueMessage(qsizetype position, uint command, const QByteArray &payload, uint param);
    void writeQueued();
    bool inflateMessage(const RawMessage &message, QByteArray *data);
    void breakStream(const char *why);
    void clearBuffers();

    qint64 m_maxReceiveSize;
    qint64 m_maxSendSize;
    MessageReader m_receiveBuffer;
    QByteArray m_sendBuffer;
    QDateTime m_lastActivity;
    QTimer *m_heartbeatTimer = nullptr;
    qint32 m_heartbeatResolution;
    quint32 m_heartbeatCommand = 0;
    Clock m_clock;
    bool m_reading = false;
    bool m_retired = false;
};

#pragma once

#include "linktrouble.h"

#include <net/protocol/messagereader.h>
#include <net/protocol/sendqueue.h>

#include <QtCore/QDateTime>
#include <QtNetwork/QTcpSocket>

#include <chrono>
#include <functional>

class QTimer;

/// The framed link to the Dispatcher: turns the byte stream into whole messages and back, inflates compressed
/// payloads, and sends a heartbeat after a time of send silence. Knows nothing of what the commands mean.
///
/// Both directions are buffered within limits; what passes a limit empties both buffers, reports it by a signal and
/// leaves the connection open. Both directions stay in step: what is still to come of dropped messages is skipped, and a
/// message that has begun to leave leaves whole. A stream whose header cannot be believed is aborted. The buffers do not
/// outlive the connection whose bytes they hold. The farm is on the studio's own network: no proxy is used.
class QLWTCPSocket final : public QTcpSocket {
    Q_OBJECT

public:
    using Clock = std::function<QDateTime()>;
    using TroubleHandler = std::function<void(const LinkTrouble &trouble)>;

    /// Reads "network/heartbeat_resolution" from the settings.
    explicit QLWTCPSocket(QObject *parent = nullptr);
    ~QLWTCPSocket() override;

    bool hasMessage() const { return m_receiveBuffer.next() != MessageReader::Next::NeedMore; }

    /// Queues a message and writes what the connection takes now. Where the queue is full, the connection gets a
    /// second in each turn of the event loop to take some of it. False when it took too little; that empties both buffers,
    /// unless the other end reads and is only slow.
    bool sendMessage(uint command, const QByteArray &payload, uint param);
    /// Queues a message in front of all that waits, however full the queue is: the log-in must be the first on a connection.
    void sendFirst(uint command, const QByteArray &payload, uint param);
    /// Takes the first message out. `data` becomes the payload and a terminating zero byte, or empty for a message that
    /// delivers none; `param` may be null. False when no whole message is buffered, inflating failed (both buffers are
    /// then empty) or the stream is broken (the connection is then aborted as well).
    bool getMessage(uint *command, QByteArray *data, uint *param);

    void setHeartbeatCommand(uint command) { m_heartbeatCommand = command; }
    void startHeartbeat();
    void stopHeartbeat();
    /// Has the system notice within two minutes that the other end is gone.
    void watchConnection();
    /// Has it notice within 20 seconds, once: the link may have died while the machine slept.
    void probeConnection();
    /// Sets the source of the time for the heartbeat.
    void setClock(Clock clock) { m_clock = std::move(clock); }
    /// Sets who hears of what was lost; the log hears of it in any case.
    void setTroubleHandler(TroubleHandler handler) { m_troubleHandler = std::move(handler); }

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
    void sendQueued();
    bool fits(qsizetype messageSize) const;
    bool makeRoom(qsizetype messageSize);
    /// Waits until the connection takes more; false when it does not in what is left of the time for that.
    bool awaitRoom();
    void writeQueued();
    bool inflateMessage(const RawMessage &message, QByteArray *data);
    void breakStream(const char *why);
    void emptyBuffers(LinkTrouble trouble);
    void report(const LinkTrouble &trouble, const char *why);

    qint64 m_maxReceiveSize;
    qint64 m_maxSendSize;
    MessageReader m_receiveBuffer;
    SendQueue m_sendBuffer;
    QDateTime m_lastActivity;
    QTimer *m_heartbeatTimer = nullptr;
    qint32 m_heartbeatResolution;
    quint32 m_heartbeatCommand = 0;
    Clock m_clock;
    TroubleHandler m_troubleHandler;
    bool m_isDispatcher = false; // a whole message came over this connection
    bool m_isStalled = false; // the other end does not read; not waited for again until it does
    std::chrono::milliseconds m_patience; // left in this turn of the event loop
    bool m_reading = false;
    bool m_retired = false;
};

#pragma once

#include <net/protocol/messagereader.h>

#include <QtCore/QList>
#include <QtCore/QTimer>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QTest>

#include <algorithm>

/// Heartbeat timers below an object.
inline qsizetype heartbeatTimers(const QObject &owner)
{
    const QList<QTimer *> timers = owner.findChildren<QTimer *>();
    return std::count_if(timers.begin(), timers.end(),
                         [](const QTimer *timer) { return timer->interval() == 5000; });
}

/// The Dispatcher's end of a link over the loopback interface: takes one connection after the other, collects the
/// messages it receives and sends what it is told to.
class LoopbackPeer final : public QObject {
public:
    struct Received {
        quint32 command = 0;
        QByteArray payload;
    };

    explicit LoopbackPeer(quint16 port = 0)
    {
        m_listening = m_server.listen(QHostAddress::LocalHost, port);
        connect(&m_server, &QTcpServer::newConnection, this, [this] { accept(); });
    }

    bool listening() const { return m_listening; }
    quint16 port() const { return m_server.serverPort(); }
    QTcpSocket *link() const { return m_link; }
    int connections() const { return m_connections; }
    const QList<Received> &received() const { return m_received; }
    qint64 bytesReceived() const { return m_bytesReceived; }

    void send(const QByteArray &bytes)
    {
        QVERIFY(m_link);
        m_link->write(bytes);
        m_link->flush();
    }
    /// Stops to read, so that the client's writes pile up.
    void stopReading()
    {
        m_link->disconnect(this);
        m_link->setReadBufferSize(1);
    }
    void resumeReading()
    {
        m_link->setReadBufferSize(0);
        connect(m_link, &QIODevice::readyRead, this, [this] { read(); });
        read();
    }
    /// Refuses connections, or takes them again.
    void listen(bool listens)
    {
        const quint16 port = m_server.serverPort();
        m_port = port ? port : m_port;
        m_server.close();
        QVERIFY(!listens || m_server.listen(QHostAddress::LocalHost, m_port));
    }
    void dropLink() { m_link->abort(); }

private:
    void accept()
    {
        m_link = m_server.nextPendingConnection();
        ++m_connections;
        m_reader.clear();
        connect(m_link, &QIODevice::readyRead, this, [this] { read(); });
    }

    void read()
    {
        const QByteArray bytes = m_link->readAll();
        m_bytesReceived += bytes.size();
        m_reader.append(bytes);
        RawMessage message;
        while (m_reader.take(message) == MessageReader::Next::Message)
            m_received.append({message.header.command, message.payload.toByteArray()});
    }

    QTcpServer m_server;
    QTcpSocket *m_link = nullptr;
    MessageReader m_reader;
    QList<Received> m_received;
    qint64 m_bytesReceived = 0;
    quint16 m_port = 0;
    int m_connections = 0;
    bool m_listening = false;
};

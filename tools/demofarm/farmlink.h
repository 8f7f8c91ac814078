#pragma once

#include <net/protocol/messagereader.h>

#include <QtCore/QObject>

class QTcpSocket;

/// The farm's end of one client's connection: reads and logs what the client sends, and writes messages at the pace at
/// which the client takes them. Owns the socket. Emits gone() once, when the connection is closed.
class FarmLink final : public QObject {
    Q_OBJECT
public:
    /// fragmentSize: bytes written at a time, 0 for whole messages.
    FarmLink(int number, QTcpSocket *socket, int fragmentSize, QObject *parent);

    int number() const { return m_number; }
    /// True once the client is admitted: events are for listeners.
    bool isListening() const { return m_listening; }
    /// False while so much is unsent that more would only pile up, or while the client has yet to hang up.
    bool isReady() const;
    /// True when the system took every byte.
    bool isIdle() const;

    void admit() { m_listening = true; }
    void send(const QByteArray &bytes);
    void sendEvent(const QByteArray &message);
    /// Sends bytes on which the client is to hang up; one that does not is hung up on after a while.
    void sendBroken(const QByteArray &bytes);
    /// Sends what is unsent, then closes.
    void hangUp();

Q_SIGNALS:
    void loggedIn();
    /// The client took something.
    void progressed();
    void gone();

private:
    void readMessages();
    void logMessage(const RawMessage &message);
    void logIn(QByteArrayView payload);
    void writeMore();
    void log(const QString &text) const;

    const int m_number;
    QTcpSocket *const m_socket;
    const int m_fragmentSize;
    MessageReader m_reader;
    QByteArray m_unsent;
    qsizetype m_sent = 0; // bytes of m_unsent that are written
    int m_events = 0;
    bool m_listening = false;
    bool m_broken = false;
    bool m_closing = false;
};

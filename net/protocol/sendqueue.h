#pragma once

#include "loss.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

/// Whole messages on their way out. It knows which of them has begun to leave and never cuts that one.
class SendQueue final {
public:
    void reserve(qsizetype bytes) { m_bytes.reserve(bytes); }

    bool isEmpty() const { return m_bytes.isEmpty(); }
    /// Bytes that wait.
    qsizetype size() const { return m_bytes.size(); }
    QByteArrayView bytes() const { return m_bytes; }

    /// Adds an encoded message behind all others.
    void append(const QByteArray &message) { m_bytes.append(message); }
    /// Adds one in front of all that have not begun to leave.
    void prepend(const QByteArray &message) { m_bytes.insert(m_begun, message); }
    /// The connection took so many bytes from the front.
    void remove(qsizetype bytes);
    /// Forgets the messages that have not begun to leave.
    Loss drop();
    /// Forgets all bytes: their connection is gone.
    void clear();

private:
    qsizetype messageSize(qsizetype at) const;

    QByteArray m_bytes;
    qsizetype m_begun = 0; // bytes in front, the rest of a message that has begun to leave
};

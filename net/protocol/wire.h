#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QtEndian>

/// The 13 bytes in front of every payload, little-endian on the wire:
/// type (1 byte), length (4, signed), param (4), command (4).
struct MessageHeader {
    static constexpr qsizetype kSize = 13;
    enum Type : quint8 { NoPayload = 0, Plain = 1, Compressed = 2 };

    quint8 type = NoPayload;
    qint32 length = 0;
    quint32 param = 0;
    quint32 command = 0;

    /// The values of the kSize bytes at `bytes`, as they are.
    static MessageHeader decode(const char *bytes)
    {
        return {quint8(bytes[0]), qFromLittleEndian<qint32>(bytes + 1), qFromLittleEndian<quint32>(bytes + 5),
                qFromLittleEndian<quint32>(bytes + 9)};
    }
    void appendTo(QByteArray &bytes) const;
};

/// A whole message as the client sends it: type 0, the payload in plain form.
QByteArray encodeMessage(quint32 command, QByteArrayView payload, quint32 param = 0);
/// A whole message of another type as a Dispatcher sends it; a compressed payload is deflated here, behind its size.
QByteArray encodeMessage(MessageHeader::Type type, quint32 command, QByteArrayView payload,
                         quint32 param = 0);

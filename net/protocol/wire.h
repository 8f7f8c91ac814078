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

    /// Reads the kSize bytes at `bytes` and judges none of them.
    static MessageHeader decode(const char *bytes)
    {
        return {quint8(bytes[0]), qFromLittleEndian<qint32>(bytes + 1), qFromLittleEndian<quint32>(bytes + 5),
                qFromLittleEndian<quint32>(bytes + 9)};
    }
    void appendTo(QByteArray &bytes) const;
};

/// Encodes a whole message as the client sends it: type 0, the payload in plain form.
QByteArray encodeMessage(quint32 command, QByteArrayView payload, quint32 param = 0);
/// Encodes a whole message of another type as a Dispatcher sends it; deflates a compressed payload, behind its size.
QByteArray encodeMessage(MessageHeader::Type type, quint32 command, QByteArrayView payload,
                         quint32 param = 0);

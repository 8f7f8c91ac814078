#include "wire.h"

#include <limits>

#include <zlib.h>

namespace {

void appendLittleEndian(QByteArray &bytes, quint32 value)
{
    const quint32 wire = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char *>(&wire), sizeof wire);
}

QByteArray encodeWirePayload(MessageHeader::Type type, quint32 command, QByteArrayView wire, quint32 param)
{
    Q_ASSERT(wire.size() <= std::numeric_limits<qint32>::max());
    QByteArray message;
    message.reserve(MessageHeader::kSize + wire.size());
    MessageHeader{type, qint32(wire.size()), param, command}.appendTo(message);
    message.append(wire);
    return message;
}

QByteArray deflated(QByteArrayView payload)
{
    QByteArray wire;
    appendLittleEndian(wire, quint32(payload.size()));
    const qsizetype sizeField = wire.size();
    uLongf size = compressBound(uLong(payload.size()));
    wire.resize(sizeField + qsizetype(size));
    compress(reinterpret_cast<Bytef *>(wire.data() + sizeField), &size,
             reinterpret_cast<const Bytef *>(payload.data()), uLong(payload.size()));
    wire.resize(sizeField + qsizetype(size));
    return wire;
}

} // namespace

void MessageHeader::appendTo(QByteArray &bytes) const
{
    bytes.append(char(type));
    appendLittleEndian(bytes, quint32(length));
    appendLittleEndian(bytes, param);
    appendLittleEndian(bytes, command);
}

QByteArray encodeMessage(quint32 command, QByteArrayView payload, quint32 param)
{
    return encodeWirePayload(MessageHeader::NoPayload, command, payload, param);
}

QByteArray encodeMessage(MessageHeader::Type type, quint32 command, QByteArrayView payload, quint32 param)
{
    if (type == MessageHeader::Compressed)
        return encodeWirePayload(type, command, deflated(payload), param);
    return encodeWirePayload(type, command, payload, param);
}

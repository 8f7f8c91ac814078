#pragma once

#include "wire.h"

/// One message as it stands on the wire. The views look into the reader that gave the message and hold until it is
/// appended to or cleared.
struct RawMessage {
    MessageHeader header;
    QByteArrayView payload; ///< header.length bytes
    QByteArrayView beyond; ///< what is buffered behind the message
};

/// Takes whole messages out of a byte stream; knows no socket and no command.
/// A message that cannot be believed (negative length) breaks the stream until it is cleared.
class MessageReader final {
public:
    enum class Next { NeedMore, Message, Broken };

    void reserve(qsizetype bytes) { m_bytes.reserve(bytes); }

    /// Bytes held and not yet taken out as messages.
    qsizetype size() const { return m_held - m_taken; }
    /// Tells what take() would find.
    Next next() const;

    /// Adds bytes in the order received, in pieces of any size.
    void append(QByteArrayView bytes);
    /// Gives room in which to write the next bytes, without the copy of append().
    char *room(qsizetype bytes);
    /// Takes over as many bytes as were written to the room.
    void commit(qsizetype bytes) { m_held += bytes; }
    /// Takes the first message out; `message` is set when the result is Message.
    Next take(RawMessage &message);
    /// Forgets all bytes; the memory stays reserved.
    void clear();

private:
    // The payload of what is buffered is there whole, or the header cannot be believed.
    Next judge(const MessageHeader &header) const
    {
        if (header.length < 0)
            return Next::Broken;
        return size() - MessageHeader::kSize >= header.length ? Next::Message : Next::NeedMore;
    }

    QByteArray m_bytes; // only grows
    qsizetype m_held = 0; // bytes of it that were received
    qsizetype m_taken = 0; // of these, what belongs to messages taken out
};

inline MessageReader::Next MessageReader::next() const
{
    return size() < MessageHeader::kSize ? Next::NeedMore
                                         : judge(MessageHeader::decode(m_bytes.constData() + m_taken));
}

inline MessageReader::Next MessageReader::take(RawMessage &message)
{
    if (size() < MessageHeader::kSize)
        return Next::NeedMore;
    const char *at = m_bytes.constData() + m_taken;
    const MessageHeader header = MessageHeader::decode(at);
    const Next result = judge(header);
    if (result == Next::Message) {
        message.header = header;
        message.payload = QByteArrayView(at + MessageHeader::kSize, header.length);
        m_taken += MessageHeader::kSize + header.length;
        message.beyond = QByteArrayView(m_bytes.constData() + m_taken, size());
    }
    return result;
}

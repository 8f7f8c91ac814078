#pragma once

#include "loss.h"
#include "wire.h"

/// One message as it stands on the wire. The views look into the reader that gave the message and hold until it is
/// appended to or cleared.
struct RawMessage {
    MessageHeader header;
    QByteArrayView payload; ///< header.length bytes
    QByteArrayView beyond; ///< what is buffered behind the message
};

/// Takes whole messages out of a byte stream; knows no socket and no command.
/// A message that cannot be believed (of negative length or over kLongestMessage) breaks the stream until it is cleared.
class MessageReader final {
public:
    enum class Next { NeedMore, Message, Broken };
    /// Bytes of payload that a header may announce: no Dispatcher sends half as many, and text read for a header
    /// announces more.
    static constexpr qint32 kLongestMessage = 64 * 1024 * 1024;

    void reserve(qsizetype bytes) { m_bytes.reserve(bytes); }

    /// Bytes held and not yet taken out as messages.
    qsizetype size() const { return m_held - m_taken; }
    /// Tells what take() would find.
    Next next() const;
    /// What is held: the first message, whole or not, and those behind it.
    QByteArrayView held() const { return QByteArrayView(m_bytes).sliced(m_taken, size()); }

    /// Adds bytes in the order received, in pieces of any size.
    void append(QByteArrayView bytes);
    /// Gives room in which to write the next bytes, without the copy of append().
    char *room(qsizetype bytes);
    /// Takes over as many bytes as were written to the room.
    void commit(qsizetype bytes);
    /// Takes the first message out; `message` is set when the result is Message.
    Next take(RawMessage &message);
    /// Drops every message of which a byte is held and stays in step with the stream: skips what is still to come of them.
    Loss drop();
    /// Forgets all bytes, for another stream; the memory stays reserved.
    void clear();

private:
    static bool isBelievable(const MessageHeader &header)
    {
        return quint32(header.length) <= quint32(kLongestMessage);
    }
    // The payload of what is buffered is there whole, or the header cannot be believed.
    Next judge(const MessageHeader &header) const
    {
        if (!isBelievable(header))
            return Next::Broken;
        return size() - MessageHeader::kSize >= header.length ? Next::Message : Next::NeedMore;
    }
    void skipDropped();

    QByteArray m_bytes; // only grows
    qsizetype m_held = 0; // bytes of it that were received
    qsizetype m_taken = 0; // of these, what belongs to messages taken out
    qsizetype m_toSkip = 0; // bytes of dropped messages that are still to come
    bool m_headCut = false; // what is held begins a dropped message whose length is still to come
};

inline MessageReader::Next MessageReader::next() const
{
    return size() < MessageHeader::kSize ? Next::NeedMore
                                         : judge(MessageHeader::decode(m_bytes.constData() + m_taken));
}

inline void MessageReader::commit(qsizetype bytes)
{
    m_held += bytes;
    if (m_toSkip > 0 || m_headCut)
        skipDropped();
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

#pragma once

#include "frames.h"

/// One frame as it stands on the wire. The views look into the reader that gave the frame and hold until it is
/// appended to or cleared.
struct RawFrame {
    FrameHeader header;
    QByteArrayView payload; ///< header.length bytes
    QByteArrayView beyond; ///< what is buffered behind the frame
};

/// Takes whole frames out of a byte stream; knows no socket and no command.
/// A frame that cannot be believed (negative length) breaks the stream until it is cleared.
class FrameReader final {
public:
    enum class Next { NeedMore, Frame, Broken };

    void reserve(qsizetype bytes) { m_bytes.reserve(bytes); }

    /// Bytes held and not yet taken out as frames.
    qsizetype size() const { return m_held - m_taken; }
    /// What take() would find.
    Next next() const;

    /// Bytes in the order received, in pieces of any size.
    void append(QByteArrayView bytes);
    /// The same without a copy: where the next bytes are to be written, as many as asked for at most, and how many were.
    char *room(qsizetype bytes);
    void commit(qsizetype bytes) { m_held += bytes; }
    /// Takes the first frame out; `frame` is set when the result is Frame.
    Next take(RawFrame &frame);
    /// Forgets all bytes; the memory stays reserved.
    void clear();

private:
    // The payload of what is buffered is there whole, or the header cannot be believed.
    Next judge(const FrameHeader &header) const
    {
        if (header.length < 0)
            return Next::Broken;
        return size() - FrameHeader::kSize >= header.length ? Next::Frame : Next::NeedMore;
    }

    QByteArray m_bytes; // only grows
    qsizetype m_held = 0; // bytes of it that were received
    qsizetype m_taken = 0; // of these, what belongs to frames taken out
};

inline FrameReader::Next FrameReader::next() const
{
    return size() < FrameHeader::kSize ? Next::NeedMore
                                       : judge(FrameHeader::decode(m_bytes.constData() + m_taken));
}

inline FrameReader::Next FrameReader::take(RawFrame &frame)
{
    if (size() < FrameHeader::kSize)
        return Next::NeedMore;
    const char *at = m_bytes.constData() + m_taken;
    const FrameHeader header = FrameHeader::decode(at);
    const Next result = judge(header);
    if (result == Next::Frame) {
        frame.header = header;
        frame.payload = QByteArrayView(at + FrameHeader::kSize, header.length);
        m_taken += FrameHeader::kSize + header.length;
        frame.beyond = QByteArrayView(m_bytes.constData() + m_taken, size());
    }
    return result;
}

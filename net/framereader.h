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
    qsizetype size() const { return m_bytes.size() - m_taken; }
    /// What take() would find.
    Next next() const;

    /// Bytes in the order received, in pieces of any size.
    void append(QByteArrayView bytes);
    /// Takes the first frame out; `frame` is set when the result is Frame.
    Next take(RawFrame &frame);
    /// Forgets all bytes; the memory stays reserved.
    void clear();

private:
    QByteArrayView pending() const { return QByteArrayView{m_bytes}.sliced(m_taken); }

    QByteArray m_bytes;
    qsizetype m_taken = 0; // bytes at the front that belong to frames taken out
};

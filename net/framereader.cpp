#include "framereader.h"

FrameReader::Next FrameReader::next() const
{
    const std::optional<FrameHeader> header = FrameHeader::decode(pending());
    if (!header)
        return Next::NeedMore;
    if (header->length < 0)
        return Next::Broken;
    return size() - FrameHeader::kSize >= header->length ? Next::Frame : Next::NeedMore;
}

void FrameReader::append(QByteArrayView bytes)
{
    // Moving the rest to the front once per piece keeps a drain linear in its bytes.
    if (m_taken > 0) {
        m_bytes.remove(0, m_taken);
        m_taken = 0;
    }
    m_bytes.append(bytes);
}

FrameReader::Next FrameReader::take(RawFrame &frame)
{
    const Next result = next();
    if (result == Next::Frame) {
        const QByteArrayView bytes = pending();
        frame.header = *FrameHeader::decode(bytes);
        frame.payload = bytes.sliced(FrameHeader::kSize, frame.header.length);
        frame.beyond = bytes.sliced(FrameHeader::kSize + frame.header.length);
        m_taken += FrameHeader::kSize + frame.header.length;
    }
    return result;
}

void FrameReader::clear()
{
    m_bytes.resize(0);
    m_taken = 0;
}

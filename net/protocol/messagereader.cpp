#include "messagereader.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr qsizetype kAlignment = 64; // a line of the processor's cache

} // namespace

void MessageReader::append(QByteArrayView bytes)
{
    if (bytes.isEmpty())
        return;
    std::memcpy(room(bytes.size()), bytes.data(), std::size_t(bytes.size()));
    commit(bytes.size());
}

char *MessageReader::room(qsizetype bytes)
{
    // Moving the rest to the front once per piece keeps a drain linear in its bytes and the buffer in the cache. A gap
    // before it aligns what follows: large copies run at full speed to an aligned address alone.
    if (m_taken >= kAlignment) {
        const qsizetype rest = size();
        const auto end = qsizetype(quintptr(m_bytes.constData() + rest) % kAlignment);
        const qsizetype gap = (kAlignment - end) % kAlignment;
        std::memmove(m_bytes.data() + gap, m_bytes.constData() + m_taken, std::size_t(rest));
        m_taken = gap;
        m_held = gap + rest;
    }
    if (m_bytes.size() < m_held + bytes)
        m_bytes.resize(m_held + bytes);
    return m_bytes.data() + m_held;
}

Loss MessageReader::drop()
{
    Loss loss;
    while (size() >= MessageHeader::kSize) {
        const MessageHeader header = MessageHeader::decode(m_bytes.constData() + m_taken);
        if (!isBelievable(header))
            return loss;
        const qsizetype length = MessageHeader::kSize + header.length;
        loss.bytes += length;
        ++loss.messages;
        const qsizetype here = std::min(length, size());
        m_taken += here;
        m_toSkip = length - here;
    }
    if (size() > 0 && !m_headCut) {
        m_headCut = true;
        loss.bytes += size();
        ++loss.messages;
    }
    return loss;
}

void MessageReader::skipDropped()
{
    if (m_headCut && size() >= MessageHeader::kSize) {
        m_headCut = false;
        const MessageHeader header = MessageHeader::decode(m_bytes.constData() + m_taken);
        if (!isBelievable(header))
            return;
        m_toSkip = MessageHeader::kSize + header.length;
    }
    const qsizetype here = std::min(m_toSkip, size());
    m_taken += here;
    m_toSkip -= here;
}

void MessageReader::clear()
{
    m_held = 0;
    m_taken = 0;
    m_toSkip = 0;
    m_headCut = false;
}

#include "messagereader.h"

#include <cstring>

namespace {

constexpr qsizetype kAlignment = 64; // a line of the processor's cache

} // namespace

void MessageReader::append(QByteArrayView bytes)
{
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

void MessageReader::clear()
{
    m_held = 0;
    m_taken = 0;
}

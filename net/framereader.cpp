#include "framereader.h"

#include <cstring>

void FrameReader::append(QByteArrayView bytes)
{
    std::memcpy(room(bytes.size()), bytes.data(), std::size_t(bytes.size()));
    commit(bytes.size());
}

char *FrameReader::room(qsizetype bytes)
{
    // Moving the rest to the front once per piece keeps a drain linear in its bytes and the buffer in the cache.
    if (m_taken > 0) {
        m_held = size();
        std::memmove(m_bytes.data(), m_bytes.constData() + m_taken, std::size_t(m_held));
        m_taken = 0;
    }
    if (m_bytes.size() < m_held + bytes)
        m_bytes.resize(m_held + bytes);
    return m_bytes.data() + m_held;
}

void FrameReader::clear()
{
    m_held = 0;
    m_taken = 0;
}

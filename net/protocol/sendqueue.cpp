#include "sendqueue.h"

#include "wire.h"

qsizetype SendQueue::messageSize(qsizetype at) const
{
    return MessageHeader::kSize + MessageHeader::decode(m_bytes.constData() + at).length;
}

void SendQueue::remove(qsizetype bytes)
{
    qsizetype end = m_begun;
    while (end < bytes)
        end += messageSize(end);
    m_begun = end - bytes;
    m_bytes.remove(0, bytes);
}

Loss SendQueue::drop()
{
    Loss loss;
    loss.bytes = m_bytes.size() - m_begun;
    for (qsizetype at = m_begun; at < m_bytes.size(); at += messageSize(at))
        ++loss.messages;
    m_bytes.truncate(m_begun);
    return loss;
}

void SendQueue::clear()
{
    m_bytes.resize(0);
    m_begun = 0;
}

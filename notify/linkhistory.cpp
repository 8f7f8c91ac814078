#include "linkhistory.h"

#include "linkwords.h"

namespace {

constexpr qsizetype kMostLines = 20;

} // namespace

void LinkHistory::add(const QString &line)
{
    m_lines += line;
    if (m_lines.size() > kMostLines)
        m_lines.removeFirst();
}

void LinkHistory::follow(LinkReport::State state, const QDateTime &now)
{
    const bool isUp = state == LinkReport::State::Connected;
    if (isUp == m_upSince.isValid())
        return;
    m_upSince = isUp ? now : QDateTime();
    if (!isUp && m_wasUp && !m_downSince.isValid())
        m_downSince = now;
}

void LinkHistory::settle()
{
    if (!m_upSince.isValid())
        return;
    if (m_downSince.isValid())
        add(LinkWords::outage(m_downSince, m_upSince));
    m_downSince = {};
    m_wasUp = true;
}

void LinkHistory::forgetLink()
{
    m_downSince = {};
    m_upSince = {};
    m_wasUp = false;
}

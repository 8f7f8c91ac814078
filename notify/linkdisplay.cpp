#include "linkdisplay.h"

#include "emptylist.h"
#include "linkwords.h"
#include "statusline.h"
#include "tray.h"

#include <net/dispatchersession.h>

LinkDisplay::LinkDisplay(const DispatcherSession &session, const Places &places, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_places(places)
{
    connect(&session, &DispatcherSession::reportChanged, this, &LinkDisplay::show);
    connect(&session, &DispatcherSession::troubled, this, &LinkDisplay::noteTrouble);
    show();
}

void LinkDisplay::setConfigured(bool configured)
{
    m_isConfigured = configured;
    show();
}

void LinkDisplay::attempt(std::chrono::milliseconds next)
{
    m_nextAttempt = QDateTime::currentDateTime().addDuration(next);
    m_history.settle();
    m_places.status.showHistory(m_history);
}

void LinkDisplay::show()
{
    const LinkReport &report = m_session.report();
    const QString words = LinkWords::state(report, m_nextAttempt);
    m_history.follow(report.state, QDateTime::currentDateTime());
    m_places.tray.explain(report.state, words);
    m_places.status.showState(report, m_places.tray.stateIcon(report.state), words, m_isConfigured);
    m_places.emptyList.offerConfiguring(report.state != LinkReport::State::Connected);
}

void LinkDisplay::noteTrouble(const LinkTrouble &trouble)
{
    if (const QString line = LinkWords::loss(trouble, QDateTime::currentDateTime()); !line.isEmpty())
        m_history.add(line);
    m_places.status.showHistory(m_history);
}

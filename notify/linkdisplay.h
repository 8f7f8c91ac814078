#pragma once

#include "linkhistory.h"

#include <QtCore/QObject>

#include <chrono>

class DispatcherSession;
class EmptyList;
struct LinkTrouble;
class StatusLine;
class Tray;

/// Tells the user of the link wherever it is told of: in the tray's hint, below the list and in a list without events.
/// Outlived by all that it is given.
class LinkDisplay final : public QObject {
    Q_OBJECT

public:
    struct Places {
        Tray &tray;
        StatusLine &status;
        EmptyList &emptyList;
    };

    LinkDisplay(const DispatcherSession &session, const Places &places, QObject *parent);

    /// Whether there is a server to connect to.
    void setConfigured(bool configured);
    /// It is time for another attempt where there is no link; the next time is `next` from now.
    void attempt(std::chrono::milliseconds next);
    /// Another server's link is a new one: the time between is no outage.
    void forgetLink() { m_history.forgetLink(); }

private:
    void show();
    void noteTrouble(const LinkTrouble &trouble);

    const DispatcherSession &m_session;
    Places m_places;
    LinkHistory m_history;
    QDateTime m_nextAttempt;
    bool m_isConfigured = true;
};

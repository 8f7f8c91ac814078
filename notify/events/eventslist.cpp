#include "eventslist.h"

#include "notifyevent.h"

#include <algorithm>

EventsList::EventsList(QObject *parent)
    : QObject(parent)
{ }

EventsList::~EventsList() = default;

int EventsList::rowFrom(quint64 eventId) const
{
    const auto at = std::lower_bound(m_events.begin(), m_events.end(), eventId,
                                     [](const auto &event, quint64 id) { return event->eventId < id; });
    return int(at - m_events.begin());
}

const NotifyEvent *EventsList::find(quint64 eventId) const
{
    const int row = rowFrom(eventId);
    return row < size() && at(row).eventId == eventId ? &at(row) : nullptr;
}

QList<const NotifyEvent *> EventsList::find(const QList<quint64> &eventIds) const
{
    QList<const NotifyEvent *> events;
    for (const quint64 id : eventIds) {
        if (const NotifyEvent *event = find(id))
            events += event;
    }
    return events;
}

PendingLevel EventsList::pendingLevel() const
{
    for (const PendingLevel level : {ErrorPending, WarningPending, SuccessPending, OtherPending}) {
        if (m_pending[level] > 0)
            return level;
    }
    return NothingPending;
}

bool EventsList::append(std::unique_ptr<NotifyEvent> event)
{
    if (!m_events.empty() && event->eventId <= m_events.back()->eventId)
        return false;
    Q_EMIT aboutToAppend(*event);
    if (!event->acknowledged) {
        ++m_unacknowledged;
        ++m_pending[pendingLevelOf(*event)];
    }
    m_events.push_back(std::move(event));
    Q_EMIT appended();
    return true;
}

void EventsList::acknowledge(NotifyEvent &event)
{
    forget(event);
    event.acknowledged = true;
    event.lingers = false;
}

void EventsList::forget(const NotifyEvent &event)
{
    if (event.lingers)
        --m_lingering[pendingLevelOf(event)];
    if (event.acknowledged)
        return;
    --m_unacknowledged;
    --m_pending[pendingLevelOf(event)];
}

void EventsList::ackEvent(quint64 eventId)
{
    const int row = rowFrom(eventId);
    if (row == size() || at(row).eventId != eventId)
        return;
    acknowledge(*m_events[std::size_t(row)]);
    Q_EMIT acknowledged(row, row);
}

void EventsList::ackAll()
{
    if (m_events.empty())
        return;
    for (const auto &event : m_events)
        acknowledge(*event);
    Q_EMIT acknowledged(0, size() - 1);
}

void EventsList::ackAllAtSight()
{
    if (m_events.empty())
        return;
    for (const auto &event : m_events) {
        if (event->acknowledged)
            continue;
        acknowledge(*event);
        event->lingers = true;
        ++m_lingering[pendingLevelOf(*event)];
    }
    Q_EMIT acknowledged(0, size() - 1);
}

void EventsList::settle()
{
    if (m_lingering == Counts{})
        return;
    for (const auto &event : m_events)
        event->lingers = false;
    m_lingering = {};
    Q_EMIT acknowledged(0, size() - 1);
}

void EventsList::removeEvents(QList<quint64> eventIds)
{
    std::sort(eventIds.begin(), eventIds.end());
    const auto goes = [&eventIds](const auto &event) {
        return std::binary_search(eventIds.cbegin(), eventIds.cend(), event->eventId);
    };
    if (std::none_of(m_events.begin(), m_events.end(), goes))
        return;
    Q_EMIT aboutToRebuild();
    std::erase_if(m_events, [&](const auto &event) {
        const bool erased = goes(event);
        if (erased)
            forget(*event);
        return erased;
    });
    Q_EMIT rebuilt();
}

void EventsList::removeAll()
{
    if (m_events.empty())
        return;
    Q_EMIT aboutToRebuild();
    m_events.clear();
    m_events.shrink_to_fit();
    m_pending = {};
    m_lingering = {};
    m_unacknowledged = 0;
    Q_EMIT rebuilt();
}

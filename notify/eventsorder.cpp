#include "eventsorder.h"

#include <notify/events/eventslist.h>
#include <notify/events/notifyevent.h>

#include <algorithm>
#include <utility>

EventsOrder::EventsOrder(const EventsList &events, KeyOf keyOf)
    : m_events(events)
    , m_keyOf(std::move(keyOf))
{ }

int EventsOrder::size() const
{
    return isPlain() ? m_events.size() : int(m_rows.size());
}

int EventsOrder::rowFrom(int place) const
{
    if (isPlain() || place >= m_events.size())
        return std::min(place, size());
    return sortedRow(place);
}

int EventsOrder::sortedRow(int place) const
{
    const auto before = [this](int row, int wanted) { return isBefore(row, wanted); };
    return int(std::lower_bound(m_rows.begin(), m_rows.end(), place, before) - m_rows.begin());
}

void EventsOrder::sort(int column, Qt::SortOrder direction)
{
    m_column = column;
    m_direction = direction;
    rebuild();
}

void EventsOrder::filter(PendingLevel level)
{
    m_level = level;
    rebuild();
}

bool EventsOrder::shows(const NotifyEvent &event) const
{
    return m_level == NothingPending || (event.standsOut() && pendingLevelOf(event) == m_level);
}

bool EventsOrder::isBefore(int place, int other) const
{
    if (m_column < 0)
        return place < other;
    const Key &a = m_keys[std::size_t(place)];
    const Key &b = m_keys[std::size_t(other)];
    const int difference =
        a.number == b.number ? a.text.compare(b.text, Qt::CaseInsensitive) : (a.number < b.number ? -1 : 1);
    if (difference == 0)
        return place < other;
    return (difference < 0) == (m_direction == Qt::AscendingOrder);
}

void EventsOrder::rebuild()
{
    m_rows.clear();
    m_keys.clear();
    if (isPlain()) {
        m_rows.shrink_to_fit();
        m_keys.shrink_to_fit();
        return;
    }
    for (int place = 0; place < m_events.size(); ++place) {
        const NotifyEvent &event = m_events.at(place);
        if (m_column >= 0)
            m_keys.push_back(m_keyOf(event, m_column));
        if (shows(event))
            m_rows.push_back(place);
    }
    if (m_column >= 0)
        std::sort(m_rows.begin(), m_rows.end(), [this](int a, int b) { return isBefore(a, b); });
}

std::optional<int> EventsOrder::rowOfNext(const NotifyEvent &event)
{
    const int place = m_events.size();
    if (m_column >= 0)
        m_keys.push_back(m_keyOf(event, m_column));
    if (!shows(event))
        return {};
    return m_column < 0 ? size() : sortedRow(place);
}

void EventsOrder::insert(int row)
{
    // In the order of arrival the list itself has grown by then.
    if (!isPlain())
        m_rows.insert(m_rows.begin() + row, m_events.size() - 1);
}

#pragma once

#include <notify/events/eventkind.h>

#include <QtCore/QString>

#include <functional>
#include <optional>
#include <vector>

class EventsList;
class NotifyEvent;

/// Which events of a list show, and in what order: all of them as they came, unless they are sorted by a column or those
/// of one level alone are wanted. One more event costs no more in a long list. The list must outlive this.
class EventsOrder final {
public:
    /// What a cell is sorted by: the number, then the text.
    struct Key {
        qint64 number = 0;
        QString text;
    };
    using KeyOf = std::function<Key(const NotifyEvent &event, int column)>;

    EventsOrder(const EventsList &events, KeyOf keyOf);

    int column() const { return m_column; }
    Qt::SortOrder direction() const { return m_direction; }
    PendingLevel level() const { return m_level; }

    int size() const;
    /// Place in the list of the event in this row.
    int placeOf(int row) const { return isPlain() ? row : m_rows[std::size_t(row)]; }
    /// First row whose event is the one of that place or comes behind it; size() when there is none.
    int rowFrom(int place) const;

    /// Sorts by a column, or by none (-1). What is equal stays as it came.
    void sort(int column, Qt::SortOrder direction);
    /// Shows what stands out at that level alone, or all (NothingPending). What is acknowledged from then on stays.
    void filter(PendingLevel level);
    /// Takes in that events have gone.
    void rebuild();
    /// Row of an event that is about to be appended to the list; none where it does not show.
    std::optional<int> rowOfNext(const NotifyEvent &event);
    /// Takes it in, at that row.
    void insert(int row);

private:
    bool isPlain() const { return m_column < 0 && m_level == NothingPending; }
    bool shows(const NotifyEvent &event) const;
    bool isBefore(int place, int other) const;
    int sortedRow(int place) const;

    const EventsList &m_events;
    KeyOf m_keyOf;
    int m_column = -1;
    Qt::SortOrder m_direction = Qt::AscendingOrder;
    PendingLevel m_level = NothingPending;
    std::vector<int> m_rows; // places by row, unless plain
    std::vector<Key> m_keys; // by place, while sorted: what changes later does not move its row
};

#pragma once

#include "eventkind.h"

#include <QtCore/QList>
#include <QtCore/QObject>

#include <array>
#include <memory>
#include <vector>

class NotifyEvent;

/// The events that are kept, oldest first, with what is pending among them. Owns its events; has no cap.
/// The ids of the events rise with their rows.
class EventsList final : public QObject {
    Q_OBJECT

public:
    explicit EventsList(QObject *parent = nullptr);
    ~EventsList() override;

    int size() const { return int(m_events.size()); }
    const NotifyEvent &at(int row) const { return *m_events[std::size_t(row)]; }
    /// Finds the event of the id; null when there is none.
    const NotifyEvent *find(quint64 eventId) const;
    /// Finds the events of those ids that the list holds, in the order of the ids.
    QList<const NotifyEvent *> find(const QList<quint64> &eventIds) const;
    /// Finds the first row whose event has this id or a later one; size() when there is none.
    int rowFrom(quint64 eventId) const;
    /// The highest severity among the events that are not acknowledged.
    PendingLevel pendingLevel() const;
    /// True when some event is not acknowledged, of whatever severity.
    bool anyUnacknowledged() const { return m_unacknowledged > 0; }

    /// Counts the events of the level that stand out, be it that they are pending or that they linger.
    int standingOut(PendingLevel level) const { return m_pending[level] + m_lingering[level]; }

    /// Takes the event over. False, the event deleted, when the list already holds its id or a later one.
    bool append(std::unique_ptr<NotifyEvent> event);
    void ackEvent(quint64 eventId);
    void ackAll();
    /// Acknowledges all because the user is about to see them: what was pending lingers until settle().
    void ackAllAtSight();
    void settle();
    void removeEvent(quint64 eventId) { removeEvents({eventId}); }
    /// Removes them in one pass whatever their number; passes unknown ids over.
    void removeEvents(QList<quint64> eventIds);
    void removeAll();

Q_SIGNALS:
    void aboutToAppend(const NotifyEvent &event);
    void appended();
    /// What is pending or lingers has changed among these.
    void acknowledged(int firstRow, int lastRow);
    void aboutToRebuild();
    void rebuilt();

private:
    void acknowledge(NotifyEvent &event);
    void forget(const NotifyEvent &event);

    std::vector<std::unique_ptr<NotifyEvent>> m_events;
    using Counts = std::array<int, ErrorPending + 1>; // by level
    Counts m_pending{}; // unacknowledged events
    Counts m_lingering{};
    int m_unacknowledged = 0;
};

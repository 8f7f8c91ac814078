#pragma once

#include "eventsorder.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QHash>
#include <QtGui/QIcon>

class EventsList;
class NotifyEvent;

namespace TClientLib {
class TJob;
}

/// The rows that the window shows of an events list, read from the list itself. The list must outlive the model.
/// Rows are in the order of arrival unless they are sorted; column 0 carries the event's id as Qt::UserRole. Cells show the beginning of a long text; kWholeTextRole is all of it.
class EventsModel final : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { Type, Acknowledged, Time, Message, User, Job, Chunk, OutputPath, ColumnCount };
    static constexpr int kWholeTextRole = Qt::UserRole + 1;
    /// Colour of the event's severity while it stands out, nothing otherwise.
    static constexpr int kEmphasisRole = Qt::UserRole + 2;

    explicit EventsModel(const EventsList &events, QObject *parent = nullptr);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Sorts by the column, or by none (-1): as the events came.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    /// First row whose event is the one of the id or comes behind it; rowCount() when there is none.
    int rowFrom(quint64 eventId) const;
    bool isInArrivalOrder() const { return m_order.column() < 0; }
    /// The level that shows alone, NothingPending when all do.
    PendingLevel level() const { return m_order.level(); }
    /// Shows what stands out at that level alone, or all (NothingPending).
    void showLevel(PendingLevel level);

Q_SIGNALS:
    /// Other rows show, or in another order: the list itself is the same.
    void rearranged();

private:
    enum class Extent { Shown, Whole };

    static QString text(const NotifyEvent &event, int column, Extent extent = Extent::Shown);
    static QString jobText(const TClientLib::TJob &job, Extent extent);
    QVariant decoration(const NotifyEvent &event, int column) const;
    /// What assistive software reads where the cell shows a picture alone.
    QString accessibleText(const NotifyEvent &event, int column) const;
    static EventsOrder::Key sortKey(const NotifyEvent &event, int column);
    void beginAppend(const NotifyEvent &event);
    void endAppend();
    void endRebuild();
    void tellMarks(int firstPlace, int lastPlace);

    const EventsList &m_events;
    EventsOrder m_order;
    std::optional<int> m_appended; // row of the event that is being appended
    QHash<QString, QIcon> m_icons; // by resource path
};

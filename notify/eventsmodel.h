#pragma once

#include <QtCore/QAbstractItemModel>
#include <QtCore/QHash>
#include <QtGui/QIcon>

class EventsList;
class NotifyEvent;

namespace TClientLib {
class TJob;
}

/// The rows that the window shows of an events list, read from the list itself. The list must outlive the model.
/// Column 0 carries the event's id as Qt::UserRole. Cells show the beginning of a long text; kWholeTextRole is all of it.
class EventsModel final : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { Type, Acknowledged, Time, Message, User, Job, Chunk, OutputPath, ColumnCount };
    static constexpr int kWholeTextRole = Qt::UserRole + 1;

    explicit EventsModel(const EventsList &events, QObject *parent = nullptr);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    enum class Extent { Shown, Whole };

    QString text(const NotifyEvent &event, int column, Extent extent = Extent::Shown) const;
    static QString jobText(const TClientLib::TJob &job, Extent extent);
    QVariant decoration(const NotifyEvent &event, int column) const;
    /// What assistive software reads where the cell shows a picture alone.
    QString accessibleText(const NotifyEvent &event, int column) const;

    const EventsList &m_events;
    QHash<QString, QIcon> m_icons; // by resource path
};

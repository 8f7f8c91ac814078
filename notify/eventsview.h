#pragma once

#include <QtCore/QList>
#include <QtWidgets/QTreeView>

class EventColumns;
class EventsModel;

/// The list of events. Selection, current row and scroll position survive a rebuild of the model by the events' ids,
/// and a list that is scrolled to its end stays there while events come in.
class EventsView final : public QTreeView {
    Q_OBJECT

public:
    explicit EventsView(QWidget *parent = nullptr);

    /// Takes an EventsModel.
    void setModel(QAbstractItemModel *model) override;
    /// Ids of the selected events, in the order in which they were selected.
    QList<quint64> selectedIds() const;
    EventColumns &columns() { return *m_columns; }

    /// Brings the new rows' texts into the widths of the columns, once for all that came since the last layout.
    void doItemsLayout() override;

Q_SIGNALS:
    /// The user wants to see what the event brought.
    void openRequested(quint64 eventId);

protected:
    /// Copies the whole text of the current cell, of which the cell may show the beginning.
    void keyPressEvent(QKeyEvent *event) override;
    /// The menu that a key opens belongs to the current row, wherever the pointer is.
    bool event(QEvent *event) override;
    void rowsInserted(const QModelIndex &parent, int start, int end) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Mark {
        quint64 id = 0;
        int row = 0;
    };
    struct State {
        QList<quint64> selected;
        Mark current;
        Mark top;
    };

    void saveState();
    void restoreState();
    /// Shows the current row in its new place, else the beginning, or the end of the order of arrival.
    void followRearranging();
    void followEnd();
    void openMenuAtCurrent();
    quint64 idAt(const QModelIndex &index) const;
    Mark markAt(const QModelIndex &index) const { return {idAt(index), index.row()}; }
    /// The row of the marked event; where that is gone the one behind it.
    int rowOf(const Mark &mark) const;
    void updateRow(const QModelIndex &index);

    EventsModel *m_events = nullptr;
    EventColumns *m_columns;
    State m_state;
    bool m_atEnd = true;
};

#pragma once

#include <QtCore/QList>
#include <QtWidgets/QTreeView>

/// The list of events. Selection, current row and scroll position survive a rebuild of the model by the events' ids,
/// and a list that is scrolled to its end stays there while events come in. Its model has the columns of EventsModel.
class EventsView final : public QTreeView {
    Q_OBJECT

public:
    explicit EventsView(QWidget *parent = nullptr);

    void setModel(QAbstractItemModel *model) override;
    /// Ids of the selected events, in the order in which they were selected.
    QList<quint64> selectedIds() const;

protected:
    /// Copies the whole text of the current cell, of which the cell may show the beginning.
    void keyPressEvent(QKeyEvent *event) override;
    void rowsInserted(const QModelIndex &parent, int start, int end) override;

private:
    struct State {
        QList<quint64> selected; // rising
        quint64 current = 0;
        quint64 top = 0;
    };

    void saveState();
    void restoreState();
    void followEnd();
    quint64 idAt(const QModelIndex &index) const;
    /// First row whose event has this id or a later one, the last row when there is none.
    int rowFrom(quint64 id) const;

    State m_state;
    bool m_atEnd = true;
};

#include "eventsview.h"

#include "eventsmodel.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace {

constexpr int kAcknowledgedColumnWidth = 30;
// In the order of the columns; the last takes what is left.
constexpr int kColumnWidths[EventsModel::ColumnCount] = {100, kAcknowledgedColumnWidth, 175, 260, 90, 170, 60,
                                                         200};

} // namespace

EventsView::EventsView(QWidget *parent)
    : QTreeView(parent)
{
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setIconSize({24, 24});
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &EventsView::followEnd);
}

void EventsView::setModel(QAbstractItemModel *model)
{
    // Ahead of the base class, which forgets its rows when it hears of a reset.
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &EventsView::saveState);
    QTreeView::setModel(model);
    connect(model, &QAbstractItemModel::modelReset, this, &EventsView::restoreState);
    header()->setMinimumSectionSize(kAcknowledgedColumnWidth);
    for (int column = 0; column < model->columnCount(); ++column)
        header()->resizeSection(column, kColumnWidths[column]);
}

quint64 EventsView::idAt(const QModelIndex &index) const
{
    return index.siblingAtColumn(0).data(Qt::UserRole).toULongLong();
}

QList<quint64> EventsView::selectedIds() const
{
    QList<quint64> ids;
    const QModelIndexList rows = selectionModel()->selectedRows();
    ids.reserve(rows.size());
    for (const QModelIndex &row : rows)
        ids += idAt(row);
    return ids;
}

void EventsView::keyPressEvent(QKeyEvent *event)
{
    if (!event->matches(QKeySequence::Copy)) {
        QTreeView::keyPressEvent(event);
        return;
    }
    const QString text = currentIndex().data(EventsModel::kWholeTextRole).toString();
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
}

void EventsView::rowsInserted(const QModelIndex &parent, int start, int end)
{
    // The range grows later, with the next layout: until then the scroll bar tells where the user left it.
    const QScrollBar *bar = verticalScrollBar();
    m_atEnd = bar->value() == bar->maximum();
    QTreeView::rowsInserted(parent, start, end);
}

void EventsView::followEnd()
{
    if (m_atEnd)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void EventsView::saveState()
{
    m_state.selected = selectedIds();
    std::sort(m_state.selected.begin(), m_state.selected.end());
    m_state.current = idAt(currentIndex());
    m_state.top = idAt(indexAt({0, 0}));
    m_atEnd = false;
}

int EventsView::rowFrom(quint64 id) const
{
    int low = 0;
    int high = model()->rowCount();
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (idAt(model()->index(middle, 0)) < id)
            low = middle + 1;
        else
            high = middle;
    }
    return std::min(low, model()->rowCount() - 1);
}

void EventsView::restoreState()
{
    const State state = m_state;
    m_state = {};
    if (model()->rowCount() == 0)
        return;
    QItemSelection selection;
    for (const quint64 id : state.selected) {
        const int row = rowFrom(id);
        if (idAt(model()->index(row, 0)) != id)
            continue;
        if (!selection.isEmpty() && selection.last().bottom() == row - 1)
            selection.last() = QItemSelectionRange(selection.last().topLeft(), model()->index(row, 0));
        else
            selection.append(QItemSelectionRange(model()->index(row, 0)));
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (state.current != 0)
        selectionModel()->setCurrentIndex(model()->index(rowFrom(state.current), 0),
                                          QItemSelectionModel::NoUpdate);
    if (state.top != 0)
        scrollTo(model()->index(rowFrom(state.top), 0), PositionAtTop);
}

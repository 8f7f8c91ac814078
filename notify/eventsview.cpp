#include "eventsview.h"

#include "eventcolumns.h"
#include "eventdelegate.h"
#include "eventsmodel.h"

#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <vector>

namespace {

constexpr int kBarWidth = 3;
constexpr int kBarAir = 2;

} // namespace

EventsView::EventsView(QWidget *parent)
    : QTreeView(parent)
    , m_columns(new EventColumns(this))
{
    setItemDelegate(new EventDelegate(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    setIconSize({24, 24});
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &EventsView::followEnd);
}

void EventsView::setModel(QAbstractItemModel *model)
{
    m_events = qobject_cast<EventsModel *>(model);
    Q_ASSERT(m_events);
    // Ahead of the base class, which forgets its rows when it hears of a reset.
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &EventsView::saveState);
    QTreeView::setModel(model);
    connect(model, &QAbstractItemModel::modelReset, this, &EventsView::restoreState);
    connect(m_events, &EventsModel::rearranged, this, &EventsView::followRearranging);
    m_columns->setUp();
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
    if (event->matches(QKeySequence::Copy)) {
        const QString text = currentIndex().data(EventsModel::kWholeTextRole).toString();
        if (!text.isEmpty())
            QGuiApplication::clipboard()->setText(text);
    } else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
               && currentIndex().isValid()) {
        Q_EMIT openRequested(idAt(currentIndex()));
    } else {
        QTreeView::keyPressEvent(event);
    }
}

bool EventsView::event(QEvent *event)
{
    if (event->type() == QEvent::ContextMenu
        && static_cast<QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard) {
        openMenuAtCurrent();
        return true;
    }
    return QTreeView::event(event);
}

void EventsView::openMenuAtCurrent()
{
    const QModelIndex current = currentIndex();
    if (current.isValid())
        scrollTo(current);
    const QRect row = visualRect(current.siblingAtColumn(EventsModel::Message)) & viewport()->rect();
    Q_EMIT customContextMenuRequested(row.isEmpty() ? viewport()->rect().topLeft() : row.bottomLeft());
}

void EventsView::rowsInserted(const QModelIndex &parent, int start, int end)
{
    // The range grows later, with the next layout: until then the scroll bar tells where the user left it.
    const QScrollBar *bar = verticalScrollBar();
    m_atEnd = bar->value() == bar->maximum() && start == m_events->rowCount() - 1;
    m_columns->noteNew(start);
    QTreeView::rowsInserted(parent, start, end);
}

void EventsView::doItemsLayout()
{
    m_columns->measureNew();
    QTreeView::doItemsLayout();
}

void EventsView::followEnd()
{
    if (m_atEnd)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void EventsView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTreeView::currentChanged(current, previous);
    updateRow(previous);
    updateRow(current);
}

void EventsView::updateRow(const QModelIndex &index)
{
    const QRect cell = visualRect(index.siblingAtColumn(EventsModel::Message));
    if (!cell.isEmpty())
        viewport()->update(0, cell.top(), viewport()->width(), cell.height());
}

void EventsView::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    QTreeView::drawRow(painter, option, index);
    const QRect row(0, option.rect.top(), viewport()->width(), option.rect.height());
    const QVariant emphasis = index.data(EventsModel::kEmphasisRole);
    if (emphasis.isValid()) {
        const QRect bar(row.left(), row.top() + kBarAir, kBarWidth, row.height() - 2 * kBarAir);
        painter->fillRect(QStyle::visualRect(layoutDirection(), row, bar), emphasis.value<QColor>());
    }
    if (hasFocus() && index.row() == currentIndex().row()) {
        const bool isSelected = selectionModel()->isSelected(index);
        painter->setPen(palette().color(isSelected ? QPalette::HighlightedText : QPalette::Link));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(row.adjusted(0, 0, -1, -1));
    }
}

void EventsView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    m_columns->fit();
}

void EventsView::showEvent(QShowEvent *event)
{
    m_columns->show();
    QTreeView::showEvent(event);
}

void EventsView::hideEvent(QHideEvent *event)
{
    m_columns->save();
    QTreeView::hideEvent(event);
}

void EventsView::changeEvent(QEvent *event)
{
    QTreeView::changeEvent(event);
    if (isVisible() && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange))
        m_columns->show();
}

void EventsView::saveState()
{
    m_state.selected = selectedIds();
    m_state.current = markAt(currentIndex());
    m_state.top = markAt(indexAt({0, 0}));
    m_atEnd = false;
}

int EventsView::rowOf(const Mark &mark) const
{
    const int row = m_events->rowFrom(mark.id);
    const int last = m_events->rowCount() - 1;
    const bool isThere = row <= last && idAt(m_events->index(row, 0)) == mark.id;
    // In the order of arrival the next id is the next row; in another one the next row has moved up to its place.
    return std::min(isThere || m_events->isInArrivalOrder() ? row : mark.row, last);
}

void EventsView::restoreState()
{
    const State state = m_state;
    m_state = {};
    if (m_events->rowCount() == 0)
        return;
    std::vector<int> rows;
    for (const quint64 id : state.selected) {
        const int row = m_events->rowFrom(id);
        if (row < m_events->rowCount() && idAt(m_events->index(row, 0)) == id)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    QItemSelection selection;
    for (const int row : rows) {
        const QModelIndex index = m_events->index(row, 0);
        if (!selection.isEmpty() && selection.last().bottom() == row - 1)
            selection.last() = QItemSelectionRange(selection.last().topLeft(), index);
        else
            selection.append(QItemSelectionRange(index));
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (state.current.id != 0)
        selectionModel()->setCurrentIndex(m_events->index(rowOf(state.current), 0),
                                          QItemSelectionModel::NoUpdate);
    if (state.top.id != 0)
        scrollTo(m_events->index(rowOf(state.top), 0), PositionAtTop);
}

void EventsView::followRearranging()
{
    m_atEnd = false;
    if (currentIndex().isValid())
        scrollTo(currentIndex(), PositionAtCenter);
    else if (m_events->isInArrivalOrder())
        scrollToBottom();
    else
        scrollToTop();
}

#include "eventcolumns.h"

#include "eventdelegate.h"

#include <notify/settings/settingsstore.h>

#include <QtCore/QSettings>
#include <QtGui/QActionGroup>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTreeView>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr int kAcknowledgedWidth = 30;
constexpr int kMeasured = 60; // of the rows that came at once, the last
constexpr int kStep = 4; // digits of other widths do not move the columns
constexpr int kLargest = 10'000; // that a stored width may say
constexpr int kLeastMessage = 22; // mean letters

struct Column {
    const char *name; // in the settings
    int letters; // mean ones that an elastic column asks for at most; 0: whatever its texts take
};

constexpr Column kColumns[EventsModel::ColumnCount] = {
    {"type", 0},  {"acknowledged", 0}, {"time", 0},  {"message", 0},
    {"user", 16}, {"job", 26},         {"chunk", 0}, {"outputPath", 40},
};

const QString kColumnsKey = QStringLiteral("eventsWindow/columns");
const QString kSortKey = QStringLiteral("eventsWindow/sort");
const QChar kHidden = u'-'; // before the name of a hidden column, or of one that is sorted by downwards

std::optional<int> columnOf(QStringView name)
{
    for (int column = 0; column < EventsModel::ColumnCount; ++column) {
        if (name == QLatin1String(kColumns[column].name))
            return column;
    }
    return {};
}

QString titleOf(const QAbstractItemModel *model, int column)
{
    return model->headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
}

} // namespace

EventColumns::EventColumns(QTreeView *view)
    : QObject(view)
    , m_view(view)
    , m_menu(new QMenu(tr("Co&lumns"), view))
    , m_sortMenu(new QMenu(tr("&Sort by"), m_menu))
{
    m_menu->setObjectName(QStringLiteral("columnsMenu"));
    // While there are no columns: the last one would be measured.
    view->header()->setStretchLastSection(false);
}

void EventColumns::setUp()
{
    QHeaderView *header = m_view->header();
    header->setFirstSectionMovable(true);
    header->setTextElideMode(Qt::ElideRight);
    header->setMinimumSectionSize(kAcknowledgedWidth);
    header->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    header->setSectionResizeMode(EventsModel::Message, QHeaderView::Fixed);
    header->setSectionResizeMode(EventsModel::Acknowledged, QHeaderView::Fixed);
    header->resizeSection(EventsModel::Acknowledged, kAcknowledgedWidth);
    header->setSortIndicator(-1, Qt::AscendingOrder);
    header->setSortIndicatorClearable(true);
    m_view->setSortingEnabled(true);
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this,
            [this, header](const QPoint &position) { m_menu->popup(header->mapToGlobal(position)); });
    connect(header, &QHeaderView::sectionResized, this,
            [this](int column, int, int width) { noteResize(column, width); });
    buildMenu();
}

void EventColumns::buildMenu()
{
    const QAbstractItemModel *model = m_view->model();
    auto *sorting = new QActionGroup(m_sortMenu);
    const auto addSorting = [&](const QString &title, int column) {
        QAction *action = m_sortMenu->addAction(title, this, [this, column] { sortBy(column); });
        action->setCheckable(true);
        action->setData(column);
        sorting->addAction(action);
    };
    addSorting(tr("Order of arrival"), -1);
    for (int column = 0; column < EventsModel::ColumnCount; ++column) {
        const QString title = titleOf(model, column);
        QAction *action = m_menu->addAction(title);
        action->setCheckable(true);
        action->setData(column);
        // The list has no room to give away without the column that takes it.
        action->setEnabled(column != EventsModel::Message);
        connect(action, &QAction::triggered, this, [this, column](bool shown) { setShown(column, shown); });
        addSorting(title, column);
    }
    m_menu->addSeparator();
    m_menu->addMenu(m_sortMenu);
    m_menu->addAction(tr("&Reset"), this, &EventColumns::reset);
    connect(m_menu, &QMenu::aboutToShow, this, &EventColumns::updateMenu);
}

void EventColumns::updateMenu()
{
    const QHeaderView *header = m_view->header();
    for (QAction *action : m_menu->actions()) {
        if (action->isCheckable())
            action->setChecked(!header->isSectionHidden(action->data().toInt()));
    }
    for (QAction *action : m_sortMenu->actions())
        action->setChecked(action->data().toInt() == header->sortIndicatorSection());
}

void EventColumns::sortBy(int column)
{
    QHeaderView *header = m_view->header();
    const bool again = column >= 0 && header->sortIndicatorSection() == column;
    header->setSortIndicator(column,
                             again && header->sortIndicatorOrder() == Qt::AscendingOrder
                                 ? Qt::DescendingOrder
                                 : Qt::AscendingOrder);
}

void EventColumns::setShown(int column, bool shown)
{
    m_fitting = true; // a column that hides counts as resized
    m_view->header()->setSectionHidden(column, !shown);
    m_fitting = false;
    fit();
}

void EventColumns::reset()
{
    for (int column = 0; column < EventsModel::ColumnCount; ++column) {
        m_view->header()->moveSection(m_view->header()->visualIndex(column), column);
        m_widths[std::size_t(column)].chosen = 0;
        setShown(column, true);
    }
    sortBy(-1);
}

void EventColumns::noteResize(int column, int width)
{
    if (m_fitting || !m_shown)
        return;
    m_widths[std::size_t(column)].chosen = width;
    fit();
}

void EventColumns::show()
{
    if (!std::exchange(m_shown, true))
        load();
    // Their fonts come from the style, which is asked no earlier by itself.
    m_view->ensurePolished();
    m_view->header()->ensurePolished();
    for (Width &width : m_widths)
        width.wanted = 0;
    m_firstNew = std::max(0, m_view->model()->rowCount() - kMeasured);
    measureHeader();
    measureNew();
    fit();
}

void EventColumns::measureHeader()
{
    if (!m_shown)
        return;
    const QHeaderView *header = m_view->header();
    QStyleOptionHeader option;
    option.initFrom(header);
    option.state |= QStyle::State_Horizontal;
    for (int column = 0; column < EventsModel::ColumnCount; ++column) {
        // What is kept from the title: by the style, as it tells of a section that is large enough, and by the header, which
        // cuts titles short for the arrow where there is none too. The hints of style sheets know nothing of that.
        constexpr int kLargeEnough = 1000;
        option.rect = QRect(0, 0, kLargeEnough, header->height());
        option.section = column;
        option.text = m_view->model()->headerData(column, Qt::Horizontal).toString();
        const QStyle *style = header->style();
        const int byStyle =
            kLargeEnough - style->subElementRect(QStyle::SE_HeaderLabel, &option, header).width();
        const int arrow = style->subElementRect(QStyle::SE_HeaderArrow, &option, header).width();
        const int byHeader = 2 * style->pixelMetric(QStyle::PM_HeaderMargin, &option, header)
            + style->pixelMetric(QStyle::PM_HeaderMarkSize, &option, header);
        m_widths[std::size_t(column)].least =
            header->fontMetrics().horizontalAdvance(option.text) + std::max(byStyle + arrow, byHeader) + 1;
    }
    const int letter = m_view->fontMetrics().averageCharWidth();
    Width &message = m_widths[EventsModel::Message];
    message.least = std::max(message.least, kLeastMessage * letter);
}

void EventColumns::noteNew(int row)
{
    m_firstNew = std::min(m_firstNew, row);
}

void EventColumns::measureNew()
{
    const int count = m_view->model()->rowCount();
    if (!m_shown || m_firstNew >= count)
        return;
    const auto before = m_widths;
    for (int row = std::max(m_firstNew, count - kMeasured); row < count; ++row)
        measureRow(row);
    m_firstNew = count;
    const auto sameWidth = [](const Width &a, const Width &b) {
        return a.wanted == b.wanted && a.least == b.least;
    };
    if (!std::equal(before.begin(), before.end(), m_widths.begin(), sameWidth))
        fit();
}

void EventColumns::measureRow(int row)
{
    QStyleOptionViewItem option;
    option.initFrom(m_view);
    option.decorationSize = m_view->iconSize();
    const int letter = option.fontMetrics.averageCharWidth();
    for (int column = 0; column < EventsModel::ColumnCount; ++column) {
        if (column == EventsModel::Message || column == EventsModel::Acknowledged)
            continue;
        const QModelIndex index = m_view->model()->index(row, column);
        Width &width = m_widths[std::size_t(column)];
        int needed = m_view->itemDelegate()->sizeHint(option, index).width();
        if (isElastic(column))
            needed = std::min(needed, kColumns[column].letters * letter);
        width.wanted = std::max(width.wanted, (needed + kStep - 1) / kStep * kStep);
        if (column == EventsModel::Job) {
            const QString number = QChar(0x2026) + EventDelegate::jobNumber(index.data().toString());
            const int least = option.fontMetrics.horizontalAdvance(number) + 2 * EventDelegate::kInset;
            width.least = std::max(width.least, least);
        }
    }
}

bool EventColumns::isElastic(int column) const
{
    return kColumns[column].letters > 0;
}

std::array<int, EventsModel::ColumnCount> EventColumns::shares(int available) const
{
    std::array<int, EventsModel::ColumnCount> shares{};
    int given = 0;
    int spare = 0; // what the elastic columns can do without
    const auto yields = [this](int column) {
        return isElastic(column) && m_widths[std::size_t(column)].chosen == 0;
    };
    for (int column = 0; column < EventsModel::ColumnCount; ++column) {
        if (column == EventsModel::Message || m_view->isColumnHidden(column))
            continue;
        const Width &width = m_widths[std::size_t(column)];
        int &share = shares[std::size_t(column)];
        share = width.chosen > 0 ? width.chosen : std::max(width.least, width.wanted);
        if (column == EventsModel::Acknowledged)
            share = kAcknowledgedWidth;
        given += share;
        spare += yields(column) ? share - width.least : 0;
    }
    const int least = m_widths[EventsModel::Message].least;
    const int lacking = std::clamp(given + least - available, 0, spare);
    for (int column = 0; lacking > 0 && column < EventsModel::ColumnCount; ++column) {
        if (!yields(column) || m_view->isColumnHidden(column))
            continue;
        int &share = shares[std::size_t(column)];
        const int part = (share - m_widths[std::size_t(column)].least) * lacking / spare;
        share -= part;
        given -= part;
    }
    shares[EventsModel::Message] = std::max(least, available - given);
    return shares;
}

void EventColumns::fit()
{
    if (!m_shown || m_fitting)
        return;
    m_fitting = true;
    const auto widths = shares(m_view->viewport()->width());
    for (int column = 0; column < EventsModel::ColumnCount; ++column) {
        if (!m_view->isColumnHidden(column))
            m_view->header()->resizeSection(column, widths[std::size_t(column)]);
    }
    m_fitting = false;
}

void EventColumns::load()
{
    const QSettings store;
    int visual = 0;
    m_fitting = true;
    for (const QString &entry : store.value(kColumnsKey).toStringList())
        loadColumn(entry, visual);
    m_fitting = false;
    const QString sorting = store.value(kSortKey).toString();
    const bool isDown = sorting.startsWith(kHidden);
    if (const std::optional<int> column = columnOf(QStringView(sorting).mid(isDown ? 1 : 0)))
        m_view->header()->setSortIndicator(*column, isDown ? Qt::DescendingOrder : Qt::AscendingOrder);
    m_savedColumns = columnsInWords();
    m_savedSorting = sortingInWords();
}

void EventColumns::loadColumn(const QString &entry, int &visual)
{
    const bool isHidden = entry.startsWith(kHidden);
    const std::optional<int> column = columnOf(QStringView(entry).mid(isHidden ? 1 : 0).split(u'=').first());
    if (!column || m_view->header()->visualIndex(*column) < visual)
        return; // not a column, or one more time
    m_view->header()->moveSection(m_view->header()->visualIndex(*column), visual++);
    m_widths[std::size_t(*column)].chosen = std::clamp(entry.section(u'=', 1).toInt(), 0, kLargest);
    m_view->setColumnHidden(*column, isHidden && *column != EventsModel::Message);
}

QStringList EventColumns::columnsInWords() const
{
    const QHeaderView *header = m_view->header();
    QStringList columns;
    for (int visual = 0; visual < EventsModel::ColumnCount; ++visual) {
        const int column = header->logicalIndex(visual);
        columns += (header->isSectionHidden(column) ? QString(kHidden) : QString())
            + QStringLiteral("%1=%2").arg(QLatin1String(kColumns[column].name),
                                          QString::number(m_widths[std::size_t(column)].chosen));
    }
    return columns;
}

QString EventColumns::sortingInWords() const
{
    const QHeaderView *header = m_view->header();
    const int sorted = header->sortIndicatorSection();
    if (sorted < 0 || sorted >= EventsModel::ColumnCount)
        return {};
    const bool isDown = header->sortIndicatorOrder() == Qt::DescendingOrder;
    return (isDown ? QString(kHidden) : QString()) + QLatin1String(kColumns[sorted].name);
}

void EventColumns::save()
{
    if (!m_shown)
        return;
    // Who changed nothing finds the settings as they were.
    if (const QStringList columns = columnsInWords(); columns != std::exchange(m_savedColumns, columns))
        saveAside(kColumnsKey, columns);
    if (const QString sorting = sortingInWords(); sorting != std::exchange(m_savedSorting, sorting))
        saveAside(kSortKey, sorting);
}

#include "eventsmodel.h"

#include <notify/events/eventkind.h>
#include <notify/events/eventslist.h>
#include <notify/events/notifyevent.h>
#include <ui/plaintext.h>
#include <ui/svgicon.h>

#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtGui/QColor>

namespace {

const QString kCheckIcon = QStringLiteral(":/icons/check");

struct KindColour {
    const char *icon;
    QRgb colour;
};

// Those of the icons.
constexpr KindColour kColours[] = {
    {"service", 0xffa48fe0},     {"itemStart", 0xff3fb6c6}, {"itemCompleted", 0xff36a35c},
    {"itemWarning", 0xfff5b32e}, {"itemError", 0xffdc4440},
};
constexpr QRgb kNoKindColour = 0xff8c8c8c;

QString iconPath(const char *name)
{
    return QStringLiteral(":/icons/") + QLatin1String(name);
}

QColor severityColour(const NotifyEvent &event)
{
    const QString icon = lookOf(event).iconPath;
    for (const KindColour &kind : kColours) {
        if (icon.endsWith(QLatin1String(kind.icon)))
            return QColor(kind.colour);
    }
    return QColor(kNoKindColour);
}

QString timeText(qint64 unixSeconds)
{
    return QLocale::system().toString(QDateTime::fromSecsSinceEpoch(unixSeconds), QLocale::ShortFormat);
}

} // namespace

EventsModel::EventsModel(const EventsList &events, QObject *parent)
    : QAbstractItemModel(parent)
    , m_events(events)
    , m_order(events, &EventsModel::sortKey)
{
    for (const KindColour &kind : kColours)
        m_icons.insert(iconPath(kind.icon), svgIcon(iconPath(kind.icon)));
    m_icons.insert(kCheckIcon, svgIcon(kCheckIcon));
    connect(&events, &EventsList::aboutToAppend, this, &EventsModel::beginAppend);
    connect(&events, &EventsList::appended, this, &EventsModel::endAppend);
    connect(&events, &EventsList::acknowledged, this, &EventsModel::tellMarks);
    connect(&events, &EventsList::aboutToRebuild, this, &EventsModel::beginResetModel);
    connect(&events, &EventsList::rebuilt, this, &EventsModel::endRebuild);
}

void EventsModel::beginAppend(const NotifyEvent &event)
{
    m_appended = m_order.rowOfNext(event);
    if (m_appended)
        beginInsertRows({}, *m_appended, *m_appended);
}

void EventsModel::endAppend()
{
    if (!m_appended)
        return;
    m_order.insert(*m_appended);
    endInsertRows();
}

void EventsModel::endRebuild()
{
    m_order.rebuild();
    const bool emptied = m_order.size() == 0 && m_events.size() > 0;
    if (emptied) // none of the level is left: an empty list would say that nothing has happened
        m_order.filter(NothingPending);
    endResetModel();
    if (emptied)
        Q_EMIT rearranged();
}

void EventsModel::tellMarks(int firstPlace, int lastPlace)
{
    if (rowCount() == 0)
        return;
    // The places of many rows may lie anywhere in another order.
    const bool one = firstPlace == lastPlace;
    const int first = one ? m_order.rowFrom(firstPlace) : 0;
    const int last = one ? first : rowCount() - 1;
    if (last < rowCount())
        Q_EMIT dataChanged(index(first, 0), index(last, ColumnCount - 1));
}

void EventsModel::sort(int column, Qt::SortOrder order)
{
    if (column == m_order.column() && (column < 0 || order == m_order.direction()))
        return;
    beginResetModel();
    m_order.sort(column < ColumnCount ? column : -1, order);
    endResetModel();
    Q_EMIT rearranged();
}

void EventsModel::showLevel(PendingLevel level)
{
    if (level == m_order.level())
        return;
    beginResetModel();
    m_order.filter(level);
    endResetModel();
    Q_EMIT rearranged();
}

int EventsModel::rowFrom(quint64 eventId) const
{
    return m_order.rowFrom(m_events.rowFrom(eventId));
}

EventsOrder::Key EventsModel::sortKey(const NotifyEvent &event, int column)
{
    switch (column) {
    case Type: // the worst first
        return {-pendingLevelOf(event), text(event, column)};
    case Acknowledged:
        return {event.acknowledged ? 1 : 0, {}};
    case Time:
        return {event.eventTime, {}};
    case Chunk:
        return {event.job && event.chunk ? event.chunk->getChunkId() : -1, {}};
    default:
        return {0, text(event, column)};
    }
}

QModelIndex EventsModel::index(int row, int column, const QModelIndex &parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex{};
}

QModelIndex EventsModel::parent(const QModelIndex &child) const
{
    Q_UNUSED(child);
    return {};
}

int EventsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_order.size();
}

int EventsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

Qt::ItemFlags EventsModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags;
}

QVariant EventsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const NotifyEvent &event = m_events.at(m_order.placeOf(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return text(event, index.column());
    case Qt::ToolTipRole:
        return plainToolTip(text(event, index.column()));
    case kWholeTextRole:
        return text(event, index.column(), Extent::Whole);
    case Qt::DecorationRole:
        return decoration(event, index.column());
    case Qt::AccessibleTextRole:
        return accessibleText(event, index.column());
    case kEmphasisRole:
        return event.standsOut() ? QVariant(severityColour(event)) : QVariant();
    case Qt::UserRole:
        return index.column() == Type ? QVariant(event.eventId) : QVariant();
    default:
        return {};
    }
}

QVariant EventsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    const QString titles[ColumnCount] = {tr("Type"), QString(), tr("Time"),  tr("Message"),
                                         tr("User"), tr("Job"), tr("Chunk"), tr("Output path")};
    if (role == Qt::DisplayRole)
        return titles[section];
    if (role == Qt::AccessibleTextRole || role == Qt::ToolTipRole)
        return section == Acknowledged ? tr("Acknowledged") : titles[section];
    return {};
}

QString EventsModel::text(const NotifyEvent &event, int column, Extent extent)
{
    // The view asks for each cell several times a paint: a long text must cost no more than a short one.
    const auto said = [&event, extent](const QString &key) {
        return extent == Extent::Whole ? event.text(key) : shortened(event.text(key));
    };
    switch (column) {
    case Type:
        return lookOf(event).typeText;
    case Time:
        return timeText(event.eventTime);
    case Message:
        return said(EventKey::kMessage);
    case User: {
        const QString marker = QStringLiteral("@directory@");
        QString user = said(EventKey::kUser);
        if (user.contains(marker))
            return user.remove(marker) + QStringLiteral("(D)");
        return user.isEmpty() ? tr("Service") : user;
    }
    case Job:
        return event.job ? jobText(*event.job, extent) : QString();
    case Chunk:
        return event.job && event.chunk ? QString::number(event.chunk->getChunkId()) : QString();
    case OutputPath:
        return said(EventKey::kFramesPath);
    default:
        return {};
    }
}

QString EventsModel::jobText(const TClientLib::TJob &job, Extent extent)
{
    const std::string &name = job.getName();
    return QStringLiteral("%1(%2)").arg(extent == Extent::Whole ? QString::fromStdString(name)
                                                                : shortened(name),
                                        QString::number(job.getJobId()));
}

QVariant EventsModel::decoration(const NotifyEvent &event, int column) const
{
    if (column == Acknowledged)
        return event.acknowledged ? QVariant(m_icons.value(kCheckIcon)) : QVariant();
    const QString path = column == Type ? lookOf(event).iconPath : QString();
    return path.isEmpty() ? QVariant() : QVariant(m_icons.value(path));
}

QString EventsModel::accessibleText(const NotifyEvent &event, int column) const
{
    if (column == Acknowledged)
        return !event.acknowledged ? tr("Pending")
            : event.lingers        ? tr("Acknowledged just now")
                                   : tr("Acknowledged");
    return text(event, column);
}

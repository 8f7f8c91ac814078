#include "eventsmodel.h"

#include <notify/events/eventkind.h>
#include <notify/events/eventslist.h>
#include <notify/events/notifyevent.h>
#include <ui/plaintext.h>
#include <ui/svgicon.h>

#include <QtCore/QDateTime>
#include <QtCore/QLocale>

namespace {

const QString kCheckIcon = QStringLiteral(":/icons/check");

QString timeText(qint64 unixSeconds)
{
    return QLocale::system().toString(QDateTime::fromSecsSinceEpoch(unixSeconds), QLocale::ShortFormat);
}

} // namespace

EventsModel::EventsModel(const EventsList &events, QObject *parent)
    : QAbstractItemModel(parent)
    , m_events(events)
{
    for (const char *name : {"service", "itemStart", "itemCompleted", "itemWarning", "itemError", "check"}) {
        const QString path = QStringLiteral(":/icons/") + QLatin1String(name);
        m_icons.insert(path, svgIcon(path));
    }
    connect(&events, &EventsList::aboutToAppend, this, [this](int row) { beginInsertRows({}, row, row); });
    connect(&events, &EventsList::appended, this, &EventsModel::endInsertRows);
    connect(&events, &EventsList::acknowledged, this, [this](int first, int last) {
        Q_EMIT dataChanged(index(first, Acknowledged), index(last, Acknowledged));
    });
    connect(&events, &EventsList::aboutToRebuild, this, &EventsModel::beginResetModel);
    connect(&events, &EventsList::rebuilt, this, &EventsModel::endResetModel);
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
    return parent.isValid() ? 0 : m_events.size();
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
    const NotifyEvent &event = m_events.at(index.row());
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

QString EventsModel::text(const NotifyEvent &event, int column, Extent extent) const
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
        return event.acknowledged ? tr("Acknowledged") : tr("Pending");
    return text(event, column);
}

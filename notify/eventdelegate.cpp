#include "eventdelegate.h"

#include "eventsmodel.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace {

constexpr int kIconGap = 6;
constexpr int kLeastHeight = 28; // icons of 24 pixels with a little air
constexpr int kTextAir = 8;
constexpr qreal kDimIcon = 0.55;

QPalette::ColorGroup groupOf(const QStyleOptionViewItem &cell)
{
    if (!(cell.state & QStyle::State_Enabled))
        return QPalette::Disabled;
    return cell.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

void drawTick(QPainter *painter, const QRect &rect, const QColor &colour)
{
    QPainterPath tick;
    tick.moveTo(-6, 0.5);
    tick.lineTo(-2, 4.5);
    tick.lineTo(6, -4.5);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(QRectF(rect).center());
    painter->setPen(QPen(colour, 1.8));
    painter->drawPath(tick);
}

} // namespace

QString EventDelegate::jobNumber(const QString &text)
{
    const qsizetype start = text.lastIndexOf(u'(');
    return start < 0 ? QString() : text.mid(start);
}

bool EventDelegate::isBold(int column)
{
    return column == EventsModel::Type || column == EventsModel::Message;
}

void EventDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (isBold(index.column()) && index.data(EventsModel::kEmphasisRole).isValid()) {
        option->font.setBold(true);
        option->fontMetrics = QFontMetrics(option->font);
    }
}

QString EventDelegate::elided(const QStyleOptionViewItem &cell, int column, int width)
{
    const QFontMetrics &metrics = cell.fontMetrics;
    if (column == EventsModel::OutputPath)
        return metrics.elidedText(cell.text, Qt::ElideLeft, width);
    if (column != EventsModel::Job || metrics.horizontalAdvance(cell.text) <= width)
        return metrics.elidedText(cell.text, Qt::ElideRight, width);
    const QString number = jobNumber(cell.text);
    const int room = width - metrics.horizontalAdvance(number);
    if (room < metrics.horizontalAdvance(QChar(0x2026)))
        return metrics.elidedText(number, Qt::ElideRight, width);
    return metrics.elidedText(cell.text.chopped(number.size()), Qt::ElideMiddle, room) + number;
}

QColor EventDelegate::textColour(const QStyleOptionViewItem &cell, bool standsOut)
{
    const QPalette::ColorGroup group = groupOf(cell);
    if (cell.state & QStyle::State_Selected)
        return cell.palette.color(group, QPalette::HighlightedText);
    return cell.palette.color(group, standsOut ? QPalette::Text : QPalette::PlaceholderText);
}

void EventDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle *style = cell.widget ? cell.widget->style() : QApplication::style();
    const bool standsOut = index.data(EventsModel::kEmphasisRole).isValid();
    const QColor colour = textColour(cell, standsOut);
    painter->save();
    painter->setClipRect(cell.rect, Qt::IntersectClip);
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
    if (index.column() == EventsModel::Acknowledged) {
        if (!cell.icon.isNull())
            drawTick(painter, cell.rect, colour);
        painter->restore();
        return;
    }
    QRect rect = cell.rect.adjusted(kInset, 0, -kInset, 0);
    if (!cell.icon.isNull()) {
        const QRect place(rect.topLeft(), QSize(cell.decorationSize.width(), rect.height()));
        painter->setOpacity(standsOut ? 1.0 : kDimIcon);
        cell.icon.paint(painter, QStyle::visualRect(cell.direction, rect, place));
        painter->setOpacity(1.0);
        rect.setLeft(place.right() + 1 + kIconGap);
        rect = QStyle::visualRect(cell.direction, cell.rect.adjusted(kInset, 0, -kInset, 0), rect);
    }
    painter->setFont(cell.font);
    painter->setPen(colour);
    const Qt::Alignment alignment = QStyle::visualAlignment(cell.direction, cell.displayAlignment);
    painter->drawText(rect, int(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                      elided(cell, index.column(), rect.width()));
    painter->restore();
}

QSize EventDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    int width = cell.fontMetrics.horizontalAdvance(cell.text) + 1 + 2 * kInset;
    if (index.column() == EventsModel::Type)
        width += cell.decorationSize.width() + kIconGap;
    return {width, std::max(kLeastHeight, cell.fontMetrics.height() + kTextAir)};
}

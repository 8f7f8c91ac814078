#pragma once

#include <QtWidgets/QStyledItemDelegate>

/// Draws the cells of the events list in the roles of its palette: what stands out is bold, what is acknowledged dim with a
/// grey tick. A job keeps its number when it is cut, an output path its end. Its model has the columns of EventsModel.
class EventDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Air at both sides of a cell.
    static constexpr int kInset = 6;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /// The part of a job's text that stays readable, as "(4112)".
    static QString jobNumber(const QString &text);
    /// Whether the column's text is bold in rows that stand out.
    static bool isBold(int column);

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    static QString elided(const QStyleOptionViewItem &cell, int column, int width);
    static QColor textColour(const QStyleOptionViewItem &cell, bool standsOut);
};

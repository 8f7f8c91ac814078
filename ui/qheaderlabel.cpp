#include "qheaderlabel.h"

#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>

QHeaderLabel::QHeaderLabel(const QString &text, QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("skinnedDialogHeaderLabel"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setText(text);
}

void QHeaderLabel::setText(const QString &text)
{
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

QSize QHeaderLabel::sizeHint() const
{
    return fontMetrics().size(Qt::TextSingleLine, m_text);
}

QSize QHeaderLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

void QHeaderLabel::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_Widget, option);

    const QString shown = fontMetrics().elidedText(m_text, Qt::ElideRight, width());
    const QString hidden = shown == m_text ? QString() : m_text;
    if (toolTip() != hidden)
        setToolTip(hidden);
    painter.drawItemText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, palette(),
                         isEnabled(), shown, foregroundRole());
}

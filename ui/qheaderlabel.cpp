#include "qheaderlabel.h"

#include "plaintext.h"

#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>

QHeaderLabel::QHeaderLabel(const QString &text, QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("skinnedDialogHeaderLabel"));
    // It takes what the buttons beside it leave.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setText(text);
}

void QHeaderLabel::setText(const QString &text)
{
    m_text = shortened(text);
    setAccessibleName(m_text);
    update();
}

void QHeaderLabel::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_Widget, option);

    painter.setFont(fittedFont());
    const QString shown = painter.fontMetrics().elidedText(m_text, Qt::ElideRight, width());
    const QString hidden = shown == m_text ? QString() : plainToolTip(m_text);
    if (toolTip() != hidden)
        setToolTip(hidden);
    painter.drawItemText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, palette(),
                         isEnabled(), shown, foregroundRole());
}

// The header's height is fixed, the desktop's font is not.
QFont QHeaderLabel::fittedFont() const
{
    QFont fitted = font();
    const int line = fontMetrics().height();
    if (line > height())
        fitted.setPixelSize(qMax(1, fontInfo().pixelSize() * height() / line));
    return fitted;
}

#include "toolstrip.h"

#include <QtCore/QEvent>

#include <algorithm>

namespace {

constexpr int kGap = 2;
constexpr int kFewestRows = 2;

} // namespace

ToolStrip::ToolStrip(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

QSize ToolStrip::sizeHint() const
{
    return {cell().width() - kGap, cell().height() * int(buttons().size()) - kGap};
}

QSize ToolStrip::minimumSizeHint() const
{
    return {cell().width() - kGap, cell().height() * kFewestRows - kGap};
}

bool ToolStrip::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        place();
    }
    return QWidget::event(event);
}

void ToolStrip::resizeEvent(QResizeEvent *event)
{
    place();
    QWidget::resizeEvent(event);
}

QList<QWidget *> ToolStrip::buttons() const
{
    return findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
}

QSize ToolStrip::cell() const
{
    QSize largest;
    for (const QWidget *button : buttons())
        largest = largest.expandedTo(button->sizeHint());
    return largest + QSize(kGap, kGap);
}

void ToolStrip::place()
{
    const QSize step = cell();
    const int rows = std::max((height() + kGap) / step.height(), 1);
    int index = 0;
    for (QWidget *button : buttons()) {
        const QPoint at(index / rows * step.width(), index % rows * step.height());
        button->setGeometry({at, step - QSize(kGap, kGap)});
        ++index;
    }
    const int columns = (index + rows - 1) / rows;
    setFixedWidth(std::max(columns, 1) * step.width() - kGap);
}

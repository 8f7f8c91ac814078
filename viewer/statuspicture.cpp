#include "statuspicture.h"

#include <QtGui/QPainter>

StatusPanel::StatusPanel(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
}

StatusPicture::StatusPicture(QWidget *parent)
    : QLabel(parent)
{ }

void StatusPicture::paintEvent(QPaintEvent * /*event*/)
{
    const QPixmap picture = pixmap();
    if (picture.isNull())
        return;
    QSizeF size = picture.deviceIndependentSize();
    if (size.width() > width() || size.height() > height())
        size.scale(this->size(), Qt::KeepAspectRatio);
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QPointF place((width() - size.width()) / 2, height() - size.height());
    painter.drawPixmap(QRectF(place, size), picture, QRectF(picture.rect()));
}

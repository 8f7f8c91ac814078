#include "tintedicon.h"

#include <QtGui/QPainter>

QIcon tintedIcon(const QIcon &drawing, QSize size, const QColor &colour)
{
    QIcon icon;
    for (const qreal ratio : {1.0, 2.0}) {
        QPixmap drawn = drawing.pixmap(size, ratio);
        QPainter painter(&drawn);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(QRect(QPoint(), size), colour);
        painter.end();
        icon.addPixmap(drawn);
    }
    return icon;
}

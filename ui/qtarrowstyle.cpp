#include "qtarrowstyle.h"

#include <QtWidgets/QStyleFactory>

QTarrowStyle::QTarrowStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{ }

void QTarrowStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
}

#include "viewericons.h"

#include <ui/svgicon.h>

#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>

#include <utility>

namespace {

constexpr qreal kDimmed = 0.35;
constexpr qreal kUnits = 16; // that icons are drawn in

struct Looks {
    QIcon off;
    QIcon on;
    QColor color;
    QRectF swatch;
};

class ViewerIconEngine final : public QIconEngine {
public:
    explicit ViewerIconEngine(Looks looks)
        : m_looks(std::move(looks))
    { }

    QIconEngine *clone() const override { return new ViewerIconEngine(*this); }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return drawn;
    }
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatio();
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setOpacity(mode == QIcon::Disabled ? kDimmed : 1.0);
        const QIcon &look = state == QIcon::On && !m_looks.on.isNull() ? m_looks.on : m_looks.off;
        painter->drawPixmap(rect, look.pixmap(rect.size() * ratio, 1.0));
        if (m_looks.color.isValid()) {
            const QRectF &swatch = m_looks.swatch;
            const qreal unit = rect.width() / kUnits;
            painter->fillRect(QRectF(rect.topLeft() + swatch.topLeft() * unit, swatch.size() * unit),
                              m_looks.color);
        }
        painter->restore();
    }

private:
    Looks m_looks;
};

QIcon drawn(const QString &name)
{
    return name.isEmpty() ? QIcon() : svgIcon(QStringLiteral(":/icons/viewer/%1").arg(name));
}

} // namespace

QIcon viewerIcon(const QString &name, const QString &checked)
{
    return QIcon(new ViewerIconEngine({drawn(name), drawn(checked), {}, {}}));
}

QIcon playerIcon(const QString &name)
{
    return QIcon(new ViewerIconEngine({QIcon(QStringLiteral(":/player/%1.png").arg(name)), {}, {}, {}}));
}

QIcon swatchIcon(const QString &name, const QColor &color, const QRectF &swatch)
{
    return QIcon(new ViewerIconEngine({drawn(name), {}, color, swatch}));
}

#include "viewericons.h"

#include <ui/svgicon.h>

#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtGui/QPixmapCache>

#include <utility>

namespace {

constexpr qreal kDimmed = 0.35;
constexpr qreal kUnits = 16; // that icons are drawn in

struct Looks {
    QString off; // a file
    QString on; // empty where it looks the same
    QColor color;
    QRectF swatch;
};

/// Draws what is asked for once for all viewers: they are to open fast.
class ViewerIconEngine final : public QIconEngine {
public:
    explicit ViewerIconEngine(Looks looks)
        : m_looks(std::move(looks))
    { }

    QIconEngine *clone() const override { return new ViewerIconEngine(*this); }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        const QString &file = state == QIcon::On && !m_looks.on.isEmpty() ? m_looks.on : m_looks.off;
        const QString key =
            QStringLiteral("%1 %2 %3 %4 %5")
                .arg(file, m_looks.color.name(), QString::number(size.width()),
                     QString::number(size.height()), QString::number(mode == QIcon::Disabled));
        QPixmap pixmap;
        if (!QPixmapCache::find(key, &pixmap)) {
            pixmap = drawn(file, size, mode == QIcon::Disabled ? kDimmed : 1.0);
            QPixmapCache::insert(key, pixmap);
        }
        return pixmap;
    }
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
    }

private:
    QPixmap drawn(const QString &file, QSize size, qreal opacity) const
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setOpacity(opacity);
        const QIcon icon = file.endsWith(QLatin1String(".png")) ? QIcon(file) : svgIcon(file);
        painter.drawPixmap(QRect(QPoint(), size), icon.pixmap(size, 1.0));
        if (m_looks.color.isValid()) {
            painter.scale(size.width() / kUnits, size.height() / kUnits);
            painter.fillRect(m_looks.swatch, m_looks.color);
        }
        return pixmap;
    }

    Looks m_looks;
};

QString fileOf(const QString &name)
{
    return name.isEmpty() ? QString() : QStringLiteral(":/icons/viewer/%1").arg(name);
}

} // namespace

QIcon viewerIcon(const QString &name, const QString &checked)
{
    return QIcon(new ViewerIconEngine({fileOf(name), fileOf(checked), {}, {}}));
}

QIcon playerIcon(const QString &name)
{
    return QIcon(new ViewerIconEngine({QStringLiteral(":/player/%1.png").arg(name), {}, {}, {}}));
}

QIcon swatchIcon(const QString &name, const QColor &color, const QRectF &swatch)
{
    return QIcon(new ViewerIconEngine({fileOf(name), {}, color, swatch}));
}

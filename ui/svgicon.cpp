#include "svgicon.h"

#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <array>

namespace {

Q_LOGGING_CATEGORY(lcUi, "tarrow.ui")

// 16, 22, 24, 32, 48, 64, 96 and 128 at the scale factors 1, 1.5 and 2, each pixel size once.
constexpr std::array kPixelSizes{16, 22, 24, 32, 33, 36, 44, 48, 64, 72, 96, 128, 144, 192, 256};

QPixmap rendered(QSvgRenderer &renderer, int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}

} // namespace

QIcon svgIcon(const QString &path)
{
    QFile file(path);
    QSvgRenderer renderer;
    if (!file.open(QIODevice::ReadOnly) || !renderer.load(file.readAll())) {
        qCWarning(lcUi).noquote() << "Cannot read icon" << path;
        return {};
    }
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QIcon icon;
    for (const int size : kPixelSizes)
        icon.addPixmap(rendered(renderer, size));
    return icon;
}

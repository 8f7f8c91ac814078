#include "svgicon.h"

#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>
#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>

#include <map>
#include <memory>
#include <utility>

namespace {

Q_LOGGING_CATEGORY(lcUi, "tarrow.ui")

/// Draws when a size is first asked for: most sizes never are, and drawing them all would hold up the start.
class SvgIconEngine final : public QIconEngine {
public:
    explicit SvgIconEngine(std::shared_ptr<QSvgRenderer> renderer)
        : m_renderer(std::move(renderer))
    { }

    QIconEngine *clone() const override { return new SvgIconEngine(*this); }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override;
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
    }

private:
    std::shared_ptr<QSvgRenderer> m_renderer;
    std::map<std::pair<int, int>, QPixmap> m_drawn; // by width and height
};

QPixmap SvgIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State)
{
    QPixmap &drawn = m_drawn[{size.width(), size.height()}];
    if (drawn.isNull()) {
        drawn = QPixmap(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        m_renderer->render(&painter);
    }
    if (mode == QIcon::Normal)
        return drawn;
    QStyleOption option;
    option.palette = QApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, drawn, &option);
}

} // namespace

QIcon svgIcon(const QString &path)
{
    QFile file(path);
    const auto renderer = std::make_shared<QSvgRenderer>();
    if (!file.open(QIODevice::ReadOnly) || !renderer->load(file.readAll())) {
        qCWarning(lcUi).noquote() << "Cannot read icon" << path;
        return {};
    }
    renderer->setAspectRatioMode(Qt::KeepAspectRatio);
    return QIcon(new SvgIconEngine(renderer));
}

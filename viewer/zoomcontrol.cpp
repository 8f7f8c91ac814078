#include "zoomcontrol.h"

#include <viewer/frames/imageframe.h>
#include <viewer/widgets/imagewidget.h>

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace {

constexpr float kZoomStep = 1.2F;
constexpr float kLargestZoom = 100.0F;
constexpr int kSmallestShown = 64; // twice a shown side, in pixels
constexpr int kScrollStep = 20;

} // namespace

ZoomControl::ZoomControl(const Controls &controls)
    : QObject(controls.image)
    , m_controls(controls)
{
    buildMenu(m_controls.fit, Lock::Fit, &ZoomControl::fit);
    buildMenu(m_controls.pixels, Lock::Pixels, &ZoomControl::pixelSize);
    connect(m_controls.fit, &QToolButton::clicked, this, &ZoomControl::fit);
    connect(m_controls.pixels, &QToolButton::clicked, this, &ZoomControl::pixelSize);
    connect(m_controls.horizontal, &QScrollBar::valueChanged, this, &ZoomControl::scrolled);
    connect(m_controls.vertical, &QScrollBar::valueChanged, this, &ZoomControl::scrolled);
    const imageWidget *image = m_controls.image;
    connect(image, &imageWidget::horizontalScrollRequested, m_controls.horizontal, &QScrollBar::setValue);
    connect(image, &imageWidget::verticalScrollRequested, m_controls.vertical, &QScrollBar::setValue);
    connect(image, &imageWidget::zoomInRequested, this, &ZoomControl::zoomIn);
    connect(image, &imageWidget::zoomOutRequested, this, &ZoomControl::zoomOut);
    connect(image, &imageWidget::resized, this, &ZoomControl::refresh);
}

void ZoomControl::buildMenu(QToolButton *button, Lock lock, void (ZoomControl::*apply)())
{
    auto *menu = new QMenu(button);
    menu->addAction(tr("Apply"), this, apply);
    QAction *lockAction = menu->addAction(tr("Lock"), this, [this, lock] { setLock(lock); });
    QAction *unlockAction = menu->addAction(tr("Unlock"), this, [this] { setLock(Lock::None); });
    connect(menu, &QMenu::aboutToShow, this, [this, lock, lockAction, unlockAction] {
        lockAction->setEnabled(m_lock != lock);
        unlockAction->setEnabled(m_lock == lock);
    });
    button->setMenu(menu);
}

void ZoomControl::setLock(Lock lock)
{
    m_lock = lock;
    refresh();
}

bool ZoomControl::canZoomIn() const
{
    return m_controls.image->zoomFactor() <= kLargestZoom;
}

bool ZoomControl::canZoomOut() const
{
    const QSize shown = m_controls.image->displayedSize();
    return shown.width() * 2 >= kSmallestShown && shown.height() * 2 >= kSmallestShown;
}

void ZoomControl::zoomIn()
{
    if (canZoomIn())
        setZoom(m_controls.image->zoomFactor() * kZoomStep);
}

void ZoomControl::zoomOut()
{
    if (canZoomOut())
        setZoom(m_controls.image->zoomFactor() / kZoomStep);
}

void ZoomControl::setZoom(float zoom)
{
    // What is in the middle of the view stays there.
    const QSize view = m_controls.image->viewSize();
    const QPointF middle(view.width() / 2.0, view.height() / 2.0);
    const double growth = double(zoom) / double(m_controls.image->zoomFactor());
    const QPoint pan = ((QPointF(m_controls.image->pan()) + middle) * growth - middle).toPoint();
    m_controls.image->setZoomFactor(zoom);
    m_controls.image->setPan({std::max(0, pan.x()), std::max(0, pan.y())});
    refresh();
}

void ZoomControl::fit()
{
    const ImageFrame *frame = m_controls.image->frame();
    if (!frame || frame->planeSizes.empty())
        return;
    const PlaneSize size = frame->planeSizes.front();
    const QSize view = m_controls.image->viewSize();
    if (view.isEmpty() || size.width < 1 || size.height < 1)
        return;
    m_controls.image->setZoomFactor(
        std::min(float(view.width()) / float(size.width), float(view.height()) / float(size.height)));
    if (!m_refreshing)
        refresh();
}

void ZoomControl::pixelSize()
{
    m_controls.image->setZoomFactor(1.0F);
    if (!m_refreshing)
        refresh();
}

void ZoomControl::resetZoom()
{
    m_controls.image->setZoomFactor(1.0F);
    m_controls.image->setPan({});
    refresh();
}

void ZoomControl::refresh()
{
    if (m_refreshing)
        return;
    m_refreshing = true;
    if (m_lock == Lock::Fit)
        fit();
    else if (m_lock == Lock::Pixels)
        pixelSize();
    const QSize shown = m_controls.image->displayedSize();
    const QSize view = m_controls.image->viewSize();
    const QPoint pan = m_controls.image->setPan(m_controls.image->pan());
    refreshScrollBar(*m_controls.horizontal, shown.width(), view.width(), pan.x());
    refreshScrollBar(*m_controls.vertical, shown.height(), view.height(), pan.y());
    m_refreshing = false;
    Q_EMIT zoomChanged();
}

void ZoomControl::refreshScrollBar(QScrollBar &bar, int displayed, int visible, int value)
{
    const int maximum = std::max(0, displayed - visible);
    // A bar that is told its steps paints itself anew, whatever they were.
    if (bar.maximum() == maximum && bar.pageStep() == visible && bar.value() == value)
        return;
    const QSignalBlocker blocker(bar);
    bar.setRange(0, maximum);
    bar.setPageStep(visible);
    bar.setSingleStep(kScrollStep);
    bar.setValue(value);
    // It keeps its place: a bar that came and went would change the view that it depends on.
    bar.setEnabled(displayed > visible);
}

void ZoomControl::scrolled()
{
    m_controls.image->setPan({m_controls.horizontal->value(), m_controls.vertical->value()});
}

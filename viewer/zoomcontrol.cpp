#include "zoomcontrol.h"

#include <viewer/frames/imageframe.h>
#include <viewer/widgets/imagewidget.h>

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <cmath>

namespace {

constexpr float kZoomStep = 1.2F;
constexpr float kLargestZoom = 100.0F;
constexpr int kSmallestShown = 64; // twice a shown side, in pixels
constexpr int kScrollStep = 20;

/// Gives the pan along one side that keeps what is at a point where it is; a picture smaller than its view is centred.
double panKeeping(double at, int view, int before, int after, double pan)
{
    const auto margin = [view](int shown) { return std::max(0, view - shown) / 2.0; };
    const double inPicture = (at - margin(before) + pan) * after / std::max(before, 1);
    return std::max(0.0, inPicture + margin(after) - at);
}

} // namespace

ZoomControl::ZoomControl(const Controls &controls)
    : QObject(controls.image)
    , m_controls(controls)
{
    buildMenu(m_controls.fit, Lock::Fit);
    buildMenu(m_controls.pixels, Lock::Pixels);
    connect(m_controls.horizontal, &QScrollBar::valueChanged, this, &ZoomControl::scrolled);
    connect(m_controls.vertical, &QScrollBar::valueChanged, this, &ZoomControl::scrolled);
    const imageWidget *image = m_controls.image;
    connect(image, &imageWidget::horizontalScrollRequested, m_controls.horizontal, &QScrollBar::setValue);
    connect(image, &imageWidget::verticalScrollRequested, m_controls.vertical, &QScrollBar::setValue);
    connect(image, &imageWidget::zoomRequested, this, &ZoomControl::zoomBy);
    connect(image, &imageWidget::resized, this, &ZoomControl::refresh);
    setLock(m_lock);
}

void ZoomControl::buildMenu(QToolButton *button, Lock lock)
{
    auto *menu = new QMenu(button);
    menu->addAction(tr("Apply"), this, [this, lock] { applyOnce(lock); });
    QAction *lockAction = menu->addAction(tr("Lock"), this, [this, lock] { setLock(lock); });
    QAction *unlockAction = menu->addAction(tr("Unlock"), this, [this] { setLock(Lock::None); });
    connect(menu, &QMenu::aboutToShow, this, [this, lock, lockAction, unlockAction] {
        lockAction->setEnabled(m_lock != lock);
        unlockAction->setEnabled(m_lock == lock);
    });
    button->setMenu(menu);
    connect(button, &QToolButton::clicked, this, [this, lock] { setLock(lock); });
}

void ZoomControl::setLock(Lock lock)
{
    m_lock = lock;
    m_controls.fit->setChecked(lock == Lock::Fit);
    m_controls.pixels->setChecked(lock == Lock::Pixels);
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
    zoomBy(1.0F, middle());
}

void ZoomControl::zoomOut()
{
    zoomBy(-1.0F, middle());
}

void ZoomControl::zoomBy(float steps, QPointF at)
{
    const float zoom = m_controls.image->zoomFactor();
    if (steps > 0 ? !canZoomIn() : !canZoomOut())
        return;
    const QSizeF picture = QSizeF(m_controls.image->displayedSize()) / double(zoom);
    const auto smallest = float(kSmallestShown / 2.0 / std::min(picture.width(), picture.height()));
    // A fit may lie beyond the limits; from there, too, a step goes its own way.
    const float wanted = std::clamp(zoom * std::pow(kZoomStep, steps), std::min(zoom, smallest / kZoomStep),
                                    std::max(zoom, kLargestZoom * kZoomStep));
    setLock(Lock::None);
    place(wanted, at);
}

void ZoomControl::zoomTo(float zoom)
{
    setLock(Lock::None);
    place(zoom, middle());
}

// Of the view without bars: their coming and going moves nothing.
QPointF ZoomControl::middle() const
{
    const QSize view = room();
    return {view.width() / 2.0, view.height() / 2.0};
}

QSize ZoomControl::room() const
{
    const imageWidget &image = *m_controls.image;
    const QWidget *around = m_controls.horizontal->parentWidget();
    const bool alone = image.parentWidget() != around || !image.isVisible();
    return alone ? image.viewSize() : around->size() * image.devicePixelRatio();
}

// By the room alone: bars that came by what they leave of it would come and go for ever.
void ZoomControl::showBars()
{
    const QSize shown = m_controls.image->displayedSize();
    const QSize all = room();
    const qreal ratio = m_controls.image->devicePixelRatio();
    const auto beyond = [](int length, int view, qreal bar) { return length > view - bar; };
    const qreal width = m_controls.vertical->sizeHint().width() * ratio;
    const qreal height = m_controls.horizontal->sizeHint().height() * ratio;
    bool across = m_lock != Lock::Fit && beyond(shown.width(), all.width(), 0);
    const bool down = m_lock != Lock::Fit && beyond(shown.height(), all.height(), across ? height : 0);
    across = across || (down && beyond(shown.width(), all.width(), width));
    if (across != m_controls.horizontal->isHidden() && down != m_controls.vertical->isHidden())
        return;
    m_controls.horizontal->setVisible(across);
    m_controls.vertical->setVisible(down);
    m_controls.horizontal->parentWidget()->layout()->activate();
}

void ZoomControl::place(float zoom, QPointF at)
{
    imageWidget &image = *m_controls.image;
    const QSize view = image.viewSize();
    // Rounded at each of a touchpad's small steps, the picture would creep away.
    const QPointF pan = m_pan.toPoint() == image.pan() ? m_pan : image.pan();
    const QSize before = image.displayedSize();
    image.setZoomFactor(zoom);
    const QSize after = image.displayedSize();
    m_pan = {panKeeping(at.x(), view.width(), before.width(), after.width(), pan.x()),
             panKeeping(at.y(), view.height(), before.height(), after.height(), pan.y())};
    image.setPan(m_pan.toPoint());
    if (!m_refreshing)
        refresh();
}

float ZoomControl::fittingZoom() const
{
    const imageWidget &image = *m_controls.image;
    const ImageFrame *frame = image.frame();
    const QSize view = room();
    if (!frame || frame->planeSizes.empty() || view.isEmpty())
        return image.zoomFactor();
    const PlaneSize size = frame->planeSizes.front();
    return std::min(float(view.width()) / float(size.width), float(view.height()) / float(size.height));
}

void ZoomControl::apply(Lock lock)
{
    if (lock == Lock::Fit)
        place(fittingZoom(), middle());
    else if (lock == Lock::Pixels)
        place(1.0F, middle());
}

void ZoomControl::applyOnce(Lock lock)
{
    if (m_lock != lock)
        setLock(Lock::None);
    apply(lock);
}

void ZoomControl::resetZoom()
{
    setLock(m_lock == Lock::Pixels ? Lock::Pixels : Lock::Fit);
    m_controls.image->setPan({});
    refresh();
}

void ZoomControl::refresh()
{
    if (m_refreshing)
        return;
    m_refreshing = true;
    apply(m_lock);
    showBars();
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
    bar.setEnabled(displayed > visible);
}

void ZoomControl::scrolled()
{
    m_controls.image->setPan({m_controls.horizontal->value(), m_controls.vertical->value()});
}

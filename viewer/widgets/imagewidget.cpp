#include "imagewidget.h"

#include <ui/tappstate.h>
#include <viewer/frames/imageframe.h>
#include <viewer/widgets/render/hud.h>
#include <viewer/widgets/render/picturerenderer.h>

#include <QtGui/QMouseEvent>
#include <QtGui/QOpenGLContext>
#include <QtGui/QOpenGLFunctions>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace {

constexpr std::chrono::milliseconds kStillness{100};
constexpr int kNotch = QWheelEvent::DefaultDeltasPerStep;
constexpr int kMostNotches = 10; // in one event

bool hasFloatTextures(const QOpenGLContext &context)
{
    return context.hasExtension("GL_ARB_half_float_pixel")
        && context.hasExtension("GL_ARB_color_buffer_float") && context.hasExtension("GL_ARB_texture_float");
}

} // namespace

imageWidget::imageWidget(QWidget *parent)
    : GlPane(parent)
{
    m_stillness.setSingleShot(true);
    m_stillness.setInterval(kStillness);
    connect(&m_stillness, &QTimer::timeout, this, &imageWidget::refine);
}

imageWidget::~imageWidget()
{
    stopPanning();
    if (m_renderer)
        makeCurrent();
    m_renderer.reset();
    endContext();
}

const ImageFrame *imageWidget::frame() const
{
    return m_frame;
}

float imageWidget::zoomFactor() const
{
    return m_zoom;
}

QPoint imageWidget::pan() const
{
    return m_pan;
}

QSize imageWidget::displayedSize() const
{
    return viewGeometry().displayedSize();
}

bool imageWidget::floatTexturesUsable() const
{
    return m_floatTexturesUsable;
}

QImage imageWidget::grabPicture(float zoom)
{
    return grabbed(m_look, zoom, false);
}

QImage imageWidget::grabWithAlpha(float zoom)
{
    PictureLook look = m_look;
    look.checkerOn = false;
    look.background = Qt::transparent;
    look.alphaOn = true;
    return grabbed(look, zoom, true);
}

QImage imageWidget::grabbed(const PictureLook &look, float zoom, bool withAlpha)
{
    if (!m_frame || !makeCurrent() || !m_renderer->textures().has(*m_frame))
        return {};
    ViewGeometry whole;
    whole.frame = {m_frame->planeSizes.front().width, m_frame->planeSizes.front().height};
    whole.zoom = zoom;
    whole.view = whole.displayedSize();
    return drawn(
        whole.view,
        [&] {
            m_renderer->drawPicture({m_frame, whole, look});
        },
        withAlpha);
}

QPoint imageWidget::setPan(QPoint wanted)
{
    change(m_pan, viewGeometry().clampedPan(wanted));
    return m_pan;
}

std::int32_t imageWidget::longestSide()
{
    return makeCurrent() ? m_renderer->textures().longestSide() : FrameDisplay::longestSide();
}

void imageWidget::uploadTextures(ImageFrame &frame)
{
    if (!makeCurrent())
        frame.refusal = Refusal::NoContext;
    else if (!m_renderer->usable())
        frame.refusal = Refusal::NoShaders;
    else
        m_renderer->textures().upload(frame);
}

void imageWidget::deleteTextures(ImageFrame &frame)
{
    if (makeCurrent())
        m_renderer->textures().remove(frame);
    frame.textureNames.clear();
}

void imageWidget::showFrame(ImageFrame *frame)
{
    if (frame == m_frame)
        return;
    if (ImageFrame *before = std::exchange(m_frame, frame))
        before->release();
    if (frame)
        frame->retain();
    m_hudLines.clear();
    update();
}

void imageWidget::frameDies(const ImageFrame &frame)
{
    if (&frame != m_frame)
        return;
    m_frame = nullptr;
    m_hudLines.clear();
    update();
}

int imageWidget::liveTextures()
{
    return Textures::live();
}

void imageWidget::setCalibration(const Calibration &calibration)
{
    change(m_look.calibration, calibration);
}

void imageWidget::setSourceGamma(float gamma)
{
    change(m_look.sourceGamma, gamma);
}

void imageWidget::setChannelViewMode(int mode)
{
    change(m_look.channelViewMode, mode);
}

void imageWidget::setCheckerOn(bool on)
{
    change(m_look.checkerOn, on);
}

void imageWidget::setAlphaOn(bool on)
{
    change(m_look.alphaOn, on);
}

void imageWidget::setHudOn(bool on)
{
    change(m_look.hudOn, on);
}

void imageWidget::setZoomFactor(float zoom)
{
    if (std::isfinite(zoom) && zoom > 0.0F)
        change(m_zoom, zoom);
}

void imageWidget::setBackgroundColor(const QColor &color)
{
    change(m_look.background, color);
}

void imageWidget::setHudColor(const QColor &color)
{
    change(m_look.hud, color);
}

void imageWidget::initializeGL()
{
    QOpenGLFunctions &gl = *context()->functions();
    gl.glDisable(GL_DEPTH_TEST);
    const bool core = TAppState::instance().gl32Supported;
    m_floatTexturesUsable = core || hasFloatTextures(*context());
    m_renderer = std::make_unique<PictureRenderer>(GlContext{gl, core});
    Q_EMIT initialized();
}

void imageWidget::contextLost()
{
    if (!m_renderer)
        return;
    m_renderer->textures().abandon();
    m_renderer.reset();
    Q_EMIT texturesLost();
}

void imageWidget::paintGL()
{
    const ViewGeometry view = viewGeometry();
    const bool inHaste = isPresenting() && !std::exchange(m_isStill, false);
    const PictureRenderer::Scene scene{m_frame, view, m_look, inHaste};
    m_renderer->drawPicture(scene);
    if (m_renderer->isHasty())
        m_stillness.start();
    m_renderer->drawBorder(scene);
    if (!m_frame || !m_look.hudOn)
        return;
    if (m_hudLines.isEmpty() || m_hudWidth != width()) {
        m_hudWidth = width();
        m_hudLines = hudLines(*m_frame, m_hudWidth - 2 * kHudMargin);
    }
    m_renderer->drawHud(scene, m_hudLines, devicePixelRatio());
}

void imageWidget::refine()
{
    m_isStill = true;
    update();
}

bool imageWidget::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Hide:
    case QEvent::UngrabMouse:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
        stopPanning();
        break;
    default:
        break;
    }
    return GlPane::event(event);
}

void imageWidget::mousePressEvent(QMouseEvent *event)
{
    if (event->buttons() != Qt::MiddleButton || m_panning) {
        GlPane::mousePressEvent(event);
        return;
    }
    m_pressPosition = devicePosition(*event);
    m_pressPan = m_pan;
    m_panning = true;
    setMouseTracking(true);
    QApplication::setOverrideCursor(Qt::SizeAllCursor);
}

void imageWidget::mouseMoveEvent(QMouseEvent *event)
{
    // The release may have gone to another window.
    if (m_panning && !(event->buttons() & Qt::MiddleButton))
        stopPanning();
    if (!m_panning) {
        GlPane::mouseMoveEvent(event);
        return;
    }
    const QPoint wanted = m_pressPan - (devicePosition(*event) - m_pressPosition);
    Q_EMIT horizontalScrollRequested(wanted.x());
    Q_EMIT verticalScrollRequested(wanted.y());
}

void imageWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_panning) {
        GlPane::mouseReleaseEvent(event);
        return;
    }
    stopPanning();
}

void imageWidget::wheelEvent(QWheelEvent *event)
{
    event->accept();
    // Touchpads send many small parts of a notch.
    const int delta = std::clamp(event->angleDelta().y(), -kMostNotches * kNotch, kMostNotches * kNotch);
    if (delta != 0)
        Q_EMIT zoomRequested(float(delta) / kNotch, event->position() * devicePixelRatio());
}

template <typename T>
void imageWidget::change(T &member, const T &value)
{
    if (member == value)
        return;
    member = value;
    update();
}

ViewGeometry imageWidget::viewGeometry() const
{
    ViewGeometry geometry;
    geometry.view = viewSize();
    if (m_frame && !m_frame->planeSizes.empty())
        geometry.frame = {m_frame->planeSizes.front().width, m_frame->planeSizes.front().height};
    geometry.zoom = m_zoom;
    geometry.pan = m_pan;
    return geometry;
}

QPoint imageWidget::devicePosition(const QMouseEvent &event) const
{
    return (event.position() * devicePixelRatio()).toPoint();
}

void imageWidget::stopPanning()
{
    if (!std::exchange(m_panning, false))
        return;
    setMouseTracking(false);
    QApplication::restoreOverrideCursor();
}

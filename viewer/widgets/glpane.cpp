#include "glpane.h"

#include <viewer/frames/viewerlog.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QOffscreenSurface>
#include <QtGui/QOpenGLContext>
#include <QtGui/QSurfaceFormat>
#include <QtGui/QWheelEvent>
#include <QtGui/QWindow>
#include <QtOpenGL/QOpenGLFramebufferObject>

namespace {

const QEvent::Type kUpdate = QEvent::Type(QEvent::registerEventType());

/// What lies below the picture is never seen through it.
QSurfaceFormat opaqueFormat()
{
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setAlphaBufferSize(0);
    return format;
}

} // namespace

GlPane::GlPane(QWidget *parent)
    : QWidget(parent)
    , m_window(new QWindow)
{
    m_window->setSurfaceType(QSurface::OpenGLSurface);
    m_window->setFormat(opaqueFormat());
    m_window->setFlags(Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus);
    m_window->installEventFilter(this);
    // The same size is another number of device pixels there. Queued: the widget hears of its screen later.
    connect(m_window, &QWindow::screenChanged, this, &GlPane::resized, Qt::QueuedConnection);
    connect(m_window, &QWindow::screenChanged, this, &GlPane::update);
    m_holder = QWidget::createWindowContainer(m_window, this);
    m_holder->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_holder->setFocusPolicy(Qt::NoFocus);
}

GlPane::~GlPane()
{
    endContext();
}

void GlPane::endContext()
{
    m_window->removeEventFilter(this);
    m_failed = true;
    m_context.reset();
}

bool GlPane::createContext()
{
    if (m_failed)
        return false;
    m_offscreen = std::make_unique<QOffscreenSurface>();
    m_offscreen->setFormat(opaqueFormat());
    m_offscreen->create();
    QSurfaceFormat telling = opaqueFormat();
    telling.setOption(QSurfaceFormat::ResetNotification);
    m_failed = !tryContext(telling) && !tryContext(opaqueFormat());
    if (m_failed) {
        qCWarning(lcViewer, "No OpenGL context comes up: pictures are not shown");
        m_context.reset();
        return false;
    }
    for (const char *name : {"glGetGraphicsResetStatus", "glGetGraphicsResetStatusARB"}) {
        if (!m_resetStatus && m_context->format().testOption(QSurfaceFormat::ResetNotification))
            m_resetStatus = reinterpret_cast<ResetStatus>(m_context->getProcAddress(name));
    }
    initializeGL();
    return true;
}

bool GlPane::tryContext(const QSurfaceFormat &format)
{
    m_context = std::make_unique<QOpenGLContext>();
    m_context->setFormat(format);
    return m_context->create() && m_context->makeCurrent(m_offscreen.get());
}

bool GlPane::renewContext()
{
    qCWarning(lcViewer, "The OpenGL context has died: pictures are loaded again");
    contextLost();
    m_resetStatus = nullptr;
    m_context.reset();
    return createContext();
}

bool GlPane::hasReset() const
{
    return m_resetStatus && m_resetStatus() != GL_NO_ERROR;
}

bool GlPane::isCurrent() const
{
    return m_context && QOpenGLContext::currentContext() == m_context.get();
}

bool GlPane::makeCurrent()
{
    if (!m_context && !createContext())
        return false;
    const auto enter = [this] {
        QSurface *surface = m_offscreen.get();
        if (m_window->handle())
            surface = m_window;
        return (isCurrent() && m_context->surface() == surface) || m_context->makeCurrent(surface);
    };
    if (enter() && !hasReset())
        return true;
    return renewContext() && enter();
}

QSize GlPane::viewSize() const
{
    return size() * devicePixelRatio();
}

QImage GlPane::grabFramebuffer()
{
    return drawn(viewSize(), [this] { paintGL(); });
}

QImage GlPane::drawn(QSize pixels, const std::function<void()> &draw, bool withAlpha)
{
    if (!makeCurrent())
        return {};
    // As on the screen without alpha; with it, colours are to come back from their product with a small one.
    QOpenGLFramebufferObject target(pixels, QOpenGLFramebufferObject::NoAttachment, GL_TEXTURE_2D,
                                    withAlpha ? GL_RGBA16 : GL_RGB8);
    if (!target.isValid() || !target.bind())
        return {};
    draw();
    target.release();
    const QImage image = target.toImage();
    return withAlpha ? image.convertToFormat(QImage::Format_RGBA64).convertToFormat(QImage::Format_RGBA8888)
                     : image.convertToFormat(QImage::Format_RGB32);
}

void GlPane::update()
{
    if (m_updatePosted)
        return;
    m_updatePosted = true;
    QCoreApplication::postEvent(this, new QEvent(kUpdate), Qt::LowEventPriority);
}

void GlPane::present()
{
    if (!m_window->isExposed() || !makeCurrent())
        return;
    m_presenting = true;
    paintGL();
    m_presenting = false;
    m_context->swapBuffers(m_window);
    Q_EMIT frameSwapped();
}

bool GlPane::event(QEvent *event)
{
    if (event->type() == kUpdate) {
        m_updatePosted = false;
        present();
        return true;
    }
    // A Wayland window does not follow to another parent: it is made anew there.
    if (event->type() == QEvent::ParentAboutToChange)
        m_window->destroy();
    return QWidget::event(event);
}

bool GlPane::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Expose:
        update();
        // Queued: it is no good to end a window amid its own event.
        if (isWindowLost())
            QMetaObject::invokeMethod(this, &GlPane::renewWindow, Qt::QueuedConnection);
        m_wasExposed = m_wasExposed || m_window->isExposed();
        break;
    case QEvent::PlatformSurface:
        if (isCurrent())
            m_context->doneCurrent(); // before its window goes
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
        passOn(static_cast<QSinglePointEvent &>(*event));
        return true;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

/// A window that goes while all around it is shown was taken away by another program.
bool GlPane::isWindowLost() const
{
    const QWindow *around = window()->windowHandle();
    return m_wasExposed && !m_window->isExposed() && m_window->isVisible() && isVisible() && around
        && around->isExposed();
}

void GlPane::renewWindow()
{
    if (!isWindowLost())
        return;
    qCWarning(lcViewer, "The window of the picture is gone: it is made anew");
    m_wasExposed = false;
    m_window->destroy();
    m_window->show();
}

void GlPane::passOn(const QSinglePointEvent &event)
{
    const QPointF position = event.position() + mapTo(window(), QPoint());
    QWindow *receiver = window()->windowHandle();
    if (event.type() != QEvent::Wheel) {
        QMouseEvent mouse(event.type(), position, position, event.globalPosition(), event.button(),
                          event.buttons(), event.modifiers(), event.pointingDevice());
        QCoreApplication::sendEvent(receiver, &mouse);
        return;
    }
    const auto &turned = static_cast<const QWheelEvent &>(event);
    QWheelEvent wheel(position, event.globalPosition(), turned.pixelDelta(), turned.angleDelta(),
                      event.buttons(), event.modifiers(), turned.phase(), turned.inverted(), turned.source(),
                      event.pointingDevice());
    QCoreApplication::sendEvent(receiver, &wheel);
}

void GlPane::resizeEvent(QResizeEvent *event)
{
    m_holder->setGeometry(rect());
    QWidget::resizeEvent(event);
    // No window system tells of a window that shrinks.
    update();
    Q_EMIT resized();
}

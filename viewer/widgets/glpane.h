#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

#include <functional>
#include <memory>

class QOffscreenSurface;
class QOpenGLContext;
class QSinglePointEvent;
class QSurfaceFormat;
class QWindow;

/// Draws by OpenGL on a native window of its own within the widget, so that a new frame costs no more than itself: a
/// QOpenGLWidget has all of its window composed anew whenever a part of it changes.
/// Input goes to the widget. The context comes up when it is first needed and stays until the widget ends, whatever
/// window that moves to; without a usable one nothing is drawn, and the log says so. One that dies is replaced.
class GlPane : public QWidget {
    Q_OBJECT

public:
    explicit GlPane(QWidget *parent = nullptr);
    ~GlPane() override;

    /// Gives the context; null before the first makeCurrent().
    QOpenGLContext *context() const { return m_context.get(); }
    /// Makes the context current; false without a usable one.
    bool makeCurrent();

    /// Draws into an image of viewSize() pixels; needs no window on the screen. Null without a usable context.
    QImage grabFramebuffer();
    /// Gives the widget's size in device pixels.
    QSize viewSize() const;
    /// Draws viewSize() pixels into the bound framebuffer of the current context.
    virtual void paintGL() = 0;

public Q_SLOTS:
    /// Draws soon, once for any number of calls.
    void update();

Q_SIGNALS:
    /// Tells that what was drawn is on its way to the screen, for who measures what is shown.
    void frameSwapped();
    /// Tells that viewSize() may be another.
    void resized();

protected:
    /// Prepares drawing; the context has come up and is current.
    virtual void initializeGL() = 0;
    /// The context has died, with all that it held; another comes up next. None is current.
    virtual void contextLost() = 0;
    /// Draws into an image of this size, opaque or with the alpha that is drawn; null without a usable context.
    QImage drawn(QSize pixels, const std::function<void()> &draw, bool withAlpha = false);
    /// True while what is drawn goes to the screen.
    bool isPresenting() const { return m_presenting; }
    /// Ends the context and all drawing; for the derived class's destructor, once what it made is gone.
    void endContext();

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool createContext();
    bool tryContext(const QSurfaceFormat &format);
    /// False where no other comes up either.
    bool renewContext();
    bool hasReset() const;
    bool isCurrent() const;
    bool isWindowLost() const;
    void renewWindow();
    void present();
    /// Sends input that the system gave to the window within to the widget's window.
    void passOn(const QSinglePointEvent &event);

    QWindow *m_window = nullptr; // the holder's
    QWidget *m_holder = nullptr; // a child of this
    std::unique_ptr<QOffscreenSurface> m_offscreen; ///< to be current on without a window
    std::unique_ptr<QOpenGLContext> m_context;
    using ResetStatus = unsigned (*)();
    ResetStatus m_resetStatus = nullptr; ///< where the driver tells of resets
    bool m_failed = false;
    bool m_wasExposed = false; // the window within, since it was made
    bool m_updatePosted = false;
    bool m_presenting = false;
};

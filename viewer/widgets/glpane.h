#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

#include <functional>
#include <memory>

class QOffscreenSurface;
class QOpenGLContext;
class QSinglePointEvent;
class QWindow;

/// A widget that is drawn by OpenGL, in a context of its own, on a window of its own within the widget's: what else its
/// window shows is painted and brought to the screen without it. A QOpenGLWidget has its window composed by OpenGL, all of
/// it whenever a part of it changes.
/// The input goes to the widget. The context comes up when it is first needed and stays until the widget ends, whatever
/// windows it moves to; without a usable one, nothing is drawn and the log says so.
class GlPane : public QWidget {
    Q_OBJECT

public:
    explicit GlPane(QWidget *parent = nullptr);
    ~GlPane() override;

    /// Null before the first makeCurrent().
    QOpenGLContext *context() const { return m_context.get(); }
    /// False without a usable context.
    bool makeCurrent();

    /// What is drawn, in device pixels; needs no window on the screen. Null without a usable context.
    QImage grabFramebuffer();
    /// In device pixels.
    QSize viewSize() const;
    /// Draws viewSize() pixels into the framebuffer that is bound, in the current context.
    virtual void paintGL() = 0;

public Q_SLOTS:
    /// Draws soon, once for any number of calls.
    void update();

Q_SIGNALS:
    /// What was drawn is on its way to the screen.
    void frameSwapped();
    /// The view has another size.
    void resized();

protected:
    /// The context has come up and is current.
    virtual void initializeGL() = 0;
    /// What is drawn into a framebuffer of this size; null without a usable context.
    QImage drawn(QSize pixels, const std::function<void()> &draw);
    /// For the derived class's destructor, when it has let go of what it made: nothing is drawn from here on.
    void endContext();

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool createContext();
    bool isCurrent() const;
    void present();
    /// To the widget's window, where the system gives its input to the window within.
    void passOn(const QSinglePointEvent &event);

    QWindow *m_window = nullptr; // the holder's
    QWidget *m_holder = nullptr; // a child of this
    std::unique_ptr<QOffscreenSurface> m_offscreen; ///< to be current on without a window
    std::unique_ptr<QOpenGLContext> m_context;
    bool m_failed = false;
    bool m_updatePosted = false;
};

#include "viewertest.h"

#include <QtCore/QProcess>
#include <QtGui/QOpenGLContext>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

/// What the viewer makes of pictures that are too large, contexts that die and windows that go.
class OpenGlFaultsTest final : public ViewerTest {
    Q_OBJECT

private Q_SLOTS:
    void whatIsTooLargeForOpenGlShowsSmaller()
    {
        QImage wide(20000, 8, QImage::Format_RGB32);
        QVERIFY(wide.save(path(u"wide.png"_s)) && wide.copy(0, 0, 9, 8).save(path(u"narrow.png"_s)));
        const QString text = u"Too large for OpenGL: shown at 1/2 of its size"_s;
        open(u"wide.png"_s);
        QVERIFY(find<QLabel>("infoLabel")->text().endsWith(text));
        delete m_viewer;
        open(u"narrow.png"_s);
        QVERIFY(!find<QLabel>("infoLabel")->text().contains(text));
    }

    void contextThatDiesIsReplaced()
    {
        imageWidget &picture = openOnScreen();
        // As after a driver's reset, whatever is asked of the context fails.
        QOpenGLContext *context = picture.context();
        using Destroy = void (*)(void *, void *);
        const auto destroy = reinterpret_cast<Destroy>(context->getProcAddress("glXDestroyContext"));
        context->doneCurrent();
        destroy(qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->display(),
                context->nativeInterface<QNativeInterface::QGLXContext>()->nativeContext());
        QTest::ignoreMessage(QtWarningMsg, "The OpenGL context has died: pictures are loaded again");
        picture.setBackgroundColor(Qt::green);
        QTRY_COMPARE(onScreen(picture).pixelColor(1, 1), QColor(Qt::green));
        picture.setBackgroundColor(Qt::black);
        QTRY_VERIFY(isShown(picture));
    }

    void windowDestroyedFromOutsideIsReplaced()
    {
        imageWidget &picture = openOnScreen();
        QWindow *drawnOn = nullptr;
        for (QWindow *window : QGuiApplication::allWindows())
            drawnOn = window->surfaceType() == QSurface::OpenGLSurface ? window : drawnOn;
        QVERIFY(drawnOn);
        const WId taken = drawnOn->winId();
        QTest::ignoreMessage(QtWarningMsg, "The window of the picture is gone: it is made anew");
        QProcess::execute(u"xdotool"_s, {u"windowclose"_s, QString::number(taken)});
        QTRY_VERIFY(drawnOn->winId() != taken);
        QTRY_VERIFY(isShown(picture));
    }

private:
    static QImage onScreen(const imageWidget &picture)
    {
        return picture.screen()->grabWindow().toImage().copy({picture.mapToGlobal(QPoint()), picture.size()});
    }

    /// True when the frame and its border are on the screen.
    static bool isShown(imageWidget &picture)
    {
        const QImage screen = onScreen(picture);
        return screen.pixelColor(picture.rect().center()).name() == u"#ba88ff"_s
            && screen == picture.grabFramebuffer().convertToFormat(screen.format());
    }

    /// The picture, once it is there to be seen.
    imageWidget &openOnScreen()
    {
        imageWidget &picture = open(u"shot.0003.exr"_s)->picture();
        picture.setHudOn(false); // drawn by the toolkit, which is not the same in a buffer
        if (!QTest::qWaitFor([&] { return isShown(picture); }))
            qWarning("the frame is not on the screen");
        return picture;
    }
};

QTEST_MAIN(OpenGlFaultsTest)
#include "tst_openglfaults.moc"

#pragma once

#include "glpath.h"
#include "picturereference.h"

#include <viewer/widgets/imagewidget.h>

#include <QtGui/QOpenGLContext>
#include <QtGui/QOpenGLFunctions>
#include <QtGui/QScreen>
#include <QtTest/QtTest>

#include <functional>
#include <memory>

using Spoiling = std::function<void(ImageFrame &)>;

constexpr QSize kFrame(17, 11);
constexpr QRect kPlace(0, 0, 61, 41);
constexpr QRect kLargePlace(0, 0, 400, 300);

inline ImageFrame stored(GLenum internalFormat, GLenum pixelType, int components, int textures = 1)
{
    ImageFrame form;
    form.textureCount = textures;
    form.internalFormat = internalFormat;
    form.components = components;
    form.pixelType = pixelType;
    form.yFlipped = true;
    return form;
}

inline ImageFrame flagged(bool isYCbCr = false, bool premultiplied = false, bool yFlipped = true)
{
    ImageFrame form = stored(GL_RGBA32F, GL_FLOAT, 4);
    form.isYCbCr = isYCbCr;
    form.premultiplied = premultiplied;
    form.yFlipped = yFlipped;
    return form;
}

/// Gives each test a picture in a window, and sees that it leaves neither errors nor textures behind.
class PictureTestBase : public QObject {
    Q_OBJECT

public:
    static void initMain() { chooseGlPath(); }

private Q_SLOTS:
    void init()
    {
        if (m_window)
            return;
        m_window = std::make_unique<QWidget>();
        m_window->setFixedSize(600, 400);
        m_picture = new imageWidget(m_window.get());
        m_picture->setGeometry(kPlace);
        m_picture->setHudOn(false);
        const QSignalSpy shown(m_picture, &imageWidget::frameSwapped);
        m_window->show();
        QTRY_VERIFY(!shown.isEmpty());
        QCOMPARE(m_picture->context()->format().profile(), QSurfaceFormat::defaultFormat().profile());
    }
    void cleanup()
    {
        m_picture->makeCurrent();
        QCOMPARE(m_picture->context()->functions()->glGetError(), 0U);
        // The rows of the pipeline share one: making it takes longest, and what it keeps between paints shows.
        if (qstrcmp(QTest::currentTestFunction(), "pipeline") != 0)
            m_window.reset();
        QCOMPARE(imageWidget::liveTextures(), 0);
    }

protected:
    QImage onScreen() const
    {
        return m_picture->screen()->grabWindow().toImage().copy(
            {m_picture->mapToGlobal(QPoint()), m_picture->size()});
    }

    std::unique_ptr<PictureFrame> show(ImageFrame form, QSize size, const Spoiling &spoil = {})
    {
        form.filePath = "A.exr";
        form.formatName = "exr";
        form.display = m_picture;
        auto shown = std::make_unique<PictureFrame>(form, size);
        if (spoil)
            spoil(shown->frame);
        m_picture->uploadTextures(shown->frame);
        m_picture->showFrame(&shown->frame);
        return shown;
    }

    std::unique_ptr<QWidget> m_window;
    imageWidget *m_picture = nullptr;
};

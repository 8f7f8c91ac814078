#pragma once

#include "glpath.h"
#include "jobframes.h"

#include <ui/product.h>
#include <viewer/frames/cachetotals.h>
#include <viewer/imageviewer.h>
#include <viewer/session/viewersession.h>
#include <viewer/widgets/imagewidget.h>

#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <memory>

constexpr QSize kFrame(64, 48);

/// Gives each test a folder with a sequence of five frames, and sees that a viewer leaves nothing behind.
class ViewerTest : public QObject {
    Q_OBJECT

public:
    static void initMain()
    {
        chooseGlPath();
        QCoreApplication::setOrganizationName(product::kOrganisation);
        QCoreApplication::setApplicationName(product::kApplicationName);
        QApplication::setQuitOnLastWindowClosed(false);
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_totals = {};
        for (int i = 1; i <= 5; ++i)
            writeFrame(path(QStringLiteral("shot.%1.exr").arg(i, 4, 10, QLatin1Char('0'))), kFrame);
    }

    void cleanup()
    {
        delete m_viewer;
        QCOMPARE(m_totals.videoMemoryUsed, 0U);
        QCOMPARE(m_totals.mainMemoryUsed, 0U);
        QCOMPARE(imageWidget::liveTextures(), 0);
        QVERIFY(!QApplication::overrideCursor());
    }

protected:
    ImageViewer *open(const QString &name, const JobFrames &job = {})
    {
        m_viewer = new ImageViewer(m_totals, {.exrImportGamma = 2.2F});
        m_viewer->setJob(job);
        m_viewer->resize(900, 700);
        m_viewer->show();
        if (QTest::qWaitForWindowActive(m_viewer))
            m_viewer->setFramesPath(
                {.path = path(name).toStdString(), .force = true, .maskIsSequence = true});
        return m_viewer;
    }

    template <typename T = QWidget>
    T *find(const char *name) const
    {
        return m_viewer->findChild<T *>(QLatin1String(name));
    }
    QString text(const char *field) const { return find<QLineEdit>(field)->text(); }
    /// Gives what the field makes of it.
    QString type(const char *field, const QString &value) const
    {
        auto *edit = find<QLineEdit>(field);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, value);
        QTest::keyClick(edit, Qt::Key_Return);
        return edit->text();
    }
    /// Gives the frame that it leads to.
    int press(Qt::Key key) const
    {
        QTest::keyClick(QApplication::focusWidget()->window()->windowHandle(), key);
        return frame();
    }
    /// The colour in the middle of the picture.
    QString seen() const
    {
        const QImage picture = m_viewer->picture().grabPicture();
        return picture.pixelColor(picture.rect().center()).name();
    }
    QString path(const QString &name) const { return m_folder->filePath(name); }

    void click(const char *button) const { QTest::mouseClick(find<QAbstractButton>(button), Qt::LeftButton); }
    QPoint frameAt(int index, int count) const
    {
        const QWidget *timeline = find("timeline");
        return {timeline->width() * (2 * index + 1) / (2 * count), 20};
    }
    ViewerSession &session() const { return m_viewer->session(); }
    int frame() const { return session().frame(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    CacheTotals m_totals;
    QPointer<ImageViewer> m_viewer;
};

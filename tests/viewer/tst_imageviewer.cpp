#include "glpath.h"
#include "jobframes.h"
#include "modals.h"

#include <ui/product.h>
#include <viewer/calibrationpanel.h>
#include <viewer/frames/cachetotals.h>
#include <viewer/frames/imageframe.h>
#include <viewer/imageviewer.h>
#include <viewer/session/viewersession.h>
#include <viewer/widgets/imagewidget.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtGui/QWheelEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QToolButton>

#include <memory>

using namespace Qt::StringLiterals;
using TClientLib::TJob;

namespace {

constexpr QSize kFrame(64, 48);

TJob jobOf(int first, int last)
{
    TJob job;
    job.setJobId(42);
    job.setName("shot");
    job.setFrameRanges({{first, last, 1}});
    return job;
}

} // namespace

class ImageViewerTest : public QObject {
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
            writeFrame(path(u"shot.%1.exr"_s.arg(i, 4, 10, QLatin1Char('0'))), kFrame);
    }

    void cleanup()
    {
        delete m_viewer;
        QCOMPARE(m_totals.videoMemoryUsed, 0U);
        QCOMPARE(m_totals.mainMemoryUsed, 0U);
        QCOMPARE(imageWidget::liveTextures(), 0);
        QVERIFY(!QApplication::overrideCursor());
    }

    void showsWhatItIsOpenedOn()
    {
        open(u"shot.0003.exr"_s);
        QVERIFY(session().lastLoad().shown());
        QCOMPARE(frame(), 3);
        QCOMPARE(find<QLabel>("totalFramesLabel")->text(), u"5 frame(s)"_s);
        QCOMPARE(find<QLabel>("startFrameLabel")->text(), u"S:(1)"_s);
        QCOMPARE(find<QLabel>("endFrameLabel")->text(), u"E:(5)"_s);
        QCOMPARE(text("framesPath"), path(u"shot.####.exr"_s));
        QVERIFY(find<QLabel>("infoLabel")->text().startsWith(u"VRAM Cache Usage: 0.00% RAM"_s));
        QVERIFY(m_totals.videoMemoryUsed > 0);
        QVERIFY(find("imageMarker")->isHidden() && find("progressBar")->isHidden());
        // In the middle of the picture, by the formats' own import gamma.
        QCOMPARE(m_viewer->calibration().inputGamma(), 2.2F);
        QCOMPARE(seen(), u"#ba88ff"_s); // 0.5, 0.25 and 1 to the power of 1 / 2.2
        QImage image(kFrame, QImage::Format_RGB32);
        image.fill(u"#804020"_s);
        QVERIFY(image.save(path(u"still.png"_s)));
        type("framesPath", path(u"still.png"_s));
        QCOMPARE(m_viewer->calibration().inputGamma(), 1.0F);
        QCOMPARE(seen(), u"#804020"_s);
        click("zoomIn");
        type("framesPath", path(u"shot.####.exr"_s)); // a mask that is typed stands for its sequence
        QCOMPARE(find<QLabel>("totalFramesLabel")->text(), u"5 frame(s)"_s);
        QCOMPARE(m_viewer->picture().displayedSize(), kFrame);
        delete m_viewer;

        open(u"shot.####.exr"_s, {jobOf(2, 9), chunkOf(7, 3, 4), {}});
        QCOMPARE(m_viewer->windowTitle(), u"Images viewer on job shot (42) chunk ID 7"_s);
        QCOMPARE(session().sequence().frames, (std::set<long>{3, 4}));
        delete m_viewer;

        open(u"shot.####.exr"_s, {jobOf(2, 9), {}, {}});
        QCOMPARE(m_viewer->windowTitle(), u"Images viewer on job shot (42)"_s);
        QCOMPARE(frame(), 2);
        QVERIFY(!find("imageMarker")->isHidden());
    }

    void keysMoveThroughTheFrames()
    {
        open(u"shot.0003.exr"_s);
        QCOMPARE(QApplication::focusWidget(), &m_viewer->picture());
        QCOMPARE(press(Qt::Key_Right), 4);
        QCOMPARE(press(Qt::Key_Left), 3);
        QCOMPARE(press(Qt::Key_Down), 5);
        QCOMPARE(press(Qt::Key_Up), 1);
        press(Qt::Key_Escape);
        press(Qt::Key_Return);
        QVERIFY(m_viewer->isVisible());
        QTest::keyClick(m_viewer, Qt::Key_2, Qt::ControlModifier);
        QTRY_VERIFY(find<QToolButton>("redChannelButton")->isChecked());
        m_viewer->picture().setFocus();
        press(Qt::Key_Tab);
        QVERIFY(!m_viewer->picture().hasFocus());
        find("hudButton")->setFocus();
        QCOMPARE(press(Qt::Key_Right), 2);
        QVERIFY(find<QToolButton>("hudButton")->isChecked());
        // A field has its keys to itself.
        find("fps")->setFocus();
        QCOMPARE(press(Qt::Key_Left), 2);
    }

    void playback()
    {
        open(u"shot.0004.exr"_s);
        QCOMPARE(type("fps", u"0"_s), u"24"_s);
        QCOMPARE(type("fps", u"500.5"_s), u"500.5"_s);
        QCOMPARE(session().playback().interval(), 1); // milliseconds
        click("playAndStop");
        for (const char *name : {"framesPath", "pickFramesPath", "reloadButton"})
            QVERIFY(!find(name)->isEnabled());
        QTRY_COMPARE(frame(), 5);
        QTRY_COMPARE(frame(), 1); // round again
        QTRY_VERIFY(find<QLabel>("playbackRate")->text().endsWith(u" fps"_s));
        click("playAndStop");
        QVERIFY(find("framesPath")->isEnabled());
        const int stopped = frame();
        QCoreApplication::processEvents();
        QCOMPARE(frame(), stopped);
        QVERIFY(find<QLabel>("playbackRate")->text().isEmpty());
    }

    void fields()
    {
        open(u"shot.0003.exr"_s);
        type("byFrame", u"2"_s);
        click("stepBackward");
        QCOMPARE(frame(), 1);
        type("byFrame", u"1"_s);
        QCOMPARE(type("currentFrame", u"99"_s), u"5"_s);
        QCOMPARE(frame(), 5);
        type("endFrame", u"3"_s);
        QCOMPARE(frame(), 3);
        type("startFrame", u"2"_s);
        click("goBegin");
        QCOMPARE(frame(), 2);
        click("goEnd");
        QCOMPARE(frame(), 3);
        QCOMPARE(type("endFrame", u"1"_s), u"5"_s); // before the start: nothing but the start is left
        QCOMPARE(frame(), 2);
        QCOMPARE(type("byFrame", u"6"_s), u"1"_s);
        type("framesPath", path(u"none.exr"_s));
        QVERIFY(!session().lastLoad().shown());
        QVERIFY(!find("timeline")->isEnabled());
    }

    void scrubbing()
    {
        open(u"shot.0001.exr"_s);
        QWidget *timeline = find("timeline");
        const quint64 loaded = m_totals.videoMemoryUsed;
        QTest::mousePress(timeline, Qt::LeftButton, {}, frameAt(1, 5));
        QTest::mouseMove(timeline, frameAt(3, 5));
        QCOMPARE(text("currentFrame"), u"4"_s);
        QCOMPARE(m_totals.videoMemoryUsed, loaded);
        QTest::mouseRelease(timeline, Qt::LeftButton, {}, frameAt(3, 5));
        QCOMPARE(frame(), 4);
        QCOMPARE(m_totals.videoMemoryUsed, 2 * loaded);
        click("liveScrubbing");
        QTest::mousePress(timeline, Qt::LeftButton, {}, frameAt(1, 5));
        QCOMPARE(m_totals.videoMemoryUsed, 3 * loaded);
        QTest::mouseRelease(timeline, Qt::LeftButton, {}, frameAt(1, 5));
    }

    void missingAndBrokenFrames()
    {
        const QString missing = path(u"shot.0006.exr"_s);
        const QString broken = path(u"shot.0005.exr"_s);
        QVERIFY(QFile::resize(broken, 400));
        open(u"shot.####.exr"_s, {jobOf(1, 6), {}, {}});
        QLabel *reason = find<QLabel>("imageWarningReason");
        QTest::keyClick(&m_viewer->picture(), Qt::Key_Down);
        QCOMPARE(reason->text(), u"File not found at path: %1"_s.arg(missing));
        QVERIFY(find("imageContainer")->isHidden());
        QVERIFY(!find<QLabel>("imageWarningLabel")->pixmap().isNull());
        press(Qt::Key_Up); // the keys are still the frames'
        QVERIFY(session().lastLoad().shown());
        press(Qt::Key_Down);
        writeFrame(missing, kFrame);
        QTRY_VERIFY(session().lastLoad().shown());
        QVERIFY(find("imageWarningWidget")->isHidden());
        QVERIFY(reason->text().isEmpty());

        click("stepBackward");
        QCOMPARE(reason->text(), u"Corrupted file at path: %1"_s.arg(broken));
        QVERIFY(!find<QLabel>("imageWarningLabel")->pixmap().isNull());
    }

    void reloadFindsFramesThatCameAndWent()
    {
        open(u"shot.0003.exr"_s);
        writeFrame(path(u"shot.0006.exr"_s), kFrame);
        QVERIFY(QFile::remove(path(u"shot.0001.exr"_s)));
        writeFrame(path(u"shot.0003.exr"_s), kFrame, {{"R", 1.0F}, {"G", 1.0F}, {"B", 1.0F}});
        click("reloadButton");
        QCOMPARE(find<QLabel>("startFrameLabel")->text() + find<QLabel>("endFrameLabel")->text(),
                 u"S:(2)E:(6)"_s);
        QCOMPARE(text("startFrame") + text("endFrame"), u"26"_s);
        QCOMPARE(frame(), 3);
        QCOMPARE(seen(), u"#ffffff"_s);
    }

    void layersOfEachFrame()
    {
        const ExrChannels layered{{"R", 1.0F}, {"G", 0.0F}, {"B", 0.0F}, {"Z", 0.25F}};
        for (const char *name : {"shot.0001.exr", "shot.0003.exr"})
            writeFrame(path(QLatin1String(name)), kFrame, layered);
        writeFrame(path(u"shot.0002.exr"_s), kFrame, {{"a.R", 0.5F}, {"R", 1.0F}});
        open(u"shot.0001.exr"_s);
        const auto *layers = find<QComboBox>("layersSelector");
        const auto entries = [layers] {
            QStringList texts;
            for (int i = 0; i < layers->count(); ++i)
                texts += layers->itemText(i) + (i == layers->currentIndex() ? u"*"_s : QString());
            return texts.join(u' ');
        };
        QCOMPARE(entries(), u"RGB* Z"_s);
        QCOMPARE(seen(), u"#ff0000"_s);
        find("layersSelector")->setFocus();
        QTest::keyClick(find("layersSelector"), Qt::Key_Down);
        QCOMPARE(entries(), u"RGB Z*"_s);
        QCOMPARE(seen(), u"#888888"_s);
        m_viewer->picture().setFocus();
        press(Qt::Key_Right); // without the layer: the file's own first, and the choice stays
        QCOMPARE(layers->count(), 2);
        QCOMPARE(seen(), u"#ffffff"_s);
        press(Qt::Key_Right);
        QCOMPARE(entries(), u"RGB Z*"_s);
        QCOMPARE(seen(), u"#888888"_s);
        type("framesPath", path(u"shot.0005.exr"_s)); // of another sequence nothing was chosen
        QCOMPARE(entries(), u"RGBA*"_s);
    }

    void framesComeBackFromMainMemory()
    {
        m_totals.videoMemoryBudget = 0;
        open(u"shot.0001.exr"_s);
        press(Qt::Key_Right);
        QVERIFY(QFile::remove(path(u"shot.0001.exr"_s)));
        press(Qt::Key_Left);
        QCOMPARE(seen(), u"#ba88ff"_s);
    }

    void backgroundAndBlending()
    {
        writeFrame(path(u"half.exr"_s), kFrame, {{"R", 0.5F}, {"G", 0.0F}, {"B", 0.0F}, {"A", 0.5F}});
        open(u"half.exr"_s);
        const QString blended = seen();
        click("compositeButton");
        QVERIFY(seen() != blended);
        click("checkerButton");
        QCOMPARE(seen(), u"#ba0000"_s); // its colour as it is stored, whatever lies below
        const auto corner = [this] { return m_viewer->picture().grabFramebuffer().pixelColor(0, 0).name(); };
        const QString before = corner();
        for (const bool accepts : {false, true}) {
            QString during;
            whenModalOpens([&](QWidget *dialog) {
                qobject_cast<QColorDialog *>(dialog)->setCurrentColor(u"#102030"_s);
                during = corner();
                QTest::keyClick(dialog, accepts ? Qt::Key_Return : Qt::Key_Escape);
            });
            click("backgroundColorButton");
            QTRY_VERIFY(!QApplication::activeModalWidget() && !during.isEmpty());
            QCOMPARE(during, u"#102030"_s);
            QCOMPARE(corner(), accepts ? during : before);
        }
    }

    void layersAndChannels()
    {
        open(u"shot.0001.exr"_s);
        auto *layers = find<QComboBox>("layersSelector");
        QCOMPARE(layers->count(), 1);
        QCOMPARE(layers->currentText(), u"RGBA"_s);
        QVERIFY(find("alphaChannelButton")->isEnabled());
        click("greenChannelButton");
        QVERIFY(!find<QToolButton>("rgbaChannelButton")->isChecked());
        find<QComboBox>("resizeComboBox")->setCurrentIndex(2);
        QCOMPARE(m_viewer->picture().displayedSize(), kFrame / 4);
        QCOMPARE(m_viewer->picture().grabPicture().pixelColor(5, 5).red(), 136); // green alone, in all three
        click("premultipliedButton"); // sets the frames anew
        QVERIFY(find<QToolButton>("rgbaChannelButton")->isChecked());
        QVERIFY(!m_viewer->picture().frame()->premultiplied);
    }

    void zoomAndLocks()
    {
        writeFrame(path(u"large.exr"_s), {2000, 500});
        open(u"large.exr"_s);
        imageWidget &picture = m_viewer->picture();
        auto *bar = find<QScrollBar>("horizontalScrollBar");
        QCOMPARE(bar->maximum(), 2000 - picture.viewSize().width());
        bar->setValue(100);
        QCOMPARE(picture.pan().x(), 100);
        click("zoomIn");
        QCOMPARE(picture.displayedSize(), QSize(2400, 600));
        click("zoomOut");
        QCOMPARE(picture.pan().x(), 100);
        QMenu *menu = find<QToolButton>("fitPixelSize")->menu();
        Q_EMIT menu->aboutToShow();
        QVERIFY(menu->actions().at(1)->isEnabled() && !menu->actions().at(2)->isEnabled());
        menu->actions().at(1)->trigger();
        QTRY_COMPARE(picture.displayedSize().width(), picture.viewSize().width());
        m_viewer->resize(1000, 700);
        QTRY_COMPARE(picture.displayedSize().width(), picture.viewSize().width());
        find<QToolButton>("setPixelSize")->menu()->actions().at(1)->trigger();
        QCOMPARE(picture.displayedSize(), QSize(2000, 500));
        click("zoomIn"); // locked
        QCOMPARE(picture.displayedSize(), QSize(2000, 500));
        find<QToolButton>("setPixelSize")->menu()->actions().at(2)->trigger();
        const QPoint place(200, 100);
        QTest::mousePress(&picture, Qt::MiddleButton, {}, place);
        QTest::mouseMove(&picture, place - QPoint(30, 10));
        QTest::mouseRelease(&picture, Qt::MiddleButton, {}, place - QPoint(30, 10));
        const QPoint dragged(bar->value(), find<QScrollBar>("verticalScrollBar")->value());
        QCOMPARE(dragged, picture.pan());
        QVERIFY(dragged.x() > 0 && dragged.y() > 0);
        for (const int turn : {120, -120}) {
            QWheelEvent wheel(place, picture.mapToGlobal(place), {}, {0, turn}, {}, {}, Qt::NoScrollPhase,
                              false);
            QApplication::sendEvent(&picture, &wheel);
            QCOMPARE(picture.displayedSize(), turn > 0 ? QSize(2400, 600) : QSize(2000, 500));
        }
        for (int i = 0; i < 100; ++i)
            click("zoomOut");
        QVERIFY(picture.displayedSize().height() * 2 < 64);
        QVERIFY(picture.displayedSize().height() * 2.4 >= 64);
        QVERIFY(!find("zoomOut")->isEnabled());
    }

    void calibration()
    {
        open(u"shot.0001.exr"_s);
        click("calibrationButton");
        QVERIFY(find("calibrationHolder")->isVisible());
        const CalibrationPanel &panel = m_viewer->calibration();
        QCOMPARE(type("outputGammaField", u"5"_s), u"5.00"_s);
        QCOMPARE(panel.calibration().gamma, 5.0F);
        QCOMPARE(find<QSlider>("outputGammaSlider")->value(), 200);
        type("inputLevelStartField", u"-0.5"_s);
        QCOMPARE(panel.calibration().levelInputMin, -0.5F);
        QCOMPARE(find<QSlider>("inputLevelStartSlider")->value(), 0);
        find<QSlider>("softClipSlider")->setValue(55);
        QCOMPARE(panel.calibration().softClip, 0.55F);
        QCOMPARE(text("softClipField"), u"0.55"_s);
        // Either decimal mark is read.
        QCOMPARE(type("softClipField", u"0,5"_s), u"0.50"_s);
        const QImage before = m_viewer->picture().grabPicture();
        type("brightnessField", u"0.25"_s);
        QCOMPARE(find<QSlider>("brightnessSlider")->value(), 25);
        QVERIFY(m_viewer->picture().grabPicture() != before);
        click("calibrationResetToDefaults");
        QCOMPARE(panel.calibration(), (Calibration{1, 1, 1, 1, 0, 1, 0, 1, 0}));
        QCOMPARE(panel.inputGamma(), 2.2F);
    }

    void marks()
    {
        open(u"shot.####.exr"_s, {jobOf(1, 5), {}, {chunkOf(1, 1, 2), chunkOf(2, 3, 4), chunkOf(2, 3, 4)}});
        QWidget *timeline = find("timeline");
        const auto pick = [&](int index, Qt::KeyboardModifiers modifiers) {
            // The timeline asks the application for the keys that are down.
            const Qt::Key key = modifiers & Qt::ShiftModifier ? Qt::Key_Shift : Qt::Key_Control;
            QTest::keyPress(timeline->window(), key, modifiers);
            QTest::mouseClick(timeline, Qt::LeftButton, modifiers, frameAt(index, 5));
            QTest::keyRelease(timeline->window(), key, Qt::NoModifier);
        };
        pick(1, Qt::ShiftModifier);
        QCOMPARE(session().marking().markedChunks(), (MarkedChunks{{2, 1}}));
        pick(4, Qt::ShiftModifier); // of no known chunk
        pick(3, Qt::ControlModifier);
        pick(0, Qt::ControlModifier);
        QCOMPARE(session().marking().markedFrames(), (MarkedFrames{1, 4}));
        QCOMPARE(find<QLabel>("chunksMarkerCounter")->text(), u"1 chunk(s)"_s);
        QCOMPARE(find<QLabel>("framesMarkerCounter")->text(), u"2 frame(s)"_s);
        pick(3, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(session().marking().markedFrames(), (MarkedFrames{1}));
        const QImage strip = find("imageMarker")->grab().toImage();
        QCOMPARE(strip.pixelColor(frameAt(0, 5).x(), 5), QColor(200, 200, 0));
        QCOMPARE(strip.pixelColor(frameAt(1, 5).x(), 5), QColor(255, 125, 0));
        for (const char *name : {"markFrameButton", "markChunkButton", "downloadChunksButton"})
            QVERIFY(!find(name)->isEnabled());
        click("requeueMarkedFrames");
        const auto answer = [this](const QString &button) {
            whenModalOpens([button](QWidget *box) {
                QTest::mouseClick(box->findChild<QWidget *>(button), Qt::LeftButton);
            });
            click("clearMarkingsButton");
        };
        answer(u"skinnedMessageBoxNo"_s);
        QCOMPARE(session().marking().markedFrames().size(), 1);
        answer(u"skinnedMessageBoxYes"_s);
        QVERIFY(session().marking().markedFrames().isEmpty() && session().marking().markedChunks().isEmpty());
        QVERIFY(!find("clearMarkingsButton")->isEnabled());
        m_viewer->setJob({jobOf(1, 5), {}, {chunkOf(2, 1, 1)}}); // where a chunk was before counts no longer
        QCOMPARE(session().marking().chunks().size(), 1U);
    }

    void opensAsItWasLeft()
    {
        open(u"shot.0001.exr"_s)->setGeometry(120, 90, 800, 600);
        whenModalOpens([this](QWidget *chooser) {
            auto *name = chooser->findChild<QLineEdit *>(u"fileNameEdit"_s);
            name->setText(path(u"shot.0002.exr"_s));
            QTest::keyClick(name, Qt::Key_Return);
        });
        click("pickFramesPath");
        QCOMPARE(frame(), 2);
        QVERIFY(!QSettings().value(u"fileSelectorsCaches/ImageViewer"_s).toByteArray().isEmpty());
        m_viewer->close();
        QTRY_VERIFY(!m_viewer);
        ImageViewer again(m_totals, {});
        QCOMPARE(again.geometry(), QRect(120, 90, 800, 600));
        QSettings().clear();
    }

    void fullScreen()
    {
        open(u"shot.0001.exr"_s);
        imageWidget &picture = m_viewer->picture();
        const QImage before = picture.grabPicture();
        click("fullScreen");
        QVERIFY(picture.isWindow());
        QVERIFY(QTest::qWaitForWindowExposed(&picture));
        QTRY_COMPARE(picture.size(), picture.screen()->size());
        QTest::keyClick(&picture, Qt::Key_Right);
        QCOMPARE(frame(), 2);
        QCOMPARE(picture.grabPicture(), before);
        QTest::keyClick(&picture, Qt::Key_Escape);
        QVERIFY(!picture.isWindow());
        QTRY_VERIFY(picture.isVisible() && picture.width() < m_viewer->width());
        QTest::keyClick(&picture, Qt::Key_Left);
        QCOMPARE(picture.grabPicture(), before);
        click("fullScreen");
        QVERIFY(picture.isWindow() && QTest::qWaitForWindowExposed(&picture));
        QTest::keyClick(&picture, Qt::Key_F11);
        QVERIFY(!picture.isWindow());
    }

    void manyViewers()
    {
        QList<QPointer<ImageViewer>> viewers;
        for (int i = 0; i < 20; ++i) {
            viewers += open(u"shot.0001.exr"_s);
            m_viewer->resize(m_viewer->minimumSizeHint());
            click("playAndStop");
        }
        for (const QPointer<ImageViewer> &viewer : viewers)
            QTRY_VERIFY(viewer->session().frame() > 1);
        for (const QPointer<ImageViewer> &viewer : viewers) {
            viewer->close();
            QTRY_VERIFY(!viewer);
        }
    }

private:
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
        QTest::keyClick(QApplication::focusWidget(), key);
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

QTEST_MAIN(ImageViewerTest)
#include "tst_imageviewer.moc"

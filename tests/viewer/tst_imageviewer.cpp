#include "modals.h"
#include "viewertest.h"

#include <ui/look.h>
#include <viewer/calibrationpanel.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtCore/QUrl>
#include <QtGui/QClipboard>
#include <QtGui/QDropEvent>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>

using namespace Qt::StringLiterals;

class ImageViewerTest final : public ViewerTest {
    Q_OBJECT

private Q_SLOTS:
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
        QTRY_COMPARE(m_viewer->picture().displayedSize().height(), m_viewer->picture().viewSize().height());
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

    void thePictureHasTheRoom()
    {
        const QFont font = QApplication::font();
        const auto bare = qScopeGuard([font] {
            qApp->setStyleSheet({});
            QApplication::setFont(font);
        });
        const Look look(*qApp);
        m_viewer = new ImageViewer(m_totals, {});
        m_viewer->show();
        QVERIFY(QTest::qWaitForWindowActive(m_viewer));
        QCOMPARE(m_viewer->size(), QSize(640, 480));
        const auto visible = [this] {
            QStringList names;
            for (const char *name :
                 {"invitation", "image", "horizontalScrollBar", "verticalScrollBar", "timeline",
                  "imageAllocation", "imageMarker", "goBegin", "liveScrubbing", "markFrameButton"})
                names += find(name)->isVisible() ? QStringList(QLatin1String(name)) : QStringList();
            return names.join(u' ');
        };
        QCOMPARE(visible(), u"invitation"_s);
        const auto share = [this] {
            const QSize size = m_viewer->picture().size();
            return size.width() * size.height() * 100 / (640 * 480);
        };
        writeFrame(path(u"still.exr"_s), {640, 480});
        type("framesPath", path(u"still.exr"_s));
        QTRY_VERIFY(share() >= 75);
        QCOMPARE(visible(), u"image"_s);
        click("setPixelSize");
        QCOMPARE(visible(), u"image horizontalScrollBar verticalScrollBar"_s);
        const QPoint corner(find<QScrollBar>("horizontalScrollBar")->maximum(),
                            find<QScrollBar>("verticalScrollBar")->maximum());
        QCOMPARE(m_viewer->picture().setPan({999, 999}), corner); // they lead to all of it
        click("fitPixelSize");
        type("framesPath", path(u"shot.####.exr"_s));
        QTRY_VERIFY(share() >= 60);
        QCOMPARE(visible(), u"image timeline imageAllocation goBegin liveScrubbing"_s);

        const auto places = [this] {
            QList<QRect> rects;
            for (const QWidget *control : find("transport")->findChildren<QWidget *>())
                rects += control->geometry();
            return rects;
        };
        const QList<QRect> before = places();
        type("fps", u"500"_s);
        click("playAndStop");
        QTRY_VERIFY(!find<QLabel>("playbackRate")->text().isEmpty());
        QCOMPARE(places(), before);
        click("playAndStop");
        delete m_viewer;

        open(u"shot.####.exr"_s, {jobOf(1, 5), {}, {}});
        QCOMPARE(visible(),
                 u"image timeline imageAllocation imageMarker goBegin liveScrubbing markFrameButton"_s);
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
        for (const char *field : {"framesPath", "fps", "currentFrame"}) {
            find(field)->setFocus();
            QTest::keyClick(m_viewer->windowHandle(), Qt::Key_Space);
            QVERIFY2(!session().playback().isPlaying() && find(field)->hasFocus(), field);
        }
        QVERIFY(text("framesPath").endsWith(u' '));
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
        for (int times = 0; times < 2; ++times)
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
        QVERIFY(find<QLabel>("imageWarningDetails")->text().startsWith(u"What is wrong: "_s));
        QFile notes(path(u"notes.txt"_s));
        QVERIFY(notes.open(QIODevice::WriteOnly) && notes.write("healthy") > 0);
        notes.close();
        m_viewer->setJob({});
        m_viewer->setFramesPath({.path = notes.fileName().toStdString()});
        QCOMPARE(reason->text(), u"File that cannot be shown at path: %1"_s.arg(notes.fileName()));
        QVERIFY(!find<QLabel>("imageWarningLabel")->pixmap().isNull());
    }

    /// A picture without alpha: what is written of it shows, the checker where nothing is, and the window says how much.
    void incompleteFrames()
    {
        const QString cut = path(u"shot.0001.exr"_s);
        writeFrame(cut, kFrame, {{"R", 1.0F}, {"G", 1.0F}, {"B", 1.0F}});
        QVERIFY(QFile::resize(cut, QFileInfo(cut).size() - 10));
        open(u"shot.0001.exr"_s);
        const QImage picture = m_viewer->picture().grabPicture();
        QCOMPARE(picture.pixelColor(5, 31), QColor(Qt::white));
        for (int y = 32; y < picture.height(); ++y)
            QVERIFY(picture.pixelColor(5, y) != QColor(Qt::white)
                    && picture.pixelColor(5, y) != QColor(Qt::black));
        QVERIFY(find<QLabel>("infoLabel")->text().endsWith(u"66 % written"_s));
        QVERIFY(find("imageWarningWidget")->isHidden());
    }

    void whatIsTypedAndDropped()
    {
        open(u"none.####.exr"_s);
        QVERIFY(!find("imageWarningWidget")->isHidden());
        const auto drop = [this](const QList<QUrl> &urls) {
            QMimeData data;
            data.setUrls(urls);
            QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(m_viewer, &enter);
            QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
            if (enter.isAccepted())
                QApplication::sendEvent(m_viewer, &event);
            return text("framesPath");
        };
        const QString mask = path(u"shot.####.exr"_s);
        QVERIFY(QFile::remove(path(u"shot.0004.exr"_s)));
        const QUrl folder = QUrl::fromLocalFile(m_folder->path());
        QCOMPARE(type("framesPath", folder.toString()), mask);
        QCOMPARE(session().sequence().frames, (std::set<long>{1, 2, 3}));
        QCOMPARE(drop({QUrl(u"https://example.org/x.exr"_s)}), mask);
        writeFrame(path(u"b 1.exr"_s), kFrame);
        QCOMPARE(drop({QUrl::fromLocalFile(path(u"b 1.exr"_s))}), path(u"b 1.exr"_s));
        QCOMPARE(drop({folder}), path(u"b 1.exr"_s)); // its first
        const QString several = path(u"shot.0005.exr"_s) + u' ' + path(u"shot.0002.exr"_s);
        QCOMPARE(type("framesPath", several), mask);
        QCOMPARE(frame(), 2);
        QCOMPARE(session().sequence().frames, (std::set<long>{1, 2, 3, 5}));
        QCOMPARE(type("framesPath", u"'%1'"_s.arg(path(u"b 1.exr"_s))), path(u"b 1.exr"_s));
        // Playing closes the field, which opens what stands there.
        type("framesPath", mask);
        find("framesPath")->setFocus();
        QTest::keyClick(m_viewer->windowHandle(), Qt::Key_Backspace);
        click("playAndStop");
        QVERIFY(!session().playback().isPlaying() && !find("imageWarningWidget")->isHidden());
        QVERIFY(find("framesPath")->isEnabled() && find("reloadButton")->isEnabled());
    }

    void reloadFindsFramesThatCameAndWent()
    {
        open(u"shot.0003.exr"_s);
        writeFrame(path(u"shot.0007.exr"_s), kFrame);
        QVERIFY(QFile::remove(path(u"shot.0001.exr"_s)));
        writeFrame(path(u"shot.0003.exr"_s), kFrame, {{"R", 1.0F}, {"G", 1.0F}, {"B", 1.0F}});
        click("reloadButton");
        QCOMPARE(find<QLabel>("startFrameLabel")->text() + find<QLabel>("endFrameLabel")->text(),
                 u"S:(1)E:(7)"_s);
        QCOMPARE(text("startFrame") + text("endFrame"), u"17"_s);
        QCOMPARE(frame(), 3);
        QCOMPARE(seen(), u"#ffffff"_s);
    }

    void marks()
    {
        open(u"shot.####.exr"_s, {jobOf(1, 5), {}, {chunkOf(1, 1, 2), chunkOf(2, 3, 4), chunkOf(2, 3, 4)}});
        QWidget *timeline = find("timeline");
        const auto pick = [&](int index, Qt::KeyboardModifiers modifiers) {
            // The timeline asks the application for the keys that are down.
            const Qt::Key key = modifiers & Qt::ShiftModifier ? Qt::Key_Shift : Qt::Key_Control;
            QTest::keyEvent(modifiers ? QTest::Press : QTest::Release, timeline->window(), key, modifiers);
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
        pick(3, Qt::ControlModifier); // the current one
        click("markFrameButton");
        pick(2, Qt::NoModifier);
        click("markChunkButton");
        click("markFrameButton");
        pick(4, Qt::ControlModifier);
        QVERIFY(!find("markChunkButton")->isEnabled());
        const auto copied = [this](const char *counter, int action) {
            find(counter)->actions().at(action)->trigger();
            return QGuiApplication::clipboard()->text();
        };
        QCOMPARE(copied("framesMarkerCounter", 0), u"1,3,5"_s);
        QCOMPARE(copied("chunksMarkerCounter", 0), u"1-2"_s);
        QCOMPARE(copied("chunksMarkerCounter", 1), u"1-4"_s);
        const QImage strip = find("imageMarker")->grab().toImage();
        QCOMPARE(strip.pixelColor(frameAt(0, 5).x(), 5), QColor(200, 200, 0));
        QCOMPARE(strip.pixelColor(frameAt(1, 5).x(), 5), QColor(255, 125, 0));
        QVERIFY(!find("downloadChunksButton")->isEnabled());
        click("requeueMarkedFrames");
        const auto answer = [this](const QString &button) {
            whenModalOpens([button](QWidget *box) {
                QTest::mouseClick(box->findChild<QWidget *>(button), Qt::LeftButton);
            });
            click("clearMarkingsButton");
        };
        answer(u"skinnedMessageBoxNo"_s);
        whenModalOpens([](QWidget *box) { QTest::keyClick(box, Qt::Key_Escape); });
        click("clearMarkingsButton");
        QCOMPARE(session().marking().markedFrames().size(), 3);
        answer(u"skinnedMessageBoxYes"_s);
        QVERIFY(session().marking().markedFrames().isEmpty() && session().marking().markedChunks().isEmpty());
        QVERIFY(!find("clearMarkingsButton")->isEnabled());
        m_viewer->setJob({jobOf(1, 5), {}, {chunkOf(2, 1, 1)}}); // where a chunk was before counts no longer
        QCOMPARE(session().marking().chunks().size(), 1U);
    }

    void keysWorkAfterAnyClick()
    {
        QVERIFY(QFile::resize(path(u"shot.0001.exr"_s), 400));
        m_viewer = new ImageViewer(m_totals, {.exrImportGamma = 2.2F});
        m_viewer->show();
        m_viewer->setFramesPath({.path = path(u"shot.0001.exr"_s).toStdString()}); // before it is active
        QVERIFY(QTest::qWaitForWindowActive(m_viewer));
        QCOMPARE(press(Qt::Key_Right), 2);
        press(Qt::Key_Up);
        QTest::mouseClick(find("imageWarningReason"), Qt::LeftButton);
        QCOMPARE(press(Qt::Key_Right), 2);
        click("calibrationButton");
        type("fps", u"0.001"_s);
        for (const char *name : {"liveScrubbing", "layersSelector", "timeline", "brightnessSlider",
                                 "infoLabel", "hudButton", "horizontalScrollBar", "image"}) {
            find("fps")->setFocus();
            QTest::mouseClick(m_viewer->windowHandle(), Qt::LeftButton, {},
                              find(name)->mapTo(m_viewer.data(), QPoint(20, find(name)->height() / 2)));
            if (QWidget *popup = QApplication::activePopupWidget())
                popup->close();
            QCOMPARE(press(Qt::Key_Up), 1);
            QCOMPARE(press(Qt::Key_Right), 2);
            press(Qt::Key_Space);
            QVERIFY2(session().playback().isPlaying(), name);
            press(Qt::Key_Space);
            QVERIFY(!session().playback().isPlaying());
        }
        QVERIFY(find<QCheckBox>("liveScrubbing")->isChecked());
        find("fps")->setFocus();
        QTest::keyClick(find("fps"), Qt::Key_Return);
        const QWidget *form = QApplication::focusWidget();
        QVERIFY(form != find("fps"));
        press(Qt::Key_Tab);
        QVERIFY(QApplication::focusWidget() != form);
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
        click("calibrationButton");
        m_viewer->close();
        QTRY_VERIFY(!m_viewer);
        ImageViewer again(m_totals, {});
        QVERIFY(!again.findChild<QWidget *>(u"sidePanel"_s)->isHidden());
        QCOMPARE(again.geometry(), QRect(120, 90, 800, 600));
        QSettings().clear();
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
};

QTEST_MAIN(ImageViewerTest)
#include "tst_imageviewer.moc"

#include "modals.h"
#include "viewertest.h"

#include <viewer/calibrationpanel.h>
#include <viewer/frames/imageframe.h>
#include <viewer/widgets/render/hud.h>

#include <QtCore/QFile>
#include <QtGui/QWheelEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QToolButton>

#include <cmath>

using namespace Qt::StringLiterals;

/// What the controls of a viewer do to its picture.
class ViewerPictureTest final : public ViewerTest {
    Q_OBJECT

private Q_SLOTS:
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
        QCOMPARE(entries(), u"R (no Z)* R a.R"_s);
        QCOMPARE(seen(), u"#ffffff"_s);
        press(Qt::Key_Right);
        QCOMPARE(entries(), u"RGB Z*"_s);
        QCOMPARE(seen(), u"#888888"_s);
        type("framesPath", path(u"shot.0005.exr"_s)); // of another sequence nothing was chosen
        QCOMPARE(entries(), u"RGBA*"_s);
        click("redChannelButton");
        QCOMPARE(seen(), u"#bababa"_s);
        writeFrame(path(u"other.exr"_s), kFrame);
        type("framesPath", path(u"other.exr"_s));
        QCOMPARE(seen(), u"#ba88ff"_s);
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
        QCOMPARE(m_viewer->picture().frame()->planeSizes.front(), (PlaneSize{16, 12}));
        QCOMPARE(m_viewer->picture().grabPicture().pixelColor(5, 5).red(), 136); // green alone, in all three
    }

    void theHudTellsWhatTheFileHolds()
    {
        QVERIFY(QImage(kFrame, QImage::Format_RGBX64).save(path(u"short.png"_s)));
        QVERIFY(QImage(kFrame, QImage::Format_Grayscale16).save(path(u"grey.png"_s)));
        for (const auto &[file, told] : {std::pair(u"short.png"_s, u"U16|RGB|3|RGB"_s),
                                         {u"grey.png"_s, u"U16|Luminance|1|Luminance"_s},
                                         {u"shot.0001.exr"_s, u"F32|R,G,B,A|1|Luminance"_s}}) {
            open(file);
            QStringList values;
            for (const QString &line : hudLines(*m_viewer->picture().frame()))
                values += line.section(u": "_s, 1);
            QCOMPARE(values.sliced(3).join(u'|'), told);
            delete m_viewer;
        }
    }

    void zoomAndLocks()
    {
        writeFrame(path(u"large.exr"_s), {2000, 800});
        open(u"large.exr"_s);
        imageWidget &picture = m_viewer->picture();
        auto *fit = find<QToolButton>("fitPixelSize");
        auto *pixels = find<QToolButton>("setPixelSize");
        const auto isWhole = [&] { return picture.displayedSize().width() == picture.viewSize().width(); };
        QTRY_VERIFY(isWhole());
        click("calibrationButton");
        QTRY_VERIFY(isWhole());
        QVERIFY(fit->isChecked());
        click("setPixelSize");
        QCOMPARE(picture.displayedSize(), QSize(2000, 800));
        QVERIFY(pixels->isChecked() && !fit->isChecked());
        auto *bar = find<QScrollBar>("horizontalScrollBar");
        QCOMPARE(bar->maximum(), 2000 - picture.viewSize().width());
        bar->setValue(100);
        QCOMPARE(picture.pan().x(), 100);
        click("zoomIn");
        QCOMPARE(picture.displayedSize(), QSize(2400, 960));
        QVERIFY(!pixels->isChecked());
        click("zoomOut");
        QCOMPARE(picture.pan().x(), 100);

        click("setPixelSize");
        // What is drawn on is a window of its own within the picture.
        QWindow *drawnOn = nullptr;
        for (QWindow *window : QGuiApplication::allWindows())
            drawnOn = window->surfaceType() == QSurface::OpenGLSurface ? window : drawnOn;
        QVERIFY(drawnOn);
        const QPoint place(200, 100);
        const QPoint before = picture.pan();
        QTest::mousePress(drawnOn, Qt::MiddleButton, {}, place);
        QTest::mouseMove(drawnOn, place - QPoint(30, 10));
        QTest::mouseRelease(drawnOn, Qt::MiddleButton, {}, place - QPoint(30, 10));
        const QPoint dragged(bar->value(), find<QScrollBar>("verticalScrollBar")->value());
        QCOMPARE(dragged, picture.pan());
        QCOMPARE(dragged - before, QPoint(30, 10) * picture.devicePixelRatio());
        QMenu *menu = fit->menu();
        Q_EMIT menu->aboutToShow();
        QVERIFY(menu->actions().at(1)->isEnabled() && !menu->actions().at(2)->isEnabled());
        menu->actions().at(0)->trigger();
        QVERIFY(isWhole() && !fit->isChecked());
        menu->actions().at(1)->trigger();
        QVERIFY(fit->isChecked());
        m_viewer->resize(1000, 700);
        QTRY_VERIFY(isWhole());
        for (int i = 0; i < 100; ++i)
            click("zoomOut");
        QVERIFY(!fit->isChecked());
        QVERIFY(picture.displayedSize().height() * 2 < 64);
        QVERIFY((picture.displayedSize().height() + 1) * 2.4 >= 64); // of whole pixels
        QVERIFY(!find("zoomOut")->isEnabled());
        type("framesPath", path(u"shot.0001.exr"_s)); // another path shows whole
        QTRY_VERIFY(isWhole());
    }

    void zoomsAboutThePointer()
    {
        writeFrame(path(u"large.exr"_s), {2000, 1500});
        open(u"large.exr"_s);
        imageWidget &picture = m_viewer->picture();
        QTRY_COMPARE(picture.displayedSize().height(), picture.viewSize().height());
        const QPoint at(picture.width() / 2, 30);
        const auto under = [&] { return (at.y() + picture.pan().y()) / picture.zoomFactor(); }; // row
        const float before = under();
        const float zoom = picture.zoomFactor();
        const auto turn = [&](int angle, int times) {
            for (; times > 0; --times) {
                QWheelEvent event(at, picture.mapToGlobal(at), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                                  Qt::NoScrollPhase, false);
                QApplication::sendEvent(&picture, &event);
            }
        };
        turn(1, 120 * 12); // a touchpad
        QVERIFY(picture.pan().y() > 0);
        QVERIFY2(std::abs(under() - before) < 1, qPrintable(u"%1 after %2"_s.arg(under()).arg(before)));
        turn(-120, 12); // a wheel's way back
        QVERIFY(std::abs(picture.zoomFactor() / zoom - 1) < 0.001F);
        turn(1 << 30, 50);
        QVERIFY(picture.zoomFactor() > 100 && picture.zoomFactor() <= 120.01F);
    }

    void whatIsLookedAtStays()
    {
        open(u"shot.0003.exr"_s);
        imageWidget &picture = m_viewer->picture();
        click("setPixelSize");
        for (int i = 0; i < 20; ++i)
            click("zoomIn");
        find<QScrollBar>("verticalScrollBar")->setValue(50);
        click("redChannelButton");
        type("startFrame", u"2"_s);
        type("brightnessField", u"0.25"_s);
        const QSize shown = picture.displayedSize();
        const QImage look = picture.grabPicture();
        writeFrame(path(u"shot.0006.exr"_s), kFrame);
        for (const char *button : {"reloadButton", "premultipliedButton"}) {
            click(button);
            QCOMPARE(frame(), 3);
            QCOMPARE(picture.displayedSize(), shown);
            QCOMPARE(picture.pan().y(), 50);
            QVERIFY(find<QToolButton>("redChannelButton")->isChecked());
            QCOMPARE(text("startFrame"), u"2"_s);
            QCOMPARE(text("endFrame"), u"6"_s);
            QCOMPARE(picture.grabPicture(), look);
        }
        QVERIFY(!picture.frame()->premultiplied);
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

    void fullScreen()
    {
        open(u"shot.####.exr"_s, {jobOf(1, 6), {}, {}});
        imageWidget &picture = m_viewer->picture();
        const QImage before = picture.grabPicture();
        const auto keyInFullScreen = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        };
        press(Qt::Key_F11);
        QTRY_VERIFY(picture.window() != m_viewer);
        QVERIFY(QTest::qWaitForWindowActive(picture.window()));
        QTRY_COMPARE(picture.size(), picture.screen()->size());
        QTRY_COMPARE(picture.displayedSize().height(), picture.viewSize().height()); // fitted
        keyInFullScreen(Qt::Key_Right);
        QCOMPARE(frame(), 2);
        QCOMPARE(picture.grabPicture(), before);
        keyInFullScreen(Qt::Key_2, Qt::ControlModifier);
        QTRY_VERIFY(find<QToolButton>("redChannelButton")->isChecked());
        keyInFullScreen(Qt::Key_0, Qt::ControlModifier);
        QTRY_COMPARE(picture.displayedSize(), kFrame);
        keyInFullScreen(Qt::Key_Down); // missing
        auto *panel = picture.window()->findChild<QWidget *>(u"imageWarningWidget"_s);
        QVERIFY(panel && panel->isVisible() && !picture.isVisible());
        keyInFullScreen(Qt::Key_Left);
        QVERIFY(picture.isVisible() && !panel->isVisible());
        keyInFullScreen(Qt::Key_Right);
        keyInFullScreen(Qt::Key_Escape);
        QTRY_COMPARE(QApplication::activeWindow(), m_viewer.data());
        QVERIFY(panel->isVisible() && panel->window() == m_viewer && find("imageContainer")->isHidden());
        QCOMPARE(press(Qt::Key_Up), 1);
        QTRY_VERIFY(picture.isVisible() && picture.width() < m_viewer->width());
        QCOMPARE(picture.displayedSize(), kFrame);
        click("rgbaChannelButton");
        QCOMPARE(picture.grabPicture(), before);
    }
};

QTEST_MAIN(ViewerPictureTest)
#include "tst_viewerpicture.moc"

#include "glpath.h"
#include "modals.h"

#include <cachetotals.h>
#include <calibrationpanel.h>
#include <imageframe.h>
#include <imageviewer.h>
#include <imagewidget.h>
#include <product.h>

#include <ImfRgbaFile.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QToolButton>

#include <memory>
#include <vector>

using TClientLib::TChunk;
using TClientLib::TJob;

namespace {

constexpr QSize kFrame(64, 48);

void writeFrame(const QString &path, QSize size = kFrame)
{
    Imf::RgbaOutputFile file(path.toLocal8Bit().constData(), size.width(), size.height(), Imf::WRITE_RGBA);
    const std::vector<Imf::Rgba> pixels(std::size_t(size.width() * size.height()),
                                        Imf::Rgba(0.5F, 0.25F, 1, 1));
    file.setFrameBuffer(pixels.data(), 1, std::size_t(size.width()));
    file.writePixels(size.height());
}

TJob jobOf(int first, int last)
{
    TJob job;
    job.setJobId(42);
    job.setName("shot");
    job.setFrameRanges({{first, last, 1}});
    return job;
}

TChunk chunkOf(int id, int first, int last)
{
    TChunk chunk;
    chunk.setChunkId(id);
    chunk.setJobId(42);
    chunk.setFrames(first, last, 1);
    return chunk;
}

} // namespace

class ImageViewerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsWhatItIsOpenedOn();
    void keysMoveThroughTheFrames();
    void playback();
    void fields();
    void scrubbing();
    void missingAndBrokenFrames();
    void framesComeAndGoWhilePlaying();
    void layersAndChannels();
    void zoomAndLocks();
    void calibration();
    void marks();
    void fullScreen();
    void manyViewers();

private:
    ImageViewer *open(const QString &name, const JobFrames &job = {});
    template <typename T = QWidget>
    T *find(const char *name) const
    {
        return m_viewer->findChild<T *>(QLatin1String(name));
    }
    QString text(const char *field) const { return find<QLineEdit>(field)->text(); }
    void type(const char *field, const QString &value) const;
    void click(const char *button) const { QTest::mouseClick(find<QAbstractButton>(button), Qt::LeftButton); }
    QPoint frameAt(int index, int count) const
    {
        const QWidget *timeline = find("timeline");
        return {timeline->width() * (2 * index + 1) / (2 * count), 20};
    }
    int frame() const { return m_viewer->sequence().currentFrame; }

    std::unique_ptr<QTemporaryDir> m_folder;
    CacheTotals m_totals;
    QPointer<ImageViewer> m_viewer;
};

void ImageViewerTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    for (int i = 1; i <= 5; ++i)
        writeFrame(m_folder->filePath(QStringLiteral("shot.%1.exr").arg(i, 4, 10, QLatin1Char('0'))));
}

void ImageViewerTest::cleanup()
{
    delete m_viewer;
    QCOMPARE(m_totals.videoMemoryUsed, 0U);
    QCOMPARE(m_totals.mainMemoryUsed, 0U);
    QCOMPARE(imageWidget::liveTextures(), 0);
    QVERIFY(!QApplication::overrideCursor());
}

ImageViewer *ImageViewerTest::open(const QString &name, const JobFrames &job)
{
    m_viewer = new ImageViewer(m_totals, {});
    m_viewer->setJob(job);
    m_viewer->resize(900, 700);
    m_viewer->show();
    if (QTest::qWaitForWindowActive(m_viewer))
        m_viewer->setFramesPath(
            {m_folder->filePath(name).toStdString(), true, FramesRequest::kNoFrame, true});
    return m_viewer;
}

void ImageViewerTest::type(const char *field, const QString &value) const
{
    auto *edit = find<QLineEdit>(field);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, value);
    QTest::keyClick(edit, Qt::Key_Return);
}

void ImageViewerTest::showsWhatItIsOpenedOn()
{
    open(QStringLiteral("shot.0003.exr"));
    QVERIFY(m_viewer->lastLoad().shown());
    QCOMPARE(frame(), 3);
    QCOMPARE(find<QLabel>("totalFramesLabel")->text(), QStringLiteral("5 frame(s)"));
    QCOMPARE(find<QLabel>("startFrameLabel")->text(), QStringLiteral("S:(1)"));
    QCOMPARE(find<QLabel>("endFrameLabel")->text(), QStringLiteral("E:(5)"));
    QCOMPARE(text("framesPath"), m_folder->filePath(QStringLiteral("shot.####.exr")));
    QVERIFY(find<QLabel>("infoLabel")->text().startsWith(QStringLiteral("VRAM Cache Usage: 0.00% RAM")));
    QVERIFY(m_totals.videoMemoryUsed > 0);
    QVERIFY(find("imageMarker")->isHidden());
    // In the middle of the picture, by the formats' own import gamma.
    QCOMPARE(m_viewer->calibration().inputGamma(), 2.2F);
    const QRgb seen = m_viewer->picture().grabPicture().pixel(60, 20);
    QCOMPARE(QColor(seen).name(), QStringLiteral("#ba88ff")); // 0.5, 0.25 and 1 to the power of 1 / 2.2
    delete m_viewer;

    open(QStringLiteral("shot.####.exr"), {jobOf(2, 9), chunkOf(7, 3, 4), {}});
    QCOMPARE(m_viewer->windowTitle(), QStringLiteral("Images viewer on job shot (42) chunk ID 7"));
    QCOMPARE(m_viewer->sequence().frames, (std::set<long>{3, 4}));
    delete m_viewer;

    open(QStringLiteral("shot.####.exr"), {jobOf(2, 9), {}, {}});
    QCOMPARE(m_viewer->windowTitle(), QStringLiteral("Images viewer on job shot (42)"));
    QCOMPARE(frame(), 2);
    QVERIFY(!find("imageMarker")->isHidden());
}

void ImageViewerTest::keysMoveThroughTheFrames()
{
    open(QStringLiteral("shot.0003.exr"));
    const auto press = [this](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    QCOMPARE(QApplication::focusWidget(), &m_viewer->picture());
    press(Qt::Key_Right);
    QCOMPARE(frame(), 4);
    press(Qt::Key_Left);
    QCOMPARE(frame(), 3);
    press(Qt::Key_Down);
    QCOMPARE(frame(), 5);
    press(Qt::Key_Up);
    QCOMPARE(frame(), 1);
    press(Qt::Key_Escape);
    press(Qt::Key_Return);
    QVERIFY(m_viewer->isVisible());
    QTest::keyClick(m_viewer, Qt::Key_2, Qt::ControlModifier);
    QTRY_VERIFY(find<QToolButton>("redChannelButton")->isChecked());
    find("hudButton")->setFocus();
    press(Qt::Key_Right);
    QCOMPARE(frame(), 2);
    QVERIFY(find<QToolButton>("hudButton")->isChecked());
    // A field has its keys to itself.
    find("fps")->setFocus();
    press(Qt::Key_Left);
    QCOMPARE(frame(), 2);
}

void ImageViewerTest::playback()
{
    open(QStringLiteral("shot.0004.exr"));
    type("fps", QStringLiteral("-5"));
    QCOMPARE(text("fps"), QStringLiteral("24"));
    type("fps", QStringLiteral("500.5"));
    QCOMPARE(text("fps"), QStringLiteral("500.5"));
    click("playAndStop");
    for (const char *name : {"framesPath", "pickFramesPath", "reloadButton"})
        QVERIFY(!find(name)->isEnabled());
    QTRY_COMPARE(frame(), 5);
    QTRY_COMPARE(frame(), 1); // round again
    QTRY_VERIFY(find<QLabel>("playbackRate")->text().endsWith(QStringLiteral(" fps")));
    click("playAndStop");
    QVERIFY(find("framesPath")->isEnabled());
    const int stopped = frame();
    QCoreApplication::processEvents();
    QCOMPARE(frame(), stopped);
    QVERIFY(find<QLabel>("playbackRate")->text().isEmpty());
}

void ImageViewerTest::fields()
{
    open(QStringLiteral("shot.0003.exr"));
    type("currentFrame", QStringLiteral("99"));
    QCOMPARE(frame(), 5);
    QCOMPARE(text("currentFrame"), QStringLiteral("5"));
    type("endFrame", QStringLiteral("3"));
    QCOMPARE(frame(), 3);
    type("startFrame", QStringLiteral("2"));
    click("goBegin");
    QCOMPARE(frame(), 2);
    click("goEnd");
    QCOMPARE(frame(), 3);
    type("endFrame", QStringLiteral("1")); // before the start: nothing but the start is left
    QCOMPARE(text("endFrame"), QStringLiteral("5"));
    QCOMPARE(frame(), 2);
    type("byFrame", QStringLiteral("6"));
    QCOMPARE(text("byFrame"), QStringLiteral("1"));
    type("framesPath", m_folder->filePath(QStringLiteral("none.exr")));
    QVERIFY(!m_viewer->lastLoad().shown());
    QVERIFY(!find("timeline")->isEnabled());
}

void ImageViewerTest::scrubbing()
{
    open(QStringLiteral("shot.0001.exr"));
    QWidget *timeline = find("timeline");
    const quint64 loaded = m_totals.videoMemoryUsed;
    QTest::mousePress(timeline, Qt::LeftButton, {}, frameAt(1, 5));
    QTest::mouseMove(timeline, frameAt(3, 5));
    QCOMPARE(text("currentFrame"), QStringLiteral("4"));
    QCOMPARE(m_totals.videoMemoryUsed, loaded);
    QTest::mouseRelease(timeline, Qt::LeftButton, {}, frameAt(3, 5));
    QCOMPARE(frame(), 4);
    QCOMPARE(m_totals.videoMemoryUsed, 2 * loaded);
    click("liveScrubbing");
    QTest::mousePress(timeline, Qt::LeftButton, {}, frameAt(1, 5));
    QCOMPARE(m_totals.videoMemoryUsed, 3 * loaded);
    QTest::mouseRelease(timeline, Qt::LeftButton, {}, frameAt(1, 5));
}

void ImageViewerTest::missingAndBrokenFrames()
{
    const QString missing = m_folder->filePath(QStringLiteral("shot.0006.exr"));
    const QString broken = m_folder->filePath(QStringLiteral("shot.0005.exr"));
    QVERIFY(QFile::resize(broken, 400));
    open(QStringLiteral("shot.####.exr"), {jobOf(1, 6), {}, {}});
    QLabel *reason = find<QLabel>("imageWarningReason");
    QTest::keyClick(&m_viewer->picture(), Qt::Key_Down);
    QCOMPARE(reason->text(), QStringLiteral("File not found at path: %1").arg(missing));
    QVERIFY(find("imageContainer")->isHidden());
    QVERIFY(!find<QLabel>("imageWarningLabel")->pixmap().isNull());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up); // the keys are still the frames'
    QVERIFY(m_viewer->lastLoad().shown());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    // A renderer writes elsewhere and puts the whole file in its place.
    writeFrame(m_folder->filePath(QStringLiteral("other")));
    QVERIFY(QFile::rename(m_folder->filePath(QStringLiteral("other")), missing));
    QTRY_VERIFY(m_viewer->lastLoad().shown());
    QVERIFY(find("imageWarningWidget")->isHidden());
    QVERIFY(reason->text().isEmpty());

    click("stepBackward");
    QCOMPARE(reason->text(), QStringLiteral("Corrupted file at path: %1").arg(broken));
    writeFrame(broken); // in place
    QTRY_VERIFY(m_viewer->lastLoad().shown());

    QVERIFY(QDir(m_folder->path()).removeRecursively());
    click("reloadButton");
    QCOMPARE(m_viewer->lastLoad().outcome, LoadOutcome::NotFound);
    QCOMPARE(m_totals.videoMemoryUsed, 0U);
    QVERIFY(QDir().mkpath(m_folder->path()));
    writeFrame(broken, {32, 16});
    QTRY_VERIFY(m_viewer->lastLoad().shown());
    QCOMPARE(m_viewer->picture().displayedSize(), QSize(32, 16));
}

void ImageViewerTest::framesComeAndGoWhilePlaying()
{
    const CacheTotals budgets = m_totals;
    m_totals.videoMemoryBudget = m_totals.mainMemoryBudget = 0; // so that files are read again and again
    open(QStringLiteral("shot.0001.exr"));
    type("fps", QStringLiteral("1000"));
    click("playAndStop");
    for (int round = 0; round < 20; ++round) {
        const QString file = m_folder->filePath(QStringLiteral("shot.000%1.exr").arg(1 + round % 5));
        QVERIFY(round % 2 == 0 ? QFile::remove(file) : QFile::resize(file, 300 + 20 * round));
        const int before = frame();
        QTRY_VERIFY(frame() != before);
        QTRY_COMPARE(frame(), before); // once round
        writeFrame(file, kFrame * (1 + round % 3));
    }
    click("playAndStop");
    m_totals.videoMemoryBudget = budgets.videoMemoryBudget;
    m_totals.mainMemoryBudget = budgets.mainMemoryBudget;
    click("reloadButton");
    QVERIFY(m_viewer->lastLoad().shown());
}

void ImageViewerTest::layersAndChannels()
{
    open(QStringLiteral("shot.0001.exr"));
    auto *layers = find<QComboBox>("layersSelector");
    QCOMPARE(layers->count(), 1);
    QCOMPARE(layers->currentText(), QStringLiteral("RGBA"));
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

void ImageViewerTest::zoomAndLocks()
{
    writeFrame(m_folder->filePath(QStringLiteral("large.exr")), {2000, 500});
    open(QStringLiteral("large.exr"));
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
    Q_EMIT menu->aboutToShow();
    menu->actions().at(2)->trigger();
    for (int i = 0; i < 100; ++i)
        click("zoomOut");
    QVERIFY(picture.displayedSize().height() * 2 < 64);
    QVERIFY(picture.displayedSize().height() * 2.4 >= 64);
    QVERIFY(!find("zoomOut")->isEnabled());
}

void ImageViewerTest::calibration()
{
    open(QStringLiteral("shot.0001.exr"));
    click("calibrationButton");
    QVERIFY(find("calibrationHolder")->isVisible());
    const CalibrationPanel &panel = m_viewer->calibration();
    auto *gamma = find<QSlider>("outputGammaSlider");
    type("outputGammaField", QStringLiteral("5"));
    QCOMPARE(panel.calibration().gamma, 5.0F);
    QCOMPARE(gamma->value(), 200);
    QCOMPARE(text("outputGammaField"), QStringLiteral("5.00"));
    type("outputGammaField", QStringLiteral("-1"));
    QCOMPARE(gamma->value(), 0);
    type("inputLevelStartField", QStringLiteral("-0.5"));
    QCOMPARE(panel.calibration().levelInputMin, -0.5F);
    QCOMPARE(find<QSlider>("inputLevelStartSlider")->value(), 0);
    find<QSlider>("softClipSlider")->setValue(55);
    QCOMPARE(panel.calibration().softClip, 0.55F);
    QCOMPARE(text("softClipField"), QStringLiteral("0.55"));
    const QImage before = m_viewer->picture().grabPicture();
    type("brightnessField", QStringLiteral("0.25"));
    QCOMPARE(find<QSlider>("brightnessSlider")->value(), 25);
    QVERIFY(m_viewer->picture().grabPicture() != before);
    click("calibrationResetToDefaults");
    QCOMPARE(panel.calibration(), (Calibration{1, 1, 1, 1, 0, 1, 0, 1, 0}));
    QCOMPARE(panel.inputGamma(), 2.2F);
}

void ImageViewerTest::marks()
{
    open(QStringLiteral("shot.####.exr"),
         {jobOf(1, 5), {}, {chunkOf(1, 1, 2), chunkOf(2, 3, 4), chunkOf(2, 3, 4)}});
    QWidget *timeline = find("timeline");
    const auto pick = [&](int index, Qt::KeyboardModifiers modifiers) {
        // The timeline asks the application for the keys that are down.
        const Qt::Key key = modifiers & Qt::ShiftModifier ? Qt::Key_Shift : Qt::Key_Control;
        QTest::keyPress(timeline->window(), key, modifiers);
        QTest::mouseClick(timeline, Qt::LeftButton, modifiers, frameAt(index, 5));
        QTest::keyRelease(timeline->window(), key, Qt::NoModifier);
    };
    pick(1, Qt::ShiftModifier);
    QCOMPARE(m_viewer->marking().markedChunks(), (MarkedChunks{{2, 1}}));
    pick(4, Qt::ShiftModifier); // of no known chunk
    pick(3, Qt::ControlModifier);
    pick(0, Qt::ControlModifier);
    QCOMPARE(m_viewer->marking().markedFrames(), (MarkedFrames{1, 4}));
    QCOMPARE(find<QLabel>("chunksMarkerCounter")->text(), QStringLiteral("1 chunk(s)"));
    QCOMPARE(find<QLabel>("framesMarkerCounter")->text(), QStringLiteral("2 frame(s)"));
    pick(3, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(m_viewer->marking().markedFrames(), (MarkedFrames{1}));
    const QImage strip = find("imageMarker")->grab().toImage();
    QCOMPARE(strip.pixelColor(frameAt(0, 5).x(), 5), QColor(200, 200, 0));
    QCOMPARE(strip.pixelColor(frameAt(1, 5).x(), 5), QColor(255, 125, 0));
    for (const char *name : {"markFrameButton", "markChunkButton", "downloadChunksButton"})
        QVERIFY(!find(name)->isEnabled());
    click("requeueMarkedFrames");
    const auto answer = [this](const char *button) {
        whenModalOpens([button](QWidget *box) {
            for (QAbstractButton *candidate : box->findChildren<QAbstractButton *>()) {
                if (candidate->text().remove(QLatin1Char('&')) == QLatin1String(button))
                    return QTest::mouseClick(candidate, Qt::LeftButton);
            }
        });
        click("clearMarkingsButton");
    };
    answer("No");
    QCOMPARE(m_viewer->marking().markedFrames().size(), 1);
    answer("Yes");
    QVERIFY(m_viewer->marking().markedFrames().isEmpty() && m_viewer->marking().markedChunks().isEmpty());
    QVERIFY(!find("clearMarkingsButton")->isEnabled());
}

void ImageViewerTest::fullScreen()
{
    open(QStringLiteral("shot.0001.exr"));
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
}

void ImageViewerTest::manyViewers()
{
    QList<QPointer<ImageViewer>> viewers;
    for (int i = 0; i < 20; ++i) {
        viewers += open(QStringLiteral("shot.0001.exr"));
        m_viewer->resize(m_viewer->minimumSizeHint());
        click("playAndStop");
    }
    for (const QPointer<ImageViewer> &viewer : viewers)
        QTRY_VERIFY(viewer->sequence().currentFrame > 1);
    for (const QPointer<ImageViewer> &viewer : viewers) {
        viewer->close();
        QTRY_VERIFY(!viewer);
    }
}

int main(int argc, char **argv)
{
    chooseGlPath();
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(product::kOrganisation);
    QCoreApplication::setApplicationName(product::kApplicationName);
    QApplication::setQuitOnLastWindowClosed(false);
    ImageViewerTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_imageviewer.moc"

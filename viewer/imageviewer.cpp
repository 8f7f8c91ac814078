#include "imageviewer.h"

#include "calibrationpanel.h"
#include "ui_imageviewer.h"
#include "zoomcontrol.h"

#include <viewer/frames/cachetotals.h>
#include <viewer/frames/framecache.h>
#include <viewer/frames/imageframe.h>
#include <viewer/widgets/imagewidget.h>

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <chrono>

namespace {

constexpr QSize kInitialSize(640, 480);
constexpr const char *kKeysProperty = "keys";

std::int64_t seconds()
{
    return std::chrono::duration_cast<std::chrono::seconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

class WaitCursor {
    Q_DISABLE_COPY_MOVE(WaitCursor)

public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};

} // namespace

struct ImageViewer::StatusPictures {
    QPixmap missing = load("missingfile.png");
    QPixmap broken = load("brokenfile.png");
    QPixmap noFileInProgress = load("nofileinprogress.png");
    QPixmap processing = load("processing.png");

    static QPixmap load(const char *name)
    {
        return QPixmap(QStringLiteral(":/Activity/Resources/") + QString::fromLatin1(name));
    }
};

ImageViewer::ImageViewer(CacheTotals &totals, const ViewerSettings &settings, QWidget *parent)
    : QSkinnedDialog(parent)
    , m_ui(std::make_unique<Ui::ImageViewerClass>())
    , m_totals(totals)
    , m_settings(settings)
    , m_statusPictures(std::make_unique<StatusPictures>())
    , m_progress(&seconds)
    , m_backgroundColor(Qt::black)
    , m_hudColor(Qt::white)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setName(QStringLiteral("imageViewer"));
    setShowSetSize(true);
    m_ui->setupUi(content());
    m_cache = std::make_unique<FrameCache>(totals, picture());
    m_loader = std::make_unique<FrameLoader>(*m_cache, picture());
    m_calibration = new CalibrationPanel(*m_ui->calibrationValues, this);
    m_view = new ZoomControl({m_ui->image, m_ui->horizontalScrollBar, m_ui->verticalScrollBar,
                              m_ui->fitPixelSize, m_ui->setPixelSize});
    connectPath();
    connectDisplay();
    connectTransport();
    connectMarkings();
    prepareControls();
    prepareKeys();
    retranslate();
    m_calibration->reset(m_settings.defaultImportGamma);
    showLoadStatus();
    refreshControls();
    refreshLayers();
    buildFrame();
    resize(kInitialSize);
    loadDefaultState();
    picture().setFocus();
}

ImageViewer::~ImageViewer()
{
    m_view->disconnect(this);
    picture().disconnect(this);
    m_cache->clear();
}

imageWidget &ImageViewer::picture() const
{
    return *m_ui->image;
}

void ImageViewer::prepareControls()
{
    // Frames come and go too fast for the picture to change its size with the bar.
    QSizePolicy policy = m_ui->progressBar->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_ui->progressBar->setSizePolicy(policy);
    m_ui->imageAllocation->setCache(m_cache.get());
    picture().setBackgroundColor(m_backgroundColor);
    picture().setHudColor(m_hudColor);
    m_ui->fps->setText(QString::number(double(m_playback.framesPerSecond())));
}

void ImageViewer::prepareKeys()
{
    // Keys that no field wants move through the frames, wherever the focus is.
    content()->installEventFilter(this);
    picture().installEventFilter(this);
    for (QAbstractButton *button : content()->findChildren<QAbstractButton *>())
        button->installEventFilter(this);
}

void ImageViewer::retranslate()
{
    m_ui->retranslateUi(content());
    // Its values scroll up and down alone.
    m_ui->calibrationScroll->setMinimumWidth(
        m_ui->calibrationValues->minimumSizeHint().width()
        + m_ui->calibrationScroll->verticalScrollBar()->sizeHint().width());
    for (QAbstractButton *button : content()->findChildren<QAbstractButton *>()) {
        const QKeySequence keys(button->property(kKeysProperty).toString());
        if (keys.isEmpty())
            continue;
        button->setShortcut(keys); // its text took it away
        button->setToolTip(
            QStringLiteral("%1 (%2)").arg(button->toolTip(), keys.toString(QKeySequence::NativeText)));
    }
    const QString chunkTitle = tr("Images viewer on job %1 (%2) chunk ID %3");
    const QString jobTitle = tr("Images viewer on job %1 (%2)");
    const QString name = m_job.job ? QString::fromStdString(m_job.job->getName()) : QString();
    if (m_job.chunk)
        setTitle(chunkTitle.arg(name).arg(m_job.chunk->getJobId()).arg(m_job.chunk->getChunkId()));
    else if (m_job.job)
        setTitle(jobTitle.arg(name).arg(m_job.job->getJobId()));
    else
        setTitle(tr("Images viewer"));
    refreshFrameControls();
    refreshStatus();
    refreshMarkings();
}

void ImageViewer::setJob(JobFrames job)
{
    m_job = std::move(job);
    m_marking.setChunks(m_job.chunks);
    retranslate();
    m_ui->jobInfo->setText(m_job.job ? QString::fromStdString(m_job.job->getName()) : QString());
    m_ui->chunkInfo->setText(m_job.chunk ? QString::number(m_job.chunk->getChunkId()) : QString());
}

void ImageViewer::setFramesPath(const FramesRequest &request)
{
    const WaitCursor cursor;
    const FramesOrigin origin{m_job.job ? &*m_job.job : nullptr, m_job.chunk ? &*m_job.chunk : nullptr};
    const std::optional<FrameSequence> opened = openFrames(m_sequence, request, origin);
    if (!opened)
        return;
    m_playback.stop();
    m_watch.stop();
    m_cache->clear();
    m_sequence = *opened;
    m_range = {*m_sequence.frames.begin(), *m_sequence.frames.rbegin(), m_sequence.byFrame};
    m_layers = {};
    m_calibrated = false;
    m_ui->framesPath->setText(QString::fromStdString(m_sequence.framesPath));
    setChannelViewMode(0);
    m_view->resetZoom();
    refreshFrameControls();
    loadFrame(true);
}

void ImageViewer::loadFrame(bool fresh)
{
    LoadRequest request;
    request.path = m_sequence.currentFile();
    if (request.path.empty())
        return;
    request.layer = m_layer;
    request.fresh = fresh || m_layers.entries.empty();
    request.premultiplied = m_ui->premultipliedButton->isChecked();
    request.downsampling = m_ui->resizeComboBox->currentIndex();
    request.progress = &ImageViewer::loadProgress;
    request.user = this;
    m_lastLoad = m_loader->load(request);
    if (m_lastLoad.layers && m_lastLoad.shown()) {
        m_layers = *m_lastLoad.layers;
        m_layer = m_lastLoad.layer;
        refreshLayers();
    }
    if (!m_lastLoad.shown()) {
        picture().showFrame(nullptr);
    } else if (!m_calibrated) {
        m_calibrated = true;
        m_calibration->reset(importGamma());
    }
    showLoadStatus();
    refreshControls();
    m_view->refresh();
    refreshStatus();
}

void ImageViewer::loadAnew()
{
    m_cache->clear();
    loadFrame(false);
}

float ImageViewer::importGamma() const
{
    const ImageFrame *frame = picture().frame();
    return frame && frame->formatName == "exr" ? m_settings.exrImportGamma : m_settings.defaultImportGamma;
}

void ImageViewer::showLoadStatus()
{
    const QString file = QString::fromStdString(m_sequence.currentFile());
    const bool failed = !file.isEmpty()
        && (m_lastLoad.outcome == LoadOutcome::NotFound || m_lastLoad.outcome == LoadOutcome::Corrupted);
    if (failed) {
        const bool missing = m_lastLoad.outcome == LoadOutcome::NotFound;
        const QString text = missing ? tr("File not found at path: %1") : tr("Corrupted file at path: %1");
        m_ui->imageWarningLabel->setPixmap(missing ? m_statusPictures->missing : m_statusPictures->broken);
        m_ui->imageWarningReason->setText(text.arg(file));
        m_watch.watch(file);
    } else {
        m_ui->imageWarningReason->clear();
        m_watch.stop();
    }
    // The focus would go to the next field with the picture, and take the keys of the frames along.
    if (failed && picture().hasFocus())
        content()->setFocus();
    m_ui->imageContainer->setVisible(!failed);
    m_ui->imageWarningWidget->setVisible(failed);
}

void ImageViewer::loadProgress(float fraction, void *viewer)
{
    static_cast<ImageViewer *>(viewer)->showProgress(fraction);
}

void ImageViewer::showProgress(float fraction)
{
    const LoadProgress::Step step = m_progress.report(fraction);
    m_ui->progressBar->setValue(step.value);
    m_ui->progressBar->setVisible(step.barVisible);
    if (step.setWaitCursor)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    if (step.restoreCursor)
        QApplication::restoreOverrideCursor();
    m_ui->progressBar->repaint();
}

void ImageViewer::refreshFrameControls()
{
    m_ui->startFrameLabel->setText(tr("S:(%1)").arg(firstFrame()));
    m_ui->endFrameLabel->setText(tr("E:(%1)").arg(lastFrame()));
    m_ui->totalFramesLabel->setText(tr("%1 frame(s)").arg(m_sequence.frames.size()));
    m_ui->startFrame->setText(QString::number(m_range.start));
    m_ui->endFrame->setText(QString::number(m_range.end));
    m_ui->byFrame->setText(QString::number(m_range.step));
    m_ui->imageAllocation->setFileMask(m_sequence.framesPath);
    applyRange();
}

void ImageViewer::applyRange()
{
    const std::set<long> &frames = m_sequence.frames;
    m_sequence.currentFrame = int(std::clamp(long(m_sequence.currentFrame), m_range.start, m_range.end));
    // Steps and playback stay within the range as well: the timeline knows of no frame outside it.
    m_ui->timeline->setFrames({frames.lower_bound(m_range.start), frames.upper_bound(m_range.end)});
    m_ui->timeline->setRange(m_range.start, m_range.end);
    m_ui->timeline->setByFrame(m_range.step);
    m_ui->timeline->setPosition(m_sequence.currentFrame);
    m_ui->imageAllocation->setFrames(frames);
    m_ui->imageAllocation->setRange(m_range.start, m_range.end);
    m_ui->imageMarker->setFrames(frames);
    m_ui->imageMarker->setRange(m_range.start, m_range.end);
    m_ui->currentFrame->setText(QString::number(m_sequence.currentFrame));
    m_ui->timeline->update();
    m_ui->imageMarker->update();
    m_ui->imageAllocation->update();
}

void ImageViewer::refreshControls()
{
    const ImageFrame *frame = picture().frame();
    const bool rgb = frame && (frame->internalFormat == GL_RGB || frame->textureCount == 3);
    const bool rgba = frame && (frame->internalFormat == GL_RGBA || frame->textureCount == 4);
    for (QToolButton *button :
         {m_ui->redChannelButton, m_ui->greenChannelButton, m_ui->blueChannelButton, m_ui->luminanceButton})
        button->setEnabled(rgb || rgba);
    m_ui->alphaChannelButton->setEnabled(rgba);
    for (QWidget *control : std::initializer_list<QWidget *>{
             m_ui->timeline, m_ui->imageAllocation, m_ui->imageMarker, m_ui->transport, m_ui->markings})
        control->setEnabled(isSequence());
    refreshZoom();
}

void ImageViewer::refreshZoom()
{
    m_ui->zoomIn->setEnabled(m_view->canZoomIn());
    m_ui->zoomOut->setEnabled(m_view->canZoomOut());
}

void ImageViewer::refreshLayers()
{
    QStringList entries;
    for (const std::string &entry : m_layers.entries)
        entries += QString::fromStdString(entry);
    if (entries.isEmpty())
        entries += QStringLiteral("Default");
    QComboBox &selector = *m_ui->layersSelector;
    const QSignalBlocker blocker(selector);
    selector.clear();
    selector.addItems(entries);
    selector.setCurrentIndex(std::max(0, int(entries.indexOf(QString::fromStdString(m_layer)))));
}

void ImageViewer::refreshStatus()
{
    m_ui->infoLabel->setText(m_totals.statusText());
    // A frame that was cached changes nothing in the cache.
    if (!m_lastLoad.shown() || m_lastLoad.layers)
        m_ui->imageAllocation->update();
}

void ImageViewer::refreshMarkings()
{
    const bool hasJob = m_job.job || m_job.chunk;
    if (!hasJob)
        m_marking.clear();
    m_ui->imageMarker->setVisible(hasJob);
    m_ui->jobInfoContainer->hide();
    m_ui->markFrameButton->setEnabled(false);
    m_ui->markChunkButton->setEnabled(false);
    m_ui->downloadChunksButton->setEnabled(false);
    const auto frames = m_marking.markedFrames().size();
    const auto chunks = m_marking.markedChunks().size();
    m_ui->clearMarkingsButton->setEnabled(frames > 0 || chunks > 0);
    m_ui->requeueMarkedFrames->setEnabled(frames > 0);
    m_ui->requeueMarkedChunks->setEnabled(chunks > 0);
    m_ui->framesMarkerCounter->setText(tr("%1 frame(s)").arg(frames));
    m_ui->chunksMarkerCounter->setText(tr("%1 chunk(s)").arg(chunks));
    m_ui->imageMarker->setChunks(m_marking.chunks());
    m_ui->imageMarker->setMarkedChunks(m_marking.markedChunks());
    m_ui->imageMarker->setMarkedFrames(m_marking.markedFrames());
    m_ui->imageMarker->update();
}

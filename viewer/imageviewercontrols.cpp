// What the viewer's controls do; the rest of the window is in imageviewer.cpp.

#include "calibrationpanel.h"
#include "filepicker.h"
#include "imageviewer.h"
#include "ui_imageviewer.h"
#include "zoomcontrol.h"

#include <ui/product.h>
#include <ui/qskinnedmessagebox.h>
#include <viewer/widgets/imagewidget.h>

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QColorDialog>

#include <algorithm>

namespace {

QIcon playerIcon(const char *name)
{
    return QIcon(QStringLiteral(":/player/%1.png").arg(QLatin1String(name)));
}

} // namespace

void ImageViewer::connectPath()
{
    connect(m_ui->framesPath, &QLineEdit::editingFinished, this, &ImageViewer::onFramesPathEdited);
    connect(m_ui->pickFramesPath, &QAbstractButton::clicked, this, &ImageViewer::onPickFramesPath);
    connect(m_ui->reloadButton, &QAbstractButton::clicked, this, &ImageViewer::onReload);
    connect(&m_watch, &FrameWatch::mayBeThere, this, [this] { loadFrame(false); });
}

void ImageViewer::connectDisplay()
{
    imageWidget *image = m_ui->image;
    connect(m_ui->fullScreen, &QAbstractButton::clicked, this, &ImageViewer::showGlFullscreen);
    connect(m_ui->checkerButton, &QAbstractButton::toggled, image, &imageWidget::setCheckerOn);
    connect(m_ui->compositeButton, &QAbstractButton::toggled, image, &imageWidget::setAlphaOn);
    connect(m_ui->hudButton, &QAbstractButton::toggled, image, &imageWidget::setHudOn);
    connect(m_ui->premultipliedButton, &QAbstractButton::toggled, this, &ImageViewer::onReload);
    connect(m_ui->backgroundColorButton, &QAbstractButton::clicked, this,
            [this] { onPickColor(tr("Background"), &imageWidget::setBackgroundColor, m_backgroundColor); });
    connect(m_ui->hudColorButton, &QAbstractButton::clicked, this,
            [this] { onPickColor(tr("HUD colour"), &imageWidget::setHudColor, m_hudColor); });
    connect(m_ui->displaySaveAsDefault, &QAbstractButton::clicked, this,
            &ImageViewer::onDisplaySaveAsDefault);
    const QList<QToolButton *> channels = channelButtons();
    for (int mode = 0; mode < channels.size(); ++mode)
        connect(channels[mode], &QAbstractButton::clicked, this, [this, mode] { setChannelViewMode(mode); });
    connect(m_ui->layersSelector, &QComboBox::activated, this, &ImageViewer::onLayerChosen);
    connect(m_ui->resizeComboBox, &QComboBox::currentIndexChanged, this, &ImageViewer::loadAnew);
    connect(m_ui->zoomIn, &QAbstractButton::clicked, m_view, &ZoomControl::zoomIn);
    connect(m_ui->zoomOut, &QAbstractButton::clicked, m_view, &ZoomControl::zoomOut);
    connect(m_view, &ZoomControl::zoomChanged, this, &ImageViewer::refreshZoom);
    connect(m_ui->calibrationButton, &QAbstractButton::toggled, m_ui->calibrationHolder,
            &QWidget::setVisible);
    connect(m_calibration, &CalibrationPanel::calibrationChanged, image, &imageWidget::setCalibration);
    connect(m_calibration, &CalibrationPanel::inputGammaChanged, image, &imageWidget::setSourceGamma);
    for (QToolButton *reset : {m_ui->calibrationReset, m_ui->calibrationResetToDefaults})
        connect(reset, &QAbstractButton::clicked, this, [this] { m_calibration->reset(importGamma()); });
    connect(m_ui->calibrationSaveAsDefault, &QAbstractButton::clicked, this,
            &ImageViewer::onCalibrationSaveAsDefault);
    connect(image, &imageWidget::initialized, this,
            [this] { m_ui->limitedFunctionalities->setVisible(!picture().floatTexturesUsable()); });
}

void ImageViewer::connectTransport()
{
    m_ui->goBegin->setIcon(playerIcon("first"));
    m_ui->stepBackward->setIcon(playerIcon("previous"));
    m_ui->playAndStop->setIcon(playerIcon("play"));
    m_ui->stepForward->setIcon(playerIcon("next"));
    m_ui->goEnd->setIcon(playerIcon("last"));
    imageTimeline *timeline = m_ui->timeline;
    connect(timeline, &imageTimeline::frameChanged, this, &ImageViewer::onFrameChanged);
    connect(timeline, &imageTimeline::frameScrubbed, this, &ImageViewer::onFrameScrubbed);
    connect(m_ui->goBegin, &QAbstractButton::clicked, timeline, &imageTimeline::moveFirst);
    connect(m_ui->stepBackward, &QAbstractButton::clicked, timeline, &imageTimeline::movePrevious);
    connect(m_ui->playAndStop, &QAbstractButton::clicked, this, &ImageViewer::onPlayAndStop);
    connect(m_ui->stepForward, &QAbstractButton::clicked, timeline, &imageTimeline::moveNext);
    connect(m_ui->goEnd, &QAbstractButton::clicked, timeline, &imageTimeline::moveLast);
    connect(m_ui->currentFrame, &QLineEdit::editingFinished, this, &ImageViewer::onCurrentFrameEdited);
    for (QLineEdit *field : {m_ui->startFrame, m_ui->endFrame, m_ui->byFrame})
        connect(field, &QLineEdit::editingFinished, this, &ImageViewer::onRangeEdited);
    connect(m_ui->fps, &QLineEdit::editingFinished, this, &ImageViewer::onFps);
    connect(&m_playback, &Playback::playingChanged, this, &ImageViewer::onPlayingChanged);
    connect(&m_playback, &Playback::stepDue, this, &ImageViewer::onPlaybackStep);
    connect(&m_playback, &Playback::rateMeasured, this,
            [this](double rate) { m_ui->playbackRate->setText(tr("%1 fps").arg(rate, 0, 'f', 1)); });
}

void ImageViewer::connectMarkings()
{
    const auto clicked = [this](QAbstractButton *button, void (ImageViewer::*handler)()) {
        connect(button, &QAbstractButton::clicked, this, handler);
    };
    clicked(m_ui->markFrameButton, &ImageViewer::onMarkFrame);
    clicked(m_ui->markChunkButton, &ImageViewer::onMarkChunk);
    clicked(m_ui->clearMarkingsButton, &ImageViewer::onClearMarkings);
    clicked(m_ui->requeueMarkedFrames, &ImageViewer::onRequeueMarkedFrames);
    clicked(m_ui->requeueMarkedChunks, &ImageViewer::onRequeueMarkedChunks);
    clicked(m_ui->downloadChunksButton, &ImageViewer::onDownloadChunks);
}

void ImageViewer::onFramesPathEdited()
{
    // A mask that is typed stands for its sequence.
    const std::string path = m_ui->framesPath->text().toStdString();
    if (path != m_sequence.framesPath)
        setFramesPath({path, false, FramesRequest::kNoFrame, true});
}

void ImageViewer::onPickFramesPath()
{
    const QPointer<ImageViewer> self(this);
    const QString file = pickImageFile(this);
    if (self && !file.isEmpty())
        setFramesPath({file.toStdString(), false, FramesRequest::kNoFrame, true});
}

void ImageViewer::onReload()
{
    if (!m_sequence.framesPath.empty())
        setFramesPath({m_sequence.framesPath, true, m_sequence.currentFrame, m_sequence.isSequence});
}

void ImageViewer::onPickColor(const QString &title, void (imageWidget::*set)(const QColor &), QColor &color)
{
    auto *dialog = new QColorDialog(color, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title);
    const QColor before = color;
    connect(dialog, &QColorDialog::currentColorChanged, m_ui->image, set);
    connect(dialog, &QDialog::rejected, m_ui->image, [this, set, before] { (picture().*set)(before); });
    connect(dialog, &QColorDialog::colorSelected, this, [&color](const QColor &chosen) { color = chosen; });
    dialog->open();
}

// Kept for the button that is there: what a display looks like is not remembered.
void ImageViewer::onDisplaySaveAsDefault() { }

// As above, of the calibration.
void ImageViewer::onCalibrationSaveAsDefault() { }

void ImageViewer::onLayerChosen()
{
    m_layer = m_ui->layersSelector->currentText().toStdString();
    loadAnew();
}

bool ImageViewer::setLayer(const QString &name)
{
    const int index = m_ui->layersSelector->findText(name);
    if (index < 0)
        return false;
    m_ui->layersSelector->setCurrentIndex(index);
    onLayerChosen();
    return true;
}

QList<QToolButton *> ImageViewer::channelButtons() const
{
    return {m_ui->rgbaChannelButton, m_ui->redChannelButton,   m_ui->greenChannelButton,
            m_ui->blueChannelButton, m_ui->alphaChannelButton, m_ui->luminanceButton};
}

void ImageViewer::setChannelViewMode(int mode)
{
    const QList<QToolButton *> channels = channelButtons();
    for (int i = 0; i < channels.size(); ++i)
        channels[i]->setChecked(i == mode);
    picture().setChannelViewMode(mode);
}

void ImageViewer::onPlayAndStop()
{
    if (m_playback.isPlaying())
        m_playback.stop();
    else if (isSequence())
        m_playback.start();
}

void ImageViewer::onPlayingChanged(bool playing)
{
    m_ui->playAndStop->setIcon(playerIcon(playing ? "stop" : "play"));
    m_ui->playAndStop->setAccessibleName(playing ? tr("Stop") : tr("Play"));
    m_ui->playbackRate->clear();
    for (QWidget *control :
         std::initializer_list<QWidget *>{m_ui->framesPath, m_ui->pickFramesPath, m_ui->reloadButton})
        control->setEnabled(!playing);
}

void ImageViewer::onPlaybackStep()
{
    if (!m_ui->timeline->moveNext())
        m_ui->timeline->moveFirst();
}

void ImageViewer::onFps()
{
    m_playback.setFramesPerSecond(m_ui->fps->text().toFloat());
    m_ui->fps->setText(QString::number(double(m_playback.framesPerSecond())));
}

void ImageViewer::onCurrentFrameEdited()
{
    setCurrentFrame(m_ui->currentFrame->text().toInt());
}

void ImageViewer::setCurrentFrame(long frame)
{
    const int clamped = int(std::clamp(frame, firstFrame(), lastFrame()));
    m_ui->currentFrame->setText(QString::number(clamped));
    if (clamped == m_sequence.currentFrame)
        return;
    m_sequence.currentFrame = clamped;
    loadFrame(false);
    m_ui->timeline->setPosition(clamped);
    m_ui->timeline->update();
}

void ImageViewer::onRangeEdited()
{
    const RangeEdit edit = correctedRange(m_sequence.frames, m_sequence.byFrame, m_ui->startFrame->text(),
                                          m_ui->endFrame->text(), m_ui->byFrame->text());
    const std::pair<QLineEdit *, const QString &> fields[] = {
        {m_ui->startFrame, edit.start}, {m_ui->endFrame, edit.end}, {m_ui->byFrame, edit.step}};
    for (const auto &[field, text] : fields) {
        const QSignalBlocker blocker(field);
        if (!text.isNull())
            field->setText(text);
    }
    if (edit.range == m_range)
        return;
    m_range = edit.range;
    const int before = m_sequence.currentFrame;
    applyRange();
    if (m_sequence.currentFrame != before)
        loadFrame(false);
}

void ImageViewer::onFrameChanged(int frame, bool addChunk, bool addFrame, bool removeChunk, bool removeFrame)
{
    m_sequence.currentFrame = frame;
    m_ui->currentFrame->setText(QString::number(frame));
    loadFrame(false);
    mark(frame, addChunk, addFrame, removeChunk, removeFrame);
}

void ImageViewer::onFrameScrubbed(int frame, bool addChunk, bool addFrame, bool removeChunk, bool removeFrame)
{
    if (m_ui->liveScrubbing->isChecked()) {
        onFrameChanged(frame, addChunk, addFrame, removeChunk, removeFrame);
        return;
    }
    m_ui->currentFrame->setText(QString::number(frame));
    mark(frame, addChunk, addFrame, removeChunk, removeFrame);
}

void ImageViewer::mark(int frame, bool addChunk, bool addFrame, bool removeChunk, bool removeFrame)
{
    if (addChunk)
        m_marking.markChunkOf(frame);
    if (addFrame)
        m_marking.markFrame(frame);
    if (removeChunk)
        m_marking.unmarkChunkOf(frame);
    if (removeFrame)
        m_marking.unmarkFrame(frame);
    if (addChunk || addFrame || removeChunk || removeFrame)
        refreshMarkings();
}

void ImageViewer::onMarkFrame()
{
    m_marking.toggleFrame(m_sequence.currentFrame);
    refreshMarkings();
}

void ImageViewer::onMarkChunk()
{
    m_marking.toggleChunkOf(m_sequence.currentFrame);
    refreshMarkings();
}

void ImageViewer::onClearMarkings()
{
    const QPointer<ImageViewer> self(this);
    const auto answer = QSkinnedMessageBox::question(
        this, product::kProductTitle, tr("Are you sure you want to remove the current markings ?"),
        QMessageBox::Yes | QMessageBox::No);
    if (!self || answer != QMessageBox::Yes)
        return;
    m_marking.clear();
    refreshMarkings();
}

// The marks stay with the user: nothing is requeued or downloaded from here, though the buttons are there.
void ImageViewer::onRequeueMarkedFrames() { }
void ImageViewer::onRequeueMarkedChunks() { }
void ImageViewer::onDownloadChunks() { }

void ImageViewer::showGlFullscreen()
{
    imageWidget &image = picture();
    if (image.isWindow())
        return;
    content()->setFocus(); // or the next field would take the focus, and show it ever after
    image.setParent(this, Qt::Window);
    image.setWindowTitle(windowTitle());
    image.showFullScreen();
    image.activateWindow();
    image.setFocus();
}

void ImageViewer::showGlNormal()
{
    imageWidget &image = picture();
    if (!image.isWindow())
        return;
    m_ui->imageLayout->addWidget(&image, 0, 0);
    image.show();
    activateWindow();
    image.setFocus();
}

bool ImageViewer::transportKey(int key)
{
    switch (key) {
    case Qt::Key_Left:
        m_ui->timeline->movePrevious();
        return true;
    case Qt::Key_Right:
        m_ui->timeline->moveNext();
        return true;
    case Qt::Key_Up:
        m_ui->timeline->moveFirst();
        return true;
    case Qt::Key_Down:
        m_ui->timeline->moveLast();
        return true;
    case Qt::Key_Space:
        onPlayAndStop();
        return true;
    default:
        return false;
    }
}

bool ImageViewer::eventFilter(QObject *watched, QEvent *event)
{
    // The form sends others while it is built.
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::Close)
        return QSkinnedDialog::eventFilter(watched, event);
    const bool isFullScreen = watched == m_ui->image && picture().isWindow();
    if (event->type() == QEvent::Close) {
        if (isFullScreen) {
            event->ignore();
            showGlNormal();
        }
        return isFullScreen;
    }
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (isFullScreen && (key == Qt::Key_Escape || key == Qt::Key_F11)) {
        showGlNormal();
        return true;
    }
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab || !isSequence())
        return QSkinnedDialog::eventFilter(watched, event);
    if (watched == content()) {
        // What a field took for its end gives the keys back to the frames.
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            content()->setFocus();
        transportKey(key);
        return true;
    }
    // A button keeps the keys that press it.
    const bool presses = watched != m_ui->image && key == Qt::Key_Space;
    return (!presses && transportKey(key)) || QSkinnedDialog::eventFilter(watched, event);
}

void ImageViewer::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->ignore();
    else
        QSkinnedDialog::keyPressEvent(event);
}

void ImageViewer::closeEvent(QCloseEvent *event)
{
    m_playback.stop();
    showGlNormal();
    if (!isMaximized() && !isFullScreen())
        setDefaultState(false);
    QSkinnedDialog::closeEvent(event);
}

bool ImageViewer::event(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    return QSkinnedDialog::event(event);
}

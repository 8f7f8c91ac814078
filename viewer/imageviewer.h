#pragma once

#include "viewersettings.h"

#include <ui/qskinneddialog.h>
#include <viewer/frames/compositelayers.h>
#include <viewer/frames/frameloader.h>
#include <viewer/frames/framesequence.h>
#include <viewer/frames/loadprogress.h>
#include <viewer/session/framewatch.h>
#include <viewer/session/jobframes.h>
#include <viewer/session/marking.h>
#include <viewer/session/playback.h>
#include <viewer/session/playbackrange.h>

#include <memory>

class CalibrationPanel;
class FrameCache;
class ZoomControl;
class QToolButton;
class imageWidget;
struct CacheTotals;

namespace Ui {
class ImageViewerClass;
}

/// The viewer window: shows the frames of a job, a chunk or a path, one at a time or playing, and keeps the marks that the
/// user sets on bad ones. It wires the picture, the timeline, the frame cache and the controls to each other. It deletes
/// itself when closed.
class ImageViewer final : public QSkinnedDialog {
    Q_OBJECT

public:
    /// The totals are the program's and outlive the window. OpenGL must be usable.
    ImageViewer(CacheTotals &totals, const ViewerSettings &settings, QWidget *parent = nullptr);
    ~ImageViewer() override;

    const FrameSequence &sequence() const { return m_sequence; }
    const Marking &marking() const { return m_marking; }
    const LoadResult &lastLoad() const { return m_lastLoad; }
    imageWidget &picture() const;
    CalibrationPanel &calibration() const { return *m_calibration; }

    /// Before the frames path is set: what it is to be read for. The window's title tells of it.
    void setJob(JobFrames job);
    /// Shows the first frame of a path; see FramesRequest. Nothing happens for the path that is shown, unless forced.
    void setFramesPath(const FramesRequest &request);
    /// Brought within the frames there are; loads the frame when it is another.
    void setCurrentFrame(long frame);
    /// The layer by its name in the selector; false when the file does not have it.
    bool setLayer(const QString &name);
    /// RGBA, red, green, blue, alpha, luminance as 0 to 5.
    void setChannelViewMode(int mode);

public Q_SLOTS:
    void showGlFullscreen();
    void showGlNormal();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool event(QEvent *event) override;

private:
    void connectPath();
    void connectDisplay();
    void connectTransport();
    void connectMarkings();
    void prepareControls();
    void prepareKeys();
    /// Every text anew: the form's, the keys in the tooltips, the title.
    void retranslate();

    void onFramesPathEdited();
    void onPickFramesPath();
    void onReload();
    void onLayerChosen();
    void onPickColor(const QString &title, void (imageWidget::*set)(const QColor &), QColor &color);
    void onDisplaySaveAsDefault();
    void onCalibrationSaveAsDefault();
    void onPlayAndStop();
    void onPlayingChanged(bool playing);
    void onPlaybackStep();
    void onFps();
    void onCurrentFrameEdited();
    void onRangeEdited();
    void onFrameChanged(int frame, bool addChunk, bool addFrame, bool removeChunk, bool removeFrame);
    void onFrameScrubbed(int frame, bool addChunk, bool addFrame, bool removeChunk, bool removeFrame);
    void onMarkFrame();
    void onMarkChunk();
    void onClearMarkings();
    void onRequeueMarkedFrames();
    void onRequeueMarkedChunks();
    void onDownloadChunks();

    /// Loads the current frame; `fresh` as in LoadRequest.
    void loadFrame(bool fresh);
    /// Empties the cache and loads the current frame again.
    void loadAnew();
    void showLoadStatus();
    static void loadProgress(float fraction, void *viewer);
    void showProgress(float fraction);
    void refreshFrameControls();
    /// Hands the range to the timeline and the strips, and brings the current frame into it.
    void applyRange();
    void refreshControls();
    void refreshZoom();
    void refreshLayers();
    /// What the cache holds.
    void refreshStatus();
    /// The marks, and what can be done with them.
    void refreshMarkings();
    void mark(int frame, bool addChunk, bool addFrame, bool removeChunk, bool removeFrame);
    float importGamma() const;
    bool transportKey(int key);
    bool isSequence() const { return m_sequence.frames.size() > 1; }
    long firstFrame() const { return m_sequence.frames.empty() ? 1 : *m_sequence.frames.begin(); }
    long lastFrame() const { return m_sequence.frames.empty() ? 1 : *m_sequence.frames.rbegin(); }
    QList<QToolButton *> channelButtons() const;

    struct StatusPictures;

    const std::unique_ptr<Ui::ImageViewerClass> m_ui;
    CacheTotals &m_totals;
    const ViewerSettings m_settings;
    std::unique_ptr<FrameCache> m_cache; // ends before the picture that shows its frames
    std::unique_ptr<FrameLoader> m_loader;
    std::unique_ptr<StatusPictures> m_statusPictures;
    ZoomControl *m_view = nullptr;
    CalibrationPanel *m_calibration = nullptr;
    JobFrames m_job;
    FrameSequence m_sequence;
    PlaybackRange m_range;
    Playback m_playback;
    Marking m_marking;
    FrameWatch m_watch;
    LoadProgress m_progress;
    LoadResult m_lastLoad;
    LayerList m_layers;
    std::string m_layer; // the chosen entry of m_layers
    bool m_calibrated = false; // for the first file of the frames path
    QColor m_backgroundColor;
    QColor m_hudColor;
};

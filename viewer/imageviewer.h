#pragma once

#include "viewersettings.h"

#include <ui/qskinneddialog.h>
#include <viewer/session/jobframes.h>

#include <memory>

class CalibrationPanel;
class DisplayControls;
class FullScreen;
class LoadStatus;
class MarkingControls;
class SidePanel;
class TransportControls;
class ViewerSession;
class ZoomControl;
class imageWidget;
struct CacheTotals;
struct FramesRequest;

namespace TImageLibrary {
class IImageCore;
}

namespace Ui {
class ImageViewerClass;
}

/// The viewer window: builds the form and its panels, and wires session, picture, zoom and calibration to each other.
/// It deletes itself when closed.
class ImageViewer final : public QSkinnedDialog {
    Q_OBJECT

public:
    /// The totals are the program's and outlive the window. OpenGL must be usable.
    ImageViewer(CacheTotals &totals, const ViewerSettings &settings, QWidget *parent = nullptr);
    ~ImageViewer() override;

    ViewerSession &session() const { return *m_session; }
    imageWidget &picture() const;
    CalibrationPanel &calibration() const;
    DisplayControls &display() const { return *m_display; }

    /// Before the frames path is set: what it is to be read for. The window's title tells of it.
    void setJob(JobFrames job);
    /// As ViewerSession::open(), under the wait cursor.
    void setFramesPath(const FramesRequest &request);
    /// In place of the fit, until another path is opened.
    void setZoom(float zoom);

public Q_SLOTS:
    void showGlFullscreen();
    void showGlNormal();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool event(QEvent *event) override;

private:
    void connectPath();
    void connectZoom();
    void connectCalibration();
    void connectSession();
    void filterKeys();
    bool takeKey(const QObject *watched, int key);
    void leaveField(QPoint clicked);
    /// Every text anew: the form's, the keys in the tooltips, the title.
    void retranslate();
    void showTitle();
    void enableZoom();
    void editFramesPath();
    void pickFramesPath();
    void resetCalibration();
    void saveCalibrationAsDefault();

    const std::unique_ptr<Ui::ImageViewerClass> m_ui;
    CacheTotals &m_totals;
    const ViewerSettings m_settings;
    // A farm's own library may come to life when it is asked for this: before the first frame is loaded.
    TImageLibrary::IImageCore *const m_imageCore;
    std::unique_ptr<ViewerSession> m_session; // ends before the picture that shows its frames
    ZoomControl *m_zoom = nullptr;
    FullScreen *m_fullScreen = nullptr;
    // These end before the session.
    std::unique_ptr<TransportControls> m_transport;
    std::unique_ptr<DisplayControls> m_display;
    std::unique_ptr<MarkingControls> m_markings;
    std::unique_ptr<LoadStatus> m_loadStatus;
    std::unique_ptr<SidePanel> m_sidePanel;
};

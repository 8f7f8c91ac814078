#pragma once

#include <QtCore/QObject>

class QMenu;
class QScrollBar;
class QToolButton;
class imageWidget;

/// How the picture lies in its view: the zoom with its limits, the scroll bars, and the fit or the pixel size that may be
/// locked, so that another frame or another size of the view does not change it. One lock at most is on.
class ZoomControl final : public QObject {
    Q_OBJECT

public:
    struct Controls {
        imageWidget *image;
        QScrollBar *horizontal;
        QScrollBar *vertical;
        QToolButton *fit; ///< each of the two gets a menu
        QToolButton *pixels;
    };

    /// The controls outlive the view.
    explicit ZoomControl(const Controls &controls);

    bool canZoomIn() const;
    bool canZoomOut() const;
    bool isFitLocked() const { return m_lock == Lock::Fit; }

public Q_SLOTS:
    void zoomIn();
    void zoomOut();
    void fit();
    void pixelSize();
    /// Zoom 1 and the origin, unless a lock asks for something else.
    void resetZoom();
    /// Applies a lock and brings the scroll bars in line with the picture.
    void refresh();

Q_SIGNALS:
    void zoomChanged();

private:
    enum class Lock { None, Fit, Pixels };

    void buildMenu(QToolButton *button, Lock lock, void (ZoomControl::*apply)());
    void setLock(Lock lock);
    void setZoom(float zoom);
    void refreshScrollBar(QScrollBar &bar, int displayed, int visible, int value);
    void scrolled();

    const Controls m_controls;
    Lock m_lock = Lock::None;
    bool m_refreshing = false;
};

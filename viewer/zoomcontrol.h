#pragma once

#include <QtCore/QObject>

class QMenu;
class QScrollBar;
class QToolButton;
class imageWidget;

/// Places the picture in its view: zooms within limits, moves the scroll bars, and keeps the fit or the pixel size,
/// where the user has locked one, for other frames and other sizes of the view. One lock at most is on.
class ZoomControl final : public QObject {
    Q_OBJECT

public:
    struct Controls {
        imageWidget *image;
        QScrollBar *horizontal;
        QScrollBar *vertical;
        QToolButton *fit; ///< gets a menu
        QToolButton *pixels; ///< gets a menu
    };

    /// The picture owns this; the other controls live as long.
    explicit ZoomControl(const Controls &controls);

    bool canZoomIn() const;
    bool canZoomOut() const;

public Q_SLOTS:
    void zoomIn();
    void zoomOut();
    void fit();
    void pixelSize();
    /// Sets zoom 1 and the origin, unless a lock asks for something else.
    void resetZoom();
    /// Applies the lock and brings the scroll bars in line with the picture.
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

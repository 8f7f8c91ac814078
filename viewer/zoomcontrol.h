#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointF>

class QMenu;
class QScrollBar;
class QToolButton;
class imageWidget;

/// Places the picture in its view: zooms within limits, moves the scroll bars, which show where there is something to scroll, and keeps the fit or the pixel size,
/// whichever is locked, for other frames and other sizes of the view. One lock at most is on, and its button is checked:
/// the fit's at first; a zoom takes it off.
class ZoomControl final : public QObject {
    Q_OBJECT

public:
    struct Controls {
        imageWidget *image;
        QScrollBar *horizontal;
        QScrollBar *vertical;
        QToolButton *fit; ///< checkable; gets a menu
        QToolButton *pixels; ///< checkable; gets a menu
    };

    /// The picture owns this; the other controls live as long.
    explicit ZoomControl(const Controls &controls);

    bool canZoomIn() const;
    bool canZoomOut() const;

public Q_SLOTS:
    void zoomIn();
    void zoomOut();
    /// Shows the whole picture and the one that comes next, unless the pixel size is locked.
    void resetZoom();
    /// Zooms by any factor about the middle of the view; ends the lock.
    void zoomTo(float zoom);
    /// Applies the lock and brings the scroll bars in line with the picture.
    void refresh();

Q_SIGNALS:
    void zoomChanged();

private:
    enum class Lock { None, Fit, Pixels };

    void buildMenu(QToolButton *button, Lock lock);
    void setLock(Lock lock);
    void apply(Lock lock);
    /// Applies what is not to hold for the next sizes.
    void applyOnce(Lock lock);
    /// Zooms by steps or parts of them, as far as the limits let it; what is at the point stays there.
    void zoomBy(float steps, QPointF at);
    void place(float zoom, QPointF at);
    QPointF middle() const;
    /// The view, in device pixels, with no bar beside it.
    QSize room() const;
    void showBars();
    float fittingZoom() const;
    void refreshScrollBar(QScrollBar &bar, int displayed, int visible, int value);
    void scrolled();

    const Controls m_controls;
    Lock m_lock = Lock::Fit;
    QPointF m_pan; // before it was rounded
    bool m_refreshing = false;
};

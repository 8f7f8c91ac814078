#pragma once

#include "glpane.h"

#include <viewer/frames/framedisplay.h>
#include <viewer/widgets/render/picturelook.h>
#include <viewer/widgets/render/viewgeometry.h>

#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtGui/QImage>

#include <memory>

class PictureRenderer;

/// Shows one frame, calibrated and zoomed, over a checker; the middle button asks to pan, the wheel to zoom.
/// All sizes and offsets here are device pixels: at zoom 1 a pixel of the frame is one of the screen.
/// Without a usable context it shows nothing and says so in the log.
class imageWidget final : public GlPane, public FrameDisplay {
    Q_OBJECT

public:
    explicit imageWidget(QWidget *parent = nullptr);
    ~imageWidget() override;

    const ImageFrame *frame() const;
    float zoomFactor() const;
    QPoint pan() const;
    /// Multiplies the frame's size by the zoom; counts 320 x 240 pixels without a frame.
    QSize displayedSize() const;
    /// False before initialized().
    bool floatTexturesUsable() const;
    /// Draws the whole frame, on the checker and the background, without border and HUD; needs no window on
    /// the screen. Null without a frame or a context.
    QImage grabPicture(float zoom = 1.0F);
    /// As grabPicture(), over nothing: the image keeps the frame's alpha.
    QImage grabWithAlpha(float zoom);
    void paintGL() override;

    /// Moves the view to an offset, kept within the displayed picture; returns what it became.
    QPoint setPan(QPoint wanted);

    std::int32_t longestSide() override;
    void uploadTextures(ImageFrame &frame) override;
    void deleteTextures(ImageFrame &frame) override;
    void showFrame(ImageFrame *frame) override;
    void frameDies(const ImageFrame &frame) override;

    /// Counts the textures that all pictures of the program hold now, so that a leak shows.
    static int liveTextures();

public Q_SLOTS:
    void setCalibration(const Calibration &calibration);
    void setSourceGamma(float gamma);
    void setChannelViewMode(int mode);
    void setCheckerOn(bool on);
    void setAlphaOn(bool on);
    void setHudOn(bool on);
    void setZoomFactor(float zoom);
    void setBackgroundColor(const QColor &color);
    void setHudColor(const QColor &color);

Q_SIGNALS:
    /// Ask the scroll bars for a value, not yet clamped.
    void horizontalScrollRequested(int value);
    void verticalScrollRequested(int value);
    /// Asks to zoom about a point of the view, in device pixels: in by a step for each notch of the wheel, out below 0.
    void zoomRequested(float steps, QPointF at);
    /// Tells that the context has come up.
    void initialized();
    /// Tells that a context has died with the textures of all frames; sent from amid whatever found out.
    void texturesLost();

protected:
    void initializeGL() override;
    void contextLost() override;
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    template <typename T>
    void change(T &member, const T &value);
    ViewGeometry viewGeometry() const;
    QImage grabbed(const PictureLook &look, float zoom, bool withAlpha);
    QPoint devicePosition(const QMouseEvent &event) const;
    void stopPanning();

    /// Draws again what was drawn in haste.
    void refine();

    std::unique_ptr<PictureRenderer> m_renderer; ///< while there is a context
    ImageFrame *m_frame = nullptr;
    QStringList m_hudLines; ///< of the frame; empty until they are painted
    int m_hudWidth = 0; ///< of the view that they fit
    PictureLook m_look;
    QTimer m_stillness; ///< ends when nothing has been drawn for a while
    bool m_isStill = false; ///< for the next paint
    float m_zoom = 1.0F;
    QPoint m_pan;
    bool m_floatTexturesUsable = false;

    bool m_panning = false;
    QPoint m_pressPosition;
    QPoint m_pressPan;
};

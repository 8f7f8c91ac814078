#pragma once

#include "hud.h"
#include "hudoverlay.h"
#include "picturelook.h"
#include "reducedpicture.h"
#include "shaderprograms.h"
#include "textures.h"
#include "vertexset.h"
#include "viewgeometry.h"

#include <QtOpenGL/QOpenGLPaintDevice>

#include <optional>

struct ImageFrame;

/// Draws a frame, its border and its HUD into the bound framebuffer; knows no window. Made, used and destroyed with its
/// context current.
class PictureRenderer final {
    Q_DISABLE_COPY_MOVE(PictureRenderer)

public:
    struct Scene {
        const ImageFrame *frame; ///< may be null
        const ViewGeometry &geometry;
        const PictureLook &look;
        bool inHaste = false; ///< better at once than as well as can be
    };

    explicit PictureRenderer(const GlContext &context);

    /// False when what draws frames did not build, as the log says.
    bool usable() const { return m_usable; }
    Textures &textures() { return m_textures; }

    /// Draws background, checker and what there is of the frame.
    void drawPicture(const Scene &scene);
    /// True when the last picture was drawn in haste and would look better drawn again.
    bool isHasty() const { return m_hasty; }
    void drawBorder(const Scene &scene);
    /// Draws the lines on the picture on a core context, at their place in the view on another.
    void drawHud(const Scene &scene, const QStringList &lines, qreal devicePixelRatio);

private:
    PictureProgram &programFor(const Scene &scene);
    /// Gives a smaller frame to draw in place of the scene's, or that one.
    const ImageFrame &reduced(const Scene &scene);
    /// Within the scissor's box, where that is on.
    void drawBackground(const Scene &scene, const QMatrix4x4 &matrix, const QuadVertices &quad);
    void drawChecker(const Scene &scene, const QMatrix4x4 &matrix, const QuadVertices &quad);
    void drawFrame(const Scene &scene, const QMatrix4x4 &matrix, const QuadVertices &quad);
    void enableBlending();
    bool canWidenLines();

    QOpenGLFunctions &m_gl;
    Textures m_textures;
    const GlContext m_context;
    PictureProgram m_picture;
    std::optional<PictureProgram> m_magnified; ///< made when one is first wanted, as the next
    std::optional<ReducedPicture> m_reduced;
    BorderProgram m_border;
    CheckerProgram m_checker;
    VertexSet m_pictureVertices;
    VertexSet m_checkerVertices;
    VertexSet m_borderVertices;
    std::optional<HudOverlay> m_hud; ///< on a core context
    QOpenGLPaintDevice m_view; ///< for the HUD on another
    HudText m_hudText;
    bool m_wideLines;
    bool m_usable;
    bool m_hasty = false;
};

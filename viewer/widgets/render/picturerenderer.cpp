#include "picturerenderer.h"

#include <viewer/frames/imageframe.h>

#include <QtGui/QOpenGLContext>
#include <QtGui/QPainter>

#include <algorithm>

namespace {

constexpr float kBorderWidth = 2.0F;

QSize sizeOf(const ImageFrame &frame)
{
    return {frame.planeSizes.front().width, frame.planeSizes.front().height};
}

} // namespace

PictureRenderer::PictureRenderer(const GlContext &context)
    : m_gl(context.gl)
    , m_textures(context)
    , m_context(context)
    , m_picture(context, Sampling::Direct)
    , m_border(context)
    , m_checker(context)
    , m_pictureVertices(context, m_picture, kQuadCorners)
    , m_checkerVertices(context, m_checker, kQuadCorners)
    , m_borderVertices(context, m_border, kLoopCorners)
    , m_wideLines(canWidenLines())
    , m_usable(m_picture.isBuilt())
{
    if (!context.core)
        return;
    m_hud.emplace(context, m_textures);
    m_usable = m_pictureVertices.createBuffers() && m_usable;
    static_cast<void>(m_checkerVertices.createBuffers() && m_borderVertices.createBuffers()
                      && m_hud->createBuffers());
}

void PictureRenderer::drawPicture(const Scene &scene)
{
    const ViewGeometry &geometry = scene.geometry;
    const bool hasPicture = scene.frame && m_textures.has(*scene.frame);
    m_hasty = false;
    const ImageFrame *frame = hasPicture ? &reduced(scene) : nullptr;
    m_gl.glViewport(0, 0, geometry.view.width(), geometry.view.height());
    m_gl.glDisable(GL_BLEND);
    m_gl.glClearColor(scene.look.background.redF(), scene.look.background.greenF(),
                      scene.look.background.blueF(), scene.look.background.alphaF());

    const QMatrix4x4 matrix = geometry.projection();
    const QuadVertices quad = quadVertices(geometry.quad());
    drawBackground(scene, matrix, quad);
    if (!frame)
        return;
    drawFrame({frame, geometry, scene.look}, matrix, quad);
    // A picture without alpha has no other way to show that nothing is there.
    const QRect view({0, 0}, geometry.view);
    m_gl.glEnable(GL_SCISSOR_TEST);
    for (const FarmHelpers::PartialLoad::Box &box : scene.frame->partial.unread) {
        const QRect clear = geometry.placeOf({box.x, box.y, box.width, box.height}) & view;
        if (clear.isEmpty())
            continue;
        m_gl.glScissor(clear.x(), view.height() - clear.y() - clear.height(), clear.width(), clear.height());
        drawBackground(scene, matrix, quad);
    }
    m_gl.glDisable(GL_SCISSOR_TEST);
}

void PictureRenderer::drawBackground(const Scene &scene, const QMatrix4x4 &matrix, const QuadVertices &quad)
{
    m_gl.glClear(GL_COLOR_BUFFER_BIT);
    if (scene.look.checkerOn)
        drawChecker(scene, matrix, quad);
}

void PictureRenderer::drawBorder(const Scene &scene)
{
    if (!scene.frame || !m_border.bind())
        return;
    m_border.setMatrix(scene.geometry.projection());
    const QRectF quad = scene.geometry.quad();
    const auto drawLoop = [&](float outward) {
        m_borderVertices.draw(GL_LINE_LOOP, loopVertices(quad, outward).data());
    };
    if (m_wideLines) {
        m_gl.glLineWidth(kBorderWidth);
        drawLoop(kBorderWidth);
        m_gl.glLineWidth(1.0F);
    } else {
        // The same pixels, line by line.
        drawLoop(kBorderWidth - 0.5F);
        drawLoop(kBorderWidth + 0.5F);
    }
    m_border.release();
}

void PictureRenderer::drawHud(const Scene &scene, const QStringList &lines, qreal devicePixelRatio)
{
    if (m_hud) {
        enableBlending();
        m_hud->draw(scene.geometry.projection(), lines, scene.look.hud, devicePixelRatio);
        m_gl.glDisable(GL_BLEND);
        return;
    }
    m_hudText.setLines(lines);
    m_view.setSize(scene.geometry.view);
    m_view.setDevicePixelRatio(devicePixelRatio);
    QPainter painter(&m_view);
    m_hudText.paint(painter, scene.look.hud);
}

void PictureRenderer::drawChecker(const Scene &scene, const QMatrix4x4 &matrix, const QuadVertices &quad)
{
    if (!m_checker.bind())
        return;
    m_checker.setMatrix(matrix);
    m_checker.setUniforms(scene.geometry.checkerOffset(), scene.geometry.zoom);
    m_checkerVertices.draw(GL_TRIANGLES, quad.data());
    m_checker.release();
}

void PictureRenderer::drawFrame(const Scene &scene, const QMatrix4x4 &matrix, const QuadVertices &quad)
{
    PictureProgram &program = programFor(scene);
    if (!program.bind())
        return;
    if (scene.look.alphaOn)
        enableBlending();
    const TextureBinding textures(m_gl, *scene.frame);
    program.setMatrix(matrix);
    program.setUniforms(scene.look, *scene.frame);
    if (&program != &m_picture)
        program.setSize(sizeOf(*scene.frame));
    m_pictureVertices.draw(GL_TRIANGLES, quad.data(), (scene.frame->yFlipped ? kTopDown : kBottomUp).data());
    m_gl.glDisable(GL_BLEND);
    program.release();
}

PictureProgram &PictureRenderer::programFor(const Scene &scene)
{
    if (scene.geometry.displayedSize() == sizeOf(*scene.frame) || !havePlanesOneSize(*scene.frame))
        return m_picture;
    if (!m_magnified)
        m_magnified.emplace(m_context, Sampling::Magnified);
    return m_magnified->isBuilt() ? *m_magnified : m_picture;
}

const ImageFrame &PictureRenderer::reduced(const Scene &scene)
{
    const QSize size = sizeOf(*scene.frame);
    const QSize displayed = scene.geometry.displayedSize();
    if (displayed.width() * 2 >= size.width() || displayed.height() * 2 >= size.height()
        || !havePlanesOneSize(*scene.frame))
        return *scene.frame;
    if (!m_reduced)
        m_reduced.emplace(m_context);
    const ReducedPicture::Wanted wanted{*scene.frame, displayed, scene.look.alphaOn};
    m_hasty = scene.inHaste && !m_reduced->isQuick(wanted);
    const ImageFrame *smaller = m_hasty ? nullptr : m_reduced->of(wanted);
    return smaller ? *smaller : *scene.frame;
}

void PictureRenderer::enableBlending()
{
    m_gl.glEnable(GL_BLEND);
    m_gl.glBlendEquation(GL_FUNC_ADD);
    m_gl.glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
}

/// A forward-compatible context takes no width above 1, whatever range it tells.
bool PictureRenderer::canWidenLines()
{
    GLint flags = 0;
    if (QOpenGLContext::currentContext()->format().version() >= std::pair(3, 0))
        m_gl.glGetIntegerv(GL_CONTEXT_FLAGS, &flags);
    std::array<GLfloat, 2> range{};
    m_gl.glGetFloatv(GL_ALIASED_LINE_WIDTH_RANGE, range.data());
    return !(flags & GL_CONTEXT_FLAG_FORWARD_COMPATIBLE_BIT) && range[1] >= kBorderWidth;
}

#include "reducedpicture.h"

#include "textures.h"
#include "viewgeometry.h"

#include <QtCore/QElapsedTimer>

#include <algorithm>

namespace {

constexpr double kQuick = 4'000'000; // nanoseconds

double texelsOf(const ImageFrame &frame)
{
    const PlaneSize size = frame.planeSizes.front();
    return double(size.width) * double(size.height) * frame.textureCount;
}

} // namespace

ReducedPicture::ReducedPicture(const GlContext &context)
    : m_context(context)
    , m_gl(context.gl)
{ }

bool ReducedPicture::isQuick(const Wanted &wanted) const
{
    return keyOf(wanted) == m_key || (m_texelTime > 0 && texelsOf(wanted.frame) * m_texelTime < kQuick);
}

const ImageFrame *ReducedPicture::of(const Wanted &wanted)
{
    const ImageFrame &frame = wanted.frame;
    const Key key = keyOf(wanted);
    if (key == m_key)
        return &m_picture;
    const bool quick = isQuick(wanted);
    m_key = {};
    // A buffer that is made leaves the window's bound, whatever was before.
    GLint bound = 0;
    m_gl.glGetIntegerv(GL_FRAMEBUFFER_BINDING, &bound);
    const bool hasAlpha = frame.textureCount == 4 || (frame.textureCount == 1 && frame.components == 4);
    const bool made =
        prepare(wanted.size, {frame.textureCount, hasAlpha && wanted.alphaOn && !frame.premultiplied})
        && (quick ? draw(frame) : drawTimed(frame));
    m_gl.glBindFramebuffer(GL_FRAMEBUFFER, static_cast<GLuint>(bound));
    if (!made)
        return nullptr;
    m_key = key;
    m_picture.planeSizes = {{wanted.size.width(), wanted.size.height()}};
    m_picture.textureNames = {m_target->texture()};
    m_picture.textureCount = 1;
    m_picture.components = frame.textureCount == 1 ? frame.components : 4;
    m_picture.isYCbCr = frame.isYCbCr;
    m_picture.premultiplied = frame.premultiplied;
    return &m_picture;
}

bool ReducedPicture::drawTimed(const ImageFrame &frame)
{
    m_gl.glFinish();
    QElapsedTimer timer;
    timer.start();
    if (!draw(frame))
        return false;
    m_gl.glFinish();
    m_texelTime = double(std::max<qint64>(timer.nsecsElapsed(), 1)) / texelsOf(frame);
    return true;
}

bool ReducedPicture::prepare(QSize size, Kind kind)
{
    if (size.isEmpty())
        return false;
    if (kind != m_kind) {
        m_kind = kind;
        m_vertices.reset();
        m_program.emplace(m_context, kind.textureCount, kind.weighted);
        m_vertices.emplace(m_context, *m_program, kQuadCorners);
        if (m_context.core && !m_vertices->createBuffers())
            m_vertices.reset();
    }
    if (!m_program->isBuilt() || !m_vertices)
        return false;
    if (!m_target || m_target->size() != size)
        m_target = std::make_unique<QOpenGLFramebufferObject>(size, QOpenGLFramebufferObject::NoAttachment,
                                                              GL_TEXTURE_2D, GL_RGBA16F);
    return m_target->isValid();
}

bool ReducedPicture::draw(const ImageFrame &frame)
{
    if (!m_target->bind() || !m_program->bind())
        return false;
    const QSize size = m_target->size();
    ViewGeometry whole;
    whole.view = whole.frame = size;
    m_gl.glViewport(0, 0, size.width(), size.height());
    m_gl.glDisable(GL_BLEND);
    const TextureBinding textures(m_gl, frame);
    m_program->setMatrix(whole.projection());
    m_program->setSizes({frame.planeSizes.front().width, frame.planeSizes.front().height}, size);
    m_vertices->draw(GL_TRIANGLES, quadVertices(whole.quad()).data(),
                     (frame.yFlipped ? kTopDown : kBottomUp).data());
    m_program->release();
    return true;
}

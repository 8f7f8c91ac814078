#include "hudoverlay.h"

#include "hud.h"
#include "textures.h"
#include "viewgeometry.h"

#include <QtGui/QImage>

HudOverlay::HudOverlay(const GlContext &context, Textures &textures)
    : m_gl(context.gl)
    , m_textures(textures)
    , m_program(context)
    , m_vertices(context, m_program, kQuadCorners)
{ }

HudOverlay::~HudOverlay()
{
    m_textures.remove(m_texture);
}

void HudOverlay::draw(const QMatrix4x4 &matrix, const QStringList &lines, const QColor &color,
                      qreal devicePixelRatio)
{
    if (!updateTexture(lines, color, devicePixelRatio) || !m_program.bind())
        return;
    m_program.setMatrix(matrix);
    m_program.setTextureUnit(0);
    m_gl.glBindTexture(GL_TEXTURE_2D, m_texture);
    // On whole pixels the text stays as sharp as it was painted.
    const QPoint corner = QPoint(kHudMargin - kHudPadding, kHudMargin - kHudPadding) * devicePixelRatio;
    m_vertices.draw(GL_TRIANGLES, quadVertices(QRectF(corner, QSizeF(m_size))).data(), kBottomUp.data());
    m_gl.glBindTexture(GL_TEXTURE_2D, 0);
    m_program.release();
}

bool HudOverlay::updateTexture(const QStringList &lines, const QColor &color, qreal devicePixelRatio)
{
    if (m_ratio == devicePixelRatio && m_color == color && m_lines == lines)
        return m_texture != 0;
    m_textures.remove(m_texture);
    m_lines = lines;
    m_color = color;
    m_ratio = devicePixelRatio;
    const QImage image = hudImage(lines, color, devicePixelRatio, m_textures.longestSide());
    m_size = image.size();
    // GL's rows count from the bottom.
    m_texture = image.isNull() ? 0 : m_textures.upload(m_size, image.mirrored().constBits());
    return m_texture != 0;
}

#pragma once

#include "shaderprograms.h"
#include "vertexset.h"

#include <QtCore/QSize>
#include <QtCore/QStringList>
#include <QtGui/QColor>

class Textures;

/// Draws the HUD on a core context, from a texture that is made anew only when the lines, their colour or the ratio of
/// device pixels have changed. Made, used and destroyed with its context current.
class HudOverlay final {
    Q_DISABLE_COPY_MOVE(HudOverlay)

public:
    HudOverlay(const GlContext &context, Textures &textures);
    ~HudOverlay();

    bool createBuffers() { return m_vertices.createBuffers(); }
    /// Draws the lines, blended as the context is set.
    void draw(const QMatrix4x4 &matrix, const QStringList &lines, const QColor &color,
              qreal devicePixelRatio);

private:
    bool updateTexture(const QStringList &lines, const QColor &color, qreal devicePixelRatio);

    QOpenGLFunctions &m_gl;
    Textures &m_textures;
    HudProgram m_program;
    VertexSet m_vertices;
    GLuint m_texture = 0;
    QSize m_size;
    QStringList m_lines;
    QColor m_color;
    qreal m_ratio = 0;
};

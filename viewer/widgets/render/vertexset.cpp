#include "vertexset.h"

#include "shaderprograms.h"

#include <viewer/frames/viewerlog.h>

namespace {

constexpr int kPosition = 3;
constexpr int kTexCoord = 2;

int bytes(int floats)
{
    return floats * static_cast<int>(sizeof(float));
}

} // namespace

VertexSet::VertexSet(const GlContext &context, const ShaderProgram &program, int vertices)
    : m_gl(context.gl)
    , m_program(program)
    , m_vertices(vertices)
    , m_core(context.core)
{ }

bool VertexSet::createBuffers()
{
    if (!m_array.create())
        return false;
    const QOpenGLVertexArrayObject::Binder bound(&m_array);
    m_created = createBuffer(m_positions, m_program.vertex(), kPosition)
        && (!m_program.textured() || createBuffer(m_texCoords, m_program.texCoord(), kTexCoord));
    if (!m_created)
        qCWarning(lcViewer, "Could not bind vertex buffer to the context");
    return m_created;
}

void VertexSet::draw(GLenum mode, const float *positions, const float *texCoords)
{
    if (m_core) {
        drawBuffers(mode, positions, texCoords);
        return;
    }
    const auto vertex = static_cast<GLuint>(m_program.vertex());
    const auto texCoord = static_cast<GLuint>(m_program.texCoord());
    m_gl.glEnableVertexAttribArray(vertex);
    m_gl.glVertexAttribPointer(vertex, kPosition, GL_FLOAT, GL_FALSE, 0, positions);
    if (texCoords) {
        m_gl.glEnableVertexAttribArray(texCoord);
        m_gl.glVertexAttribPointer(texCoord, kTexCoord, GL_FLOAT, GL_FALSE, 0, texCoords);
    }
    m_gl.glDrawArrays(mode, 0, m_vertices);
    m_gl.glDisableVertexAttribArray(vertex);
    if (texCoords)
        m_gl.glDisableVertexAttribArray(texCoord);
}

void VertexSet::drawBuffers(GLenum mode, const float *positions, const float *texCoords)
{
    if (!m_created)
        return;
    const QOpenGLVertexArrayObject::Binder bound(&m_array);
    write(m_positions, kPosition, positions);
    if (texCoords)
        write(m_texCoords, kTexCoord, texCoords);
    m_gl.glDrawArrays(mode, 0, m_vertices);
}

bool VertexSet::createBuffer(QOpenGLBuffer &buffer, int location, int tuple)
{
    if (!buffer.create())
        return false;
    buffer.setUsagePattern(QOpenGLBuffer::DynamicDraw);
    if (!buffer.bind())
        return false;
    buffer.allocate(bytes(tuple * m_vertices));
    // Nothing feeds a program that did not link.
    if (location >= 0) {
        m_gl.glEnableVertexAttribArray(static_cast<GLuint>(location));
        m_gl.glVertexAttribPointer(static_cast<GLuint>(location), tuple, GL_FLOAT, GL_FALSE, 0, nullptr);
    }
    buffer.release();
    return true;
}

void VertexSet::write(QOpenGLBuffer &buffer, int tuple, const float *values)
{
    buffer.bind();
    buffer.write(0, values, bytes(tuple * m_vertices));
    buffer.release();
}

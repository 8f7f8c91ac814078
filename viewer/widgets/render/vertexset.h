#pragma once

#include "glcontext.h"

#include <QtOpenGL/QOpenGLBuffer>
#include <QtOpenGL/QOpenGLVertexArrayObject>

class ShaderProgram;

/// Hands the vertices of one shape to its program: from arrays of the client, or on a core context from buffers behind
/// a vertex array object. Made, used and destroyed with its context current.
class VertexSet final {
    Q_DISABLE_COPY_MOVE(VertexSet)

public:
    /// The program draws the shape and outlives this; three floats a position, two a texture coordinate.
    VertexSet(const GlContext &context, const ShaderProgram &program, int vertices);

    /// Makes the buffers of a core context; logs and returns false on failure, and nothing is drawn then.
    bool createBuffers();
    /// Draws the shape; the program is bound.
    void draw(GLenum mode, const float *positions, const float *texCoords = nullptr);

private:
    bool createBuffer(QOpenGLBuffer &buffer, int location, int tuple);
    void write(QOpenGLBuffer &buffer, int tuple, const float *values);
    void drawBuffers(GLenum mode, const float *positions, const float *texCoords);

    QOpenGLFunctions &m_gl;
    const ShaderProgram &m_program;
    int m_vertices;
    bool m_core;
    bool m_created = false;
    QOpenGLVertexArrayObject m_array;
    QOpenGLBuffer m_positions;
    QOpenGLBuffer m_texCoords;
};

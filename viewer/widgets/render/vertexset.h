#pragma once

#include <QtGui/QOpenGLFunctions>
#include <QtOpenGL/QOpenGLBuffer>
#include <QtOpenGL/QOpenGLVertexArrayObject>

class ShaderProgram;

/// Vertices of one shape: arrays of the client, or on a core context, which has none, buffers behind a vertex array
/// object. Made, used and destroyed with its context current.
class VertexSet final {
    Q_DISABLE_COPY_MOVE(VertexSet)

public:
    /// The program is the one that draws it; three floats a position, two a texture coordinate.
    VertexSet(QOpenGLFunctions &gl, const ShaderProgram &program, int vertices, bool core);

    /// On a core context only. Logs and returns false on failure, and nothing is drawn then.
    bool createBuffers();
    /// With the program bound.
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

#pragma once

#include <QtCore/QSize>
#include <QtGui/QOpenGLFunctions>

struct ImageFrame;

/// What the samples of a texture with that internal format are called: GL_RGB, GL_LUMINANCE or else GL_RGBA.
GLenum pixelDataFormat(GLenum internalFormat);

/// Makes, fills and deletes textures. Each goes through here, so that they can be counted; the context is current.
class Textures final {
public:
    /// A core context has no luminance textures: red stands in for them.
    Textures(QOpenGLFunctions &gl, bool core);

    /// Longest side of a texture, in pixels.
    int longestSide() const { return m_longestSide; }

    /// A texture of each plane, named in the frame. Logs and names none when GL would refuse the frame or read past a plane.
    void upload(ImageFrame &frame);
    /// One texture of packed 8-bit RGBA rows; 0 when GL refuses it.
    GLuint upload(const QSize &size, const void *rgba);
    void remove(GLuint texture);
    void remove(ImageFrame &frame);

    /// Of the whole program.
    static int live();

private:
    struct Image;

    GLuint make(const Image &image);
    /// Why GL cannot take a plane; null when it can.
    const char *refusal(const ImageFrame &frame, std::size_t plane) const;
    GLenum takeError();

    QOpenGLFunctions &m_gl;
    GLint m_longestSide = 0;
    bool m_core = false;
};

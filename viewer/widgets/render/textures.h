#pragma once

#include "glcontext.h"

#include <viewer/frames/imageframe.h>

#include <QtCore/QSize>

/// Names the samples of a texture with that internal format: GL_RGB, GL_LUMINANCE or else GL_RGBA.
GLenum pixelDataFormat(GLenum internalFormat);

/// Tells whether each texel of a plane has its counterpart in the others. The textures of such a frame give single texels,
/// others mix theirs.
bool havePlanesOneSize(const ImageFrame &frame);

/// Binds a frame's textures to the first units for as long as it stands.
class TextureBinding final {
    Q_DISABLE_COPY_MOVE(TextureBinding)

public:
    TextureBinding(QOpenGLFunctions &gl, const ImageFrame &frame);
    ~TextureBinding();

private:
    void bind(bool bound);

    QOpenGLFunctions &m_gl;
    const ImageFrame &m_frame;
};

/// Makes, fills and deletes textures, each through here, so that they can be counted; the context is current.
class Textures final {
    Q_DISABLE_COPY_MOVE(Textures)

public:
    explicit Textures(const GlContext &context);
    ~Textures();

    /// Longest side of a texture, in pixels.
    int longestSide() const { return m_longestSide; }

    /// Makes a texture of each plane and names them in the frame; logs, names none and notes why in the frame when GL
    /// refuses it or would read past a plane.
    void upload(ImageFrame &frame);
    /// Makes one texture of packed 8-bit RGBA rows; returns 0 when GL refuses it.
    GLuint upload(const QSize &size, const void *rgba);
    void remove(GLuint texture);
    /// Forgets the names that a context before this one made.
    void remove(ImageFrame &frame);
    /// Tells whether the frame has textures, of this context.
    bool has(const ImageFrame &frame) const;
    /// The context has died and took its textures along.
    void abandon() { m_abandoned = true; }

    /// Counts the textures that the whole program holds now, so that a leak shows.
    static int live();

private:
    struct Image;

    GLuint make(const Image &image);
    /// Tells why GL cannot take the planes.
    Refusal refusal(const ImageFrame &frame) const;
    Refusal refusal(const ImageFrame &frame, std::size_t plane) const;
    GLenum takeError();

    QOpenGLFunctions &m_gl;
    const std::uint32_t m_id;
    GLint m_longestSide = 0;
    int m_live = 0;
    bool m_core = false;
    bool m_abandoned = false;
};

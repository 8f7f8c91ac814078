#pragma once

#include "shaderprograms.h"
#include "vertexset.h"

#include <viewer/frames/imageframe.h>

#include <QtOpenGL/QOpenGLFramebufferObject>

#include <memory>
#include <optional>

/// Makes a small picture of a frame in which each pixel is the mean of the texels that it covers, so that a picture far
/// smaller than its frame does not shimmer. Kept until another is asked for: to make it reads the whole frame. Made, used
/// and destroyed with its context current.
class ReducedPicture final {
    Q_DISABLE_COPY_MOVE(ReducedPicture)

public:
    explicit ReducedPicture(const GlContext &context);

    struct Wanted {
        const ImageFrame &frame;
        QSize size;
        bool alphaOn;
    };

    /// True when the picture is there, or made in a small part of the time that a frame is on show in playback. That is
    /// not known before the first was made.
    bool isQuick(const Wanted &wanted) const;
    /// Gives a frame of that size to draw in place of the other, with a texture of this; null where OpenGL makes none.
    /// Changes the viewport.
    const ImageFrame *of(const Wanted &wanted);

private:
    /// What a program is built for.
    struct Kind {
        int textureCount = 0;
        bool weighted = false;

        bool operator==(const Kind &other) const = default;
    };
    struct Key {
        std::uint64_t upload = 0;
        QSize size;
        bool alphaOn = false;

        bool operator==(const Key &other) const = default;
    };

    static Key keyOf(const Wanted &wanted)
    {
        return {wanted.frame.uploadNumber, wanted.size, wanted.alphaOn};
    }
    bool prepare(QSize size, Kind kind);
    bool draw(const ImageFrame &frame);
    bool drawTimed(const ImageFrame &frame);

    const GlContext m_context;
    QOpenGLFunctions &m_gl;
    std::optional<ReducingProgram> m_program;
    std::optional<VertexSet> m_vertices;
    Kind m_kind; ///< of the program; frames of a sequence are of one
    std::unique_ptr<QOpenGLFramebufferObject> m_target;
    Key m_key;
    ImageFrame m_picture;
    double m_texelTime = 0; ///< nanoseconds that a texel of the last slow one took; 0 before the first
};

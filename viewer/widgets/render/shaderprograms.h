#pragma once

#include "calibration.h"
#include "glcontext.h"

#include <QtCore/QByteArray>
#include <QtOpenGL/QOpenGLShaderProgram>

#include <optional>

/// A program and where its variables are, looked up once. One that does not build logs why and does not bind.
/// Made, used and destroyed with its context current.
class ShaderProgram {
    Q_DISABLE_COPY_MOVE(ShaderProgram)

public:
    struct Sources {
        const char *name; ///< begins each line of its log
        const char *vertex; ///< files in the resources
        const char *fragment;
        QByteArray defines = {}; ///< of the fragment shader
    };

    ShaderProgram(const Sources &sources, const GlContext &context);

    bool isBuilt() const { return m_built; }
    bool bind() { return m_built && m_program.bind(); }
    void release() { m_program.release(); }
    void setMatrix(const QMatrix4x4 &matrix) { m_program.setUniformValue(m_matrix, matrix); }

    int vertex() const { return m_vertex; }
    int texCoord() const { return m_texCoord; }
    bool textured() const { return m_texCoord >= 0; }

protected:
    /// -1 in a program that is not built.
    int location(const char *uniform) const { return m_built ? m_program.uniformLocation(uniform) : -1; }
    /// Gives each texture unit its sampler.
    void setUnits();

    QOpenGLShaderProgram m_program;

private:
    bool m_built = false;
    int m_vertex = -1;
    int m_texCoord = -1;
    int m_matrix = -1;
};

struct PictureLook;
struct ImageFrame;

/// Tells what a pixel of the view takes from the frame.
enum class Sampling {
    Direct, ///< what the texture gives at its middle
    Magnified, ///< a mix of the four texels around it
};

/// Samples the frame's textures, puts the calibration to them and shows the channels that were chosen.
class PictureProgram final : public ShaderProgram {
public:
    PictureProgram(const GlContext &context, Sampling sampling);

    /// Hands over what has changed since the last call; the program is bound.
    void setUniforms(const PictureLook &look, const ImageFrame &frame);
    /// Says how large the frame is, for all but direct sampling; the program is bound.
    void setSize(QSize frame);

private:
    struct Values {
        Calibration calibration;
        float sourceGamma = 0;
        GLint channelViewMode = 0;
        GLint textureCount = 0;
        GLint redChannelOnly = 0;
        GLint isYCbCr = 0;
        GLint skipAlpha = 0;
        GLint premultiplied = 0;

        bool operator==(const Values &other) const = default;
    };

    std::optional<Values> m_values; ///< that the program holds
    int m_textureCount;
    int m_redChannelOnly;
    int m_isYCbCr;
    int m_skipAlpha;
    int m_premultiplied;
    int m_channelViewMode;
    int m_sourceGamma;
    int m_gamma;
    int m_brightness;
    int m_saturation;
    int m_contrast;
    int m_levelInputMin;
    int m_levelInputMax;
    int m_levelOutputMin;
    int m_levelOutputMax;
    int m_softClip;
    int m_frameSize;
};

/// Gives each pixel the mean of the texels that it covers.
class ReducingProgram final : public ShaderProgram {
public:
    /// For frames of so many textures; weighted, a texel's colour counts as its alpha does.
    ReducingProgram(const GlContext &context, int textureCount, bool weighted);

    /// Says how large the frame is and how large it gets; the program is bound.
    void setSizes(QSize frame, QSize reduced);

private:
    int m_pixelSize;
    int m_taps;
};

/// Draws red: the line round the picture.
class BorderProgram final : public ShaderProgram {
public:
    explicit BorderProgram(const GlContext &context);
};

/// Draws the grey squares that transparent pixels show.
class CheckerProgram final : public ShaderProgram {
public:
    explicit CheckerProgram(const GlContext &context);

    /// Counts the squares from `offset`, in window coordinates from the bottom; the program is bound.
    void setUniforms(QPoint offset, float zoom);

private:
    int m_offset;
    int m_zoomFactor;
};

/// Draws a texture as it is: the lines of the HUD.
class HudProgram final : public ShaderProgram {
public:
    explicit HudProgram(const GlContext &context);

    void setTextureUnit(int unit) { m_program.setUniformValue(m_texture, unit); }

private:
    int m_texture;
};

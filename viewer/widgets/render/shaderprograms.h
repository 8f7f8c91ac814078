#pragma once

#include "calibration.h"

#include <QtOpenGL/QOpenGLShaderProgram>

#include <optional>

/// A program and where its variables are, looked up once. One that does not compile or link logs why and draws nothing.
/// Made, used and destroyed with its context current.
class ShaderProgram {
    Q_DISABLE_COPY_MOVE(ShaderProgram)

public:
    struct Sources {
        const char *name; ///< begins each line of its log
        const char *vertex; ///< files in the resources
        const char *fragment;
    };

    ShaderProgram(const Sources &sources, bool core);

    bool bind() { return m_program.isLinked() && m_program.bind(); }
    void release() { m_program.release(); }
    void setMatrix(const QMatrix4x4 &matrix) { m_program.setUniformValue(m_matrix, matrix); }

    int vertex() const { return m_vertex; }
    int texCoord() const { return m_texCoord; }
    bool textured() const { return m_texCoord >= 0; }

protected:
    QOpenGLShaderProgram m_program;

private:
    int m_vertex = -1;
    int m_texCoord = -1;
    int m_matrix = -1;
};

struct PictureLook;
struct ImageFrame;

class PictureProgram final : public ShaderProgram {
public:
    explicit PictureProgram(bool core);

    /// While bound. What is the same as before is not handed over again.
    void setUniforms(const PictureLook &look, const ImageFrame &frame);

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
};

class BorderProgram final : public ShaderProgram {
public:
    explicit BorderProgram(bool core);
};

class CheckerProgram final : public ShaderProgram {
public:
    explicit CheckerProgram(bool core);

    void setUniforms(QPoint offset, float zoom);

private:
    int m_offset;
    int m_zoomFactor;
};

class HudProgram final : public ShaderProgram {
public:
    explicit HudProgram(bool core);

    void setTextureUnit(int unit) { m_program.setUniformValue(m_texture, unit); }

private:
    int m_texture;
};

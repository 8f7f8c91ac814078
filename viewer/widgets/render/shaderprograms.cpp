#include "shaderprograms.h"

#include "picturelook.h"

#include <viewer/frames/imageframe.h>
#include <viewer/frames/viewerlog.h>

#include <QtCore/QFile>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// The two dialects differ in these words only.
constexpr char kVertex120[] = R"(#version 120
#define ATTRIBUTE attribute
#define VARYING varying
)";
constexpr char kFragment120[] = R"(#version 120
#define VARYING varying
#define TEXTURE texture2D
#define fragColor gl_FragColor
)";
constexpr char kVertex150[] = R"(#version 150
#define ATTRIBUTE in
#define VARYING out
)";
constexpr char kFragment150[] = R"(#version 150
#define VARYING in
#define TEXTURE texture
out vec4 fragColor;
)";

// The same in all programs, so that one set of vertices serves those of a kind.
constexpr int kVertex = 0;
constexpr int kTexCoord = 1;

// Enough for pictures 64 times as large as they are shown: what has to be read then takes long as it is.
constexpr double kMostTaps = 64.0;

QByteArray source(const QByteArray &prologue, const char *name)
{
    QFile file(QStringLiteral(":/Shaders/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? prologue + file.readAll() : QByteArray();
}

} // namespace

ShaderProgram::ShaderProgram(const Sources &sources, const GlContext &context)
{
    const auto warn = [this, &sources](const char *step) {
        qCWarning(lcViewer, "%s %s: %s", sources.name, step, qPrintable(m_program.log()));
    };
    const auto checked = [&warn](bool done, const char *step) {
        if (!done)
            warn(step);
        return done;
    };
    const QByteArray prologue = QByteArray(context.core ? kFragment150 : kFragment120) + sources.defines;
    const bool vertex =
        checked(m_program.addShaderFromSourceCode(
                    QOpenGLShader::Vertex, source(context.core ? kVertex150 : kVertex120, sources.vertex)),
                "vertex shader");
    const bool fragment = checked(
        m_program.addShaderFromSourceCode(QOpenGLShader::Fragment, source(prologue, sources.fragment)),
        "fragment shader");
    m_program.bindAttributeLocation("vertex", kVertex);
    m_program.bindAttributeLocation("vertTexCoord", kTexCoord);
    // A program without shaders links, and draws as OpenGL did before there were any.
    m_built = checked(m_program.link(), "shader link") && vertex && fragment;
    if (!m_built)
        return;
    m_vertex = m_program.attributeLocation("vertex");
    m_texCoord = m_program.attributeLocation("vertTexCoord");
    m_matrix = m_program.uniformLocation("matrix");
}

PictureProgram::PictureProgram(const GlContext &context, Sampling sampling)
    : ShaderProgram({"Program", "picture.vert.glsl", "picture.frag.glsl",
                     sampling == Sampling::Magnified ? "#define MAGNIFIED\n" : ""},
                    context)
    , m_textureCount(location("numOfTextures"))
    , m_redChannelOnly(location("redChannelOnly"))
    , m_isYCbCr(location("isYCbCr"))
    , m_skipAlpha(location("skipAlpha"))
    , m_premultiplied(location("premultiplied"))
    , m_channelViewMode(location("channelViewMode"))
    , m_sourceGamma(location("sourceGamma"))
    , m_gamma(location("gamma"))
    , m_brightness(location("brightness"))
    , m_saturation(location("saturation"))
    , m_contrast(location("contrast"))
    , m_levelInputMin(location("levelInputMin"))
    , m_levelInputMax(location("levelInputMax"))
    , m_levelOutputMin(location("levelOutputMin"))
    , m_levelOutputMax(location("levelOutputMax"))
    , m_softClip(location("softClip"))
    , m_frameSize(location("frameSize"))
{
    setUnits();
}

void ShaderProgram::setUnits()
{
    if (!bind())
        return;
    constexpr std::array<const char *, 4> kUnits = {"tex0", "tex1", "tex2", "tex3"};
    for (std::size_t unit = 0; unit < kUnits.size(); ++unit)
        m_program.setUniformValue(kUnits[unit], static_cast<GLint>(unit));
    release();
}

void PictureProgram::setUniforms(const PictureLook &look, const ImageFrame &frame)
{
    const Values values = {.calibration = look.calibration,
                           .sourceGamma = look.sourceGamma,
                           .channelViewMode = look.channelViewMode,
                           .textureCount = frame.textureCount,
                           .redChannelOnly = frame.textureCount == 1 && frame.components == 1,
                           .isYCbCr = frame.isYCbCr,
                           .skipAlpha = !look.alphaOn,
                           .premultiplied = frame.premultiplied};
    if (m_values == values)
        return;
    m_values = values;
    m_program.setUniformValue(m_textureCount, values.textureCount);
    m_program.setUniformValue(m_redChannelOnly, values.redChannelOnly);
    m_program.setUniformValue(m_isYCbCr, values.isYCbCr);
    m_program.setUniformValue(m_skipAlpha, values.skipAlpha);
    m_program.setUniformValue(m_premultiplied, values.premultiplied);
    m_program.setUniformValue(m_channelViewMode, values.channelViewMode);
    m_program.setUniformValue(m_sourceGamma, values.sourceGamma);

    const Calibration &calibration = values.calibration;
    m_program.setUniformValue(m_gamma, calibration.gamma);
    m_program.setUniformValue(m_brightness, calibration.brightness);
    m_program.setUniformValue(m_saturation, calibration.saturation);
    m_program.setUniformValue(m_contrast, calibration.contrast);
    m_program.setUniformValue(m_levelInputMin, calibration.levelInputMin);
    m_program.setUniformValue(m_levelInputMax, calibration.levelInputMax);
    m_program.setUniformValue(m_levelOutputMin, calibration.levelOutputMin);
    m_program.setUniformValue(m_levelOutputMax, calibration.levelOutputMax);
    m_program.setUniformValue(m_softClip, calibration.softClip);
}

void PictureProgram::setSize(QSize frame)
{
    m_program.setUniformValue(m_frameSize, QSizeF(frame));
}

ReducingProgram::ReducingProgram(const GlContext &context, int textureCount, bool weighted)
    : ShaderProgram({"Reduction", "picture.vert.glsl", "reduced.frag.glsl",
                     "#define PLANES " + QByteArray::number(textureCount) + '\n'
                         + (weighted ? "#define WEIGHTED\n" : "")},
                    context)
    , m_pixelSize(location("pixelSize"))
    , m_taps(location("taps"))
{
    setUnits();
}

void ReducingProgram::setSizes(QSize frame, QSize reduced)
{
    const double across = double(frame.width()) / std::max(reduced.width(), 1);
    const double down = double(frame.height()) / std::max(reduced.height(), 1);
    m_program.setUniformValue(m_pixelSize, QSizeF(across / frame.width(), down / frame.height()));
    m_program.setUniformValue(m_taps,
                              static_cast<GLint>(std::ceil(std::min(std::max(across, down), kMostTaps))));
}

BorderProgram::BorderProgram(const GlContext &context)
    : ShaderProgram({"Border", "position.vert.glsl", "border.frag.glsl"}, context)
{ }

CheckerProgram::CheckerProgram(const GlContext &context)
    : ShaderProgram({"Checker", "position.vert.glsl", "checker.frag.glsl"}, context)
    , m_offset(location("offset"))
    , m_zoomFactor(location("zoomFactor"))
{ }

void CheckerProgram::setUniforms(QPoint offset, float zoom)
{
    m_program.setUniformValue(m_offset, offset);
    m_program.setUniformValue(m_zoomFactor, zoom);
}

HudProgram::HudProgram(const GlContext &context)
    : ShaderProgram({"Hud", "picture.vert.glsl", "hud.frag.glsl"}, context)
    , m_texture(location("tex0"))
{ }

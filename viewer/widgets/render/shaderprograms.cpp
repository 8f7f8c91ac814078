#include "shaderprograms.h"

#include "picturelook.h"

#include <viewer/frames/imageframe.h>
#include <viewer/frames/viewerlog.h>

#include <QtCore/QFile>

#include <array>

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

QByteArray source(const char *prologue, const char *name)
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
    if (!m_program.addShaderFromSourceCode(QOpenGLShader::Vertex,
                                           source(context.core ? kVertex150 : kVertex120, sources.vertex)))
        warn("vertex shader");
    if (!m_program.addShaderFromSourceCode(
            QOpenGLShader::Fragment, source(context.core ? kFragment150 : kFragment120, sources.fragment)))
        warn("fragment shader");
    if (!m_program.link()) {
        warn("shader link");
        return;
    }
    m_vertex = m_program.attributeLocation("vertex");
    m_texCoord = m_program.attributeLocation("vertTexCoord");
    m_matrix = m_program.uniformLocation("matrix");
}

PictureProgram::PictureProgram(const GlContext &context)
    : ShaderProgram({"Program", "picture.vert.glsl", "picture.frag.glsl"}, context)
    , m_textureCount(m_program.uniformLocation("numOfTextures"))
    , m_redChannelOnly(m_program.uniformLocation("redChannelOnly"))
    , m_isYCbCr(m_program.uniformLocation("isYCbCr"))
    , m_skipAlpha(m_program.uniformLocation("skipAlpha"))
    , m_premultiplied(m_program.uniformLocation("premultiplied"))
    , m_channelViewMode(m_program.uniformLocation("channelViewMode"))
    , m_sourceGamma(m_program.uniformLocation("sourceGamma"))
    , m_gamma(m_program.uniformLocation("gamma"))
    , m_brightness(m_program.uniformLocation("brightness"))
    , m_saturation(m_program.uniformLocation("saturation"))
    , m_contrast(m_program.uniformLocation("contrast"))
    , m_levelInputMin(m_program.uniformLocation("levelInputMin"))
    , m_levelInputMax(m_program.uniformLocation("levelInputMax"))
    , m_levelOutputMin(m_program.uniformLocation("levelOutputMin"))
    , m_levelOutputMax(m_program.uniformLocation("levelOutputMax"))
    , m_softClip(m_program.uniformLocation("softClip"))
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

BorderProgram::BorderProgram(const GlContext &context)
    : ShaderProgram({"Border", "position.vert.glsl", "border.frag.glsl"}, context)
{ }

CheckerProgram::CheckerProgram(const GlContext &context)
    : ShaderProgram({"Checker", "position.vert.glsl", "checker.frag.glsl"}, context)
    , m_offset(m_program.uniformLocation("offset"))
    , m_zoomFactor(m_program.uniformLocation("zoomFactor"))
{ }

void CheckerProgram::setUniforms(QPoint offset, float zoom)
{
    m_program.setUniformValue(m_offset, offset);
    m_program.setUniformValue(m_zoomFactor, zoom);
}

HudProgram::HudProgram(const GlContext &context)
    : ShaderProgram({"Hud", "picture.vert.glsl", "hud.frag.glsl"}, context)
    , m_texture(m_program.uniformLocation("tex0"))
{ }

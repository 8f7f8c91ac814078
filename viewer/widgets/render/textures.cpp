#include "textures.h"

#include <viewer/frames/imageframe.h>
#include <viewer/frames/sampleformat.h>
#include <viewer/frames/viewerlog.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>

namespace {

int liveTextures = 0;
std::uint32_t lastId = 0;
std::uint64_t uploads = 0;

constexpr std::array<GLenum, 5> kRgbFormats = {GL_RGB, GL_RGB32F, GL_RGB16F, GL_RGB32UI, GL_RGB16UI};
constexpr std::array<GLenum, 6> kLuminanceFormats = {GL_LUMINANCE, GL_R8,    GL_R16F,
                                                     GL_R32F,      GL_R16UI, GL_R32UI};
constexpr std::array<GLenum, 6> kIntegerFormats = {GL_R16UI,   GL_R32UI,    GL_RGB16UI,
                                                   GL_RGB32UI, GL_RGBA16UI, GL_RGBA32UI};
constexpr std::array<GLenum, 5> kPixelTypes = {GL_UNSIGNED_BYTE, GL_UNSIGNED_SHORT, GL_UNSIGNED_INT,
                                               GL_HALF_FLOAT, GL_FLOAT};
constexpr std::size_t kMostPlanes = 4;

template <std::size_t N>
bool holds(const std::array<GLenum, N> &list, GLenum value)
{
    return std::find(list.begin(), list.end(), value) != list.end();
}

const char *whatIsWrong(Refusal refusal)
{
    switch (refusal) {
    case Refusal::UnknownSamples:
        return "has samples of a kind that is not shown";
    case Refusal::TooLarge:
        return "is larger than OpenGL allows";
    default:
        return "has a plane with too few samples";
    }
}

std::int32_t samplesOf(GLenum dataFormat)
{
    return dataFormat == GL_RGB ? 3 : dataFormat == GL_LUMINANCE ? 1 : 4;
}

} // namespace

GLenum pixelDataFormat(GLenum internalFormat)
{
    if (holds(kRgbFormats, internalFormat))
        return GL_RGB;
    return holds(kLuminanceFormats, internalFormat) ? GL_LUMINANCE : GL_RGBA;
}

bool havePlanesOneSize(const ImageFrame &frame)
{
    const auto &sizes = frame.planeSizes;
    return std::adjacent_find(sizes.begin(), sizes.end(), std::not_equal_to<>()) == sizes.end();
}

TextureBinding::TextureBinding(QOpenGLFunctions &gl, const ImageFrame &frame)
    : m_gl(gl)
    , m_frame(frame)
{
    bind(true);
}

TextureBinding::~TextureBinding()
{
    bind(false);
}

void TextureBinding::bind(bool bound)
{
    // The first unit comes last and stays the active one.
    for (std::size_t unit = m_frame.textureNames.size(); unit-- > 0;) {
        m_gl.glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(unit));
        m_gl.glBindTexture(GL_TEXTURE_2D, bound ? m_frame.textureNames[unit] : 0);
    }
}

struct Textures::Image {
    GLenum internalFormat = GL_RGBA;
    GLenum dataFormat = GL_RGBA;
    GLenum pixelType = GL_UNSIGNED_BYTE;
    PlaneSize size;
    const void *data = nullptr;
    GLint filter = GL_NEAREST;
};

Textures::Textures(const GlContext &context)
    : m_gl(context.gl)
    , m_id(++lastId)
    , m_core(context.core)
{
    m_gl.glGetIntegerv(GL_MAX_TEXTURE_SIZE, &m_longestSide);
}

Textures::~Textures()
{
    if (m_abandoned)
        liveTextures -= m_live;
}

void Textures::upload(ImageFrame &frame)
{
    frame.refusal = refusal(frame);
    if (frame.refusal != Refusal::None) {
        qCWarning(lcViewer, "%s %s: not shown", frame.filePath.c_str(), whatIsWrong(frame.refusal));
        return;
    }
    frame.textureOwner = m_id;
    frame.uploadNumber = ++uploads;
    const GLenum dataFormat = pixelDataFormat(frame.internalFormat);
    const GLint filter = havePlanesOneSize(frame) ? GL_NEAREST : GL_LINEAR;
    takeError();
    for (std::size_t i = 0; i < frame.planeSizes.size(); ++i)
        frame.textureNames.push_back(make({frame.internalFormat, dataFormat, frame.pixelType,
                                           frame.planeSizes[i], frame.planeData(i), filter}));
    if (const GLenum error = takeError(); error != GL_NO_ERROR) {
        qCWarning(lcViewer, "%s was refused by OpenGL with error 0x%x: not shown", frame.filePath.c_str(),
                  error);
        remove(frame);
        frame.refusal = error == GL_OUT_OF_MEMORY ? Refusal::NoMemory : Refusal::UnknownSamples;
    }
}

GLuint Textures::upload(const QSize &size, const void *rgba)
{
    takeError();
    const GLuint texture = make({GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE, {size.width(), size.height()}, rgba});
    const GLenum error = takeError();
    if (error == GL_NO_ERROR)
        return texture;
    qCWarning(lcViewer, "A texture of %d x %d pixels was refused by OpenGL with error 0x%x", size.width(),
              size.height(), error);
    remove(texture);
    return 0;
}

void Textures::remove(GLuint texture)
{
    if (texture == 0 || m_abandoned)
        return;
    m_gl.glDeleteTextures(1, &texture);
    --m_live;
    --liveTextures;
}

void Textures::remove(ImageFrame &frame)
{
    if (has(frame)) {
        for (const GLuint texture : frame.textureNames)
            remove(texture);
    }
    frame.textureNames.clear();
}

bool Textures::has(const ImageFrame &frame) const
{
    return frame.textureOwner == m_id && !frame.textureNames.empty();
}

int Textures::live()
{
    return liveTextures;
}

GLuint Textures::make(const Image &image)
{
    GLenum internalFormat = image.internalFormat;
    GLenum dataFormat = image.dataFormat;
    // A core context has no luminance textures: red stands in for them.
    if (m_core && dataFormat == GL_LUMINANCE) {
        dataFormat = GL_RED;
        if (internalFormat == GL_LUMINANCE)
            internalFormat = GL_R8;
    }

    GLuint texture = 0;
    m_gl.glGenTextures(1, &texture);
    if (texture != 0) {
        ++m_live;
        ++liveTextures;
    }
    m_gl.glBindTexture(GL_TEXTURE_2D, texture);
    m_gl.glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    m_gl.glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
    m_gl.glPixelStorei(GL_UNPACK_SKIP_ROWS, 0);
    m_gl.glPixelStorei(GL_UNPACK_SKIP_PIXELS, 0);
    m_gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, image.filter);
    m_gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, image.filter);
    m_gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    m_gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    m_gl.glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(internalFormat), image.size.width,
                      image.size.height, 0, dataFormat, image.pixelType, image.data);
    m_gl.glBindTexture(GL_TEXTURE_2D, 0);
    // QPainter's own uploads count on the alignment that a fresh context has.
    m_gl.glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    return texture;
}

Refusal Textures::refusal(const ImageFrame &frame) const
{
    const std::size_t planes = frame.planeSizes.size();
    Refusal reason = planes == 0 || planes > kMostPlanes ? Refusal::NoSamples : Refusal::None;
    for (std::size_t i = 0; i < planes && reason == Refusal::None; ++i)
        reason = refusal(frame, i);
    return reason;
}

Refusal Textures::refusal(const ImageFrame &frame, std::size_t plane) const
{
    // Integers that are not scaled to a range cannot be sampled as colours.
    if (frame.internalFormat == 0 || !holds(kPixelTypes, frame.pixelType)
        || holds(kIntegerFormats, frame.internalFormat))
        return Refusal::UnknownSamples;
    const PlaneSize &size = frame.planeSizes[plane];
    if (size.width > m_longestSide || size.height > m_longestSide)
        return Refusal::TooLarge;
    const auto read = planeBytes(size.width, size.height, samplesOf(pixelDataFormat(frame.internalFormat)),
                                 bytesPerSample(frame.pixelType));
    const std::uint64_t there =
        plane < frame.ownedPlanes.size() ? frame.ownedPlanes[plane].size() : frame.planeBytes(plane);
    return !read || !frame.planeData(plane) || *read > there ? Refusal::NoSamples : Refusal::None;
}

GLenum Textures::takeError()
{
    GLenum last = GL_NO_ERROR;
    // A lost context reports errors without end.
    for (int i = 0; i < 8; ++i) {
        const GLenum error = m_gl.glGetError();
        if (error == GL_NO_ERROR)
            break;
        last = error;
    }
    return last;
}

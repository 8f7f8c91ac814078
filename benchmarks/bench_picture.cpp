// What painting and uploading a frame of four planes of half floats costs against a bare program that makes the same calls to
// OpenGL with the same shader. Needs an X server or the like; the processor's time is that of all threads, since a
// software renderer draws on its own.

#include "ratio.h"

#include <ui/tappstate.h>
#include <viewer/frames/imageframe.h>
#include <viewer/widgets/imagewidget.h>

#include <QtCore/QFile>
#include <QtCore/QFloat16>
#include <QtGui/QOffscreenSurface>
#include <QtGui/QOpenGLContext>
#include <QtGui/QOpenGLExtraFunctions>
#include <QtGui/QSurfaceFormat>
#include <QtOpenGL/QOpenGLFramebufferObject>
#include <QtOpenGL/QOpenGLShaderProgram>
#include <QtWidgets/QApplication>

#include <array>
#include <cstdlib>

namespace {

constexpr QSize kView(1920, 1080);
constexpr int kPlanes = 4;
constexpr int kRounds = 100;
constexpr double kPaintPromise = 1.2;
constexpr double kFirstPaintPromise = 8.0;
constexpr double kUploadPromise = 1.15;

[[noreturn]] void fail(const char *what)
{
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

double processMilliseconds(const std::function<void()> &work)
{
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return 1e3 * double(time.tv_sec) + 1e-6 * double(time.tv_nsec);
    };
    const double start = now();
    work();
    return now() - start;
}

using Plane = std::vector<qfloat16>;

std::vector<Plane> makePlanes(QSize size)
{
    std::vector<Plane> planes;
    for (unsigned plane = 0; plane < kPlanes; ++plane) {
        Plane &samples = planes.emplace_back(std::size_t(size.width()) * std::size_t(size.height()));
        for (unsigned i = 0; i < samples.size(); ++i)
            samples[i] = qfloat16(float((i * 2654435761U + plane * 40503U) >> 16U) / 65536.0F);
    }
    return planes;
}

/// The frame and nothing else, into a buffer of the same size.
class BarePicture final {
public:
    BarePicture(const std::vector<Plane> &planes, QSize size, QSize view)
        : m_planes(planes)
        , m_size(size)
        , m_view(view)
    {
        m_surface.create();
        if (!m_context.create() || !m_context.makeCurrent(&m_surface))
            fail("no OpenGL 3.2");
        m_gl = m_context.extraFunctions();
        m_target.emplace(view);
        m_gl->glGenVertexArrays(1, &m_array);
        m_gl->glGenBuffers(1, &m_buffer);
        m_gl->glBindVertexArray(m_array);
        m_gl->glBindBuffer(GL_ARRAY_BUFFER, m_buffer);
        build();
        upload();
    }

    void enter() { m_context.makeCurrent(&m_surface); }

    void paint()
    {
        enter();
        m_target->bind();
        m_gl->glViewport(0, 0, m_view.width(), m_view.height());
        m_gl->glDisable(GL_BLEND);
        m_gl->glClear(GL_COLOR_BUFFER_BIT);
        m_gl->glEnable(GL_BLEND);
        m_gl->glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
        for (unsigned unit = 0; unit < kPlanes; ++unit) {
            m_gl->glActiveTexture(GL_TEXTURE0 + unit);
            m_gl->glBindTexture(GL_TEXTURE_2D, m_textures[unit]);
        }
        m_program.bind();
        m_gl->glDrawArrays(GL_TRIANGLES, 0, 6);
        m_gl->glFinish();
    }

    void upload()
    {
        m_gl->glGenTextures(kPlanes, m_textures.data());
        for (unsigned i = 0; i < kPlanes; ++i) {
            m_gl->glBindTexture(GL_TEXTURE_2D, m_textures[i]);
            for (const GLenum filter : {GL_TEXTURE_MIN_FILTER, GL_TEXTURE_MAG_FILTER})
                m_gl->glTexParameteri(GL_TEXTURE_2D, filter, GL_LINEAR);
            for (const GLenum wrap : {GL_TEXTURE_WRAP_S, GL_TEXTURE_WRAP_T})
                m_gl->glTexParameteri(GL_TEXTURE_2D, wrap, GL_CLAMP_TO_EDGE);
            m_gl->glTexImage2D(GL_TEXTURE_2D, 0, GL_R16F, m_size.width(), m_size.height(), 0, GL_RED,
                               GL_HALF_FLOAT, m_planes[i].data());
        }
        m_gl->glFinish();
    }

    void removeTextures() { m_gl->glDeleteTextures(kPlanes, m_textures.data()); }

private:
    void build()
    {
        const auto source = [](const char *prologue, const char *name) {
            QFile file(QStringLiteral(":/Shaders/") + QLatin1String(name));
            return file.open(QIODevice::ReadOnly) ? prologue + file.readAll() : QByteArray();
        };
        m_program.addShaderFromSourceCode(
            QOpenGLShader::Vertex,
            source("#version 150\n#define ATTRIBUTE in\n#define VARYING out\n", "picture.vert.glsl"));
        m_program.addShaderFromSourceCode(
            QOpenGLShader::Fragment,
            source("#version 150\n#define VARYING in\n#define TEXTURE texture\nout vec4 fragColor;\n",
                   "picture.frag.glsl"));
        if (!m_program.link() || !m_program.bind())
            fail("the shader does not link");
        const QMatrix4x4 identity;
        m_program.setUniformValue("matrix", identity);
        m_program.setUniformValue("numOfTextures", kPlanes);
        for (int unit = 0; unit < kPlanes; ++unit)
            m_program.setUniformValue(("tex" + std::to_string(unit)).c_str(), unit);
        for (const char *name : {"gamma", "sourceGamma", "brightness", "saturation", "contrast",
                                 "levelInputMax", "levelOutputMax", "softClip"})
            m_program.setUniformValue(name, 1.0F);
        // Place and texture of each corner.
        constexpr float corners[] = {-1, 1,  0, 1, 1,  1,  1, 1, 1,  -1, 1, 0,
                                     1,  -1, 1, 0, -1, -1, 0, 0, -1, 1,  0, 1};
        m_gl->glBufferData(GL_ARRAY_BUFFER, sizeof corners, corners, GL_STATIC_DRAW);
        m_program.enableAttributeArray("vertex");
        m_program.setAttributeBuffer("vertex", GL_FLOAT, 0, 2, 4 * sizeof(float));
        m_program.enableAttributeArray("vertTexCoord");
        m_program.setAttributeBuffer("vertTexCoord", GL_FLOAT, 2 * sizeof(float), 2, 4 * sizeof(float));
    }

    const std::vector<Plane> &m_planes;
    QSize m_size;
    QSize m_view;
    QOffscreenSurface m_surface;
    QOpenGLContext m_context;
    QOpenGLExtraFunctions *m_gl = nullptr;
    std::optional<QOpenGLFramebufferObject> m_target;
    QOpenGLShaderProgram m_program;
    std::array<GLuint, kPlanes> m_textures{};
    GLuint m_array = 0;
    GLuint m_buffer = 0;
};

ImageFrame makeFrame(const std::vector<Plane> &planes, QSize size, imageWidget &picture)
{
    ImageFrame frame;
    frame.channelLayout = "R,G,B,A";
    frame.filePath = "/farm/shows/demo/shot_010/renders/shot_v02_beauty.0001.exr";
    frame.formatName = "exr";
    frame.textureCount = kPlanes;
    frame.internalFormat = GL_R16F;
    frame.components = 1;
    frame.pixelType = GL_HALF_FLOAT;
    frame.display = &picture;
    for (const Plane &plane : planes) {
        frame.planeSizes.push_back({size.width(), size.height()});
        frame.planes.push_back(plane.data());
    }
    return frame;
}

/// One paint into a buffer, not yet on the screen.
void paint(imageWidget &picture, QOpenGLFramebufferObject &target)
{
    picture.makeCurrent();
    target.bind();
    picture.paintGL();
    picture.context()->functions()->glFinish();
}

/// Shows a frame of a size in a view, and calls what measures it.
void withPicture(QSize size, QSize view,
                 const std::function<void(imageWidget &, ImageFrame &, BarePicture &)> &measure)
{
    const std::vector<Plane> planes = makePlanes(size);
    BarePicture bare(planes, size, view);
    imageWidget picture;
    picture.resize(view);
    ImageFrame frame = makeFrame(planes, size, picture);
    picture.uploadTextures(frame);
    picture.showFrame(&frame);
    if (picture.grabFramebuffer().size() != view)
        fail("the picture has another size");
    measure(picture, frame, bare);
    picture.frameDies(frame);
    picture.deleteTextures(frame);
    bare.enter();
}

void comparePaint(const char *name, imageWidget &picture, BarePicture &bare)
{
    picture.makeCurrent();
    QOpenGLFramebufferObject target(picture.viewSize());
    paint(picture, target); // the first of a kind prepares the others
    printRatio(
        name, [&] { return processMilliseconds([&] { paint(picture, target); }); },
        [&] { return processMilliseconds([&] { bare.paint(); }); }, kPaintPromise, kRounds);
    picture.makeCurrent();
}

void compareUpload(imageWidget &picture, ImageFrame &frame, BarePicture &bare)
{
    printRatio(
        "upload, ms, to the bare calls",
        [&] {
            picture.deleteTextures(frame);
            picture.makeCurrent();
            return processMilliseconds([&] {
                picture.uploadTextures(frame);
                picture.context()->functions()->glFinish();
            });
        },
        [&bare] {
            bare.enter();
            bare.removeTextures();
            return processMilliseconds([&bare] { bare.upload(); });
        },
        kUploadPromise, kRounds);
}

void compareAtItsOwnPixels(imageWidget &picture, ImageFrame &frame, BarePicture &bare)
{
    const int textures = imageWidget::liveTextures();
    comparePaint("paint, ms, checker, border and HUD on, to the bare quad", picture, bare);
    if (imageWidget::liveTextures() > textures + 1)
        fail("the HUD makes a texture with each paint");
    picture.setCheckerOn(false);
    picture.setHudOn(false);
    comparePaint("paint, ms, frame and border alone, to the bare quad", picture, bare);
    compareUpload(picture, frame, bare);
    picture.setZoomFactor(2.0F);
    comparePaint("paint, ms, frame at twice its size, to the bare quad", picture, bare);
}

/// A frame that is shown for the first time is made smaller first, as each is in playback.
void compareFirstPaint(imageWidget &picture, ImageFrame &frame, BarePicture &bare)
{
    picture.makeCurrent();
    QOpenGLFramebufferObject target(picture.viewSize());
    printRatio(
        "paint, ms, 4096 x 2160 fitted for the first time, to its bare upload",
        [&] {
            picture.deleteTextures(frame);
            picture.uploadTextures(frame);
            return processMilliseconds([&] { paint(picture, target); });
        },
        [&bare] {
            bare.enter();
            bare.removeTextures();
            return processMilliseconds([&bare] { bare.upload(); });
        },
        kFirstPaintPromise, kRounds);
    picture.makeCurrent();
}

void compareFitted(imageWidget &picture, ImageFrame &frame, BarePicture &bare)
{
    picture.setHudOn(false);
    picture.setZoomFactor(float(picture.viewSize().width()) / float(frame.planeSizes.front().width));
    comparePaint("paint, ms, 4096 x 2160 fitted, to the bare quad", picture, bare);
    compareFirstPaint(picture, frame, bare);
}

} // namespace

int main(int argc, char **argv)
{
    TAppState &state = TAppState::instance();
    state.openGlUsable = state.gl32Supported = state.gl21Supported = true;
    QSurfaceFormat format;
    format.setVersion(3, 2);
    format.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(format);
    const QApplication application(argc, argv);

    withPicture(kView, kView, compareAtItsOwnPixels);
    withPicture({4096, 2160}, {1024, 540}, compareFitted);
    return 0;
}

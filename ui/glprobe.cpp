#include "glprobe.h"

#include "applog.h"

#include "tappstate.h"

#include <QtGui/QOffscreenSurface>
#include <QtGui/QOpenGLContext>
#include <QtGui/QOpenGLFunctions>
#include <QtGui/QSurfaceFormat>

#include <cstdio>
#include <utility>

namespace {

using Version = std::pair<int, int>;

// More than a screen has would send every window of the program to a fallback visual, with a warning each.
constexpr int kColourBits = 8;

/// A current context of a format, for as long as it stands.
class ProbedContext {
    Q_DISABLE_COPY_MOVE(ProbedContext)

public:
    explicit ProbedContext(const QSurfaceFormat &format)
    {
        m_context.setFormat(format);
        if (!m_context.create())
            return;
        m_surface.setFormat(m_context.format());
        m_surface.create();
        m_usable = m_surface.isValid() && m_context.makeCurrent(&m_surface);
    }
    ~ProbedContext()
    {
        if (m_usable)
            m_context.doneCurrent();
    }

    bool usable() const { return m_usable; }
    const QSurfaceFormat format() const { return m_context.format(); }
    QByteArray string(GLenum name) const
    {
        return reinterpret_cast<const char *>(m_context.functions()->glGetString(name));
    }
    /// What the driver says: a context may come up with less than was asked for.
    Version version() const
    {
        Version version{0, 0};
        std::sscanf(string(GL_VERSION).constData(), "%d.%d", &version.first, &version.second);
        return version;
    }

private:
    QOffscreenSurface m_surface;
    QOpenGLContext m_context;
    bool m_usable = false;
};

QSurfaceFormat formatOf(int major, int minor, QSurfaceFormat::OpenGLContextProfile profile)
{
    QSurfaceFormat format;
    format.setVersion(major, minor);
    format.setProfile(profile);
    format.setSwapBehavior(QSurfaceFormat::DoubleBuffer);
    format.setRedBufferSize(kColourBits);
    format.setGreenBufferSize(kColourBits);
    format.setBlueBufferSize(kColourBits);
    format.setAlphaBufferSize(kColourBits);
    return format;
}

QSurfaceFormat core32()
{
    return formatOf(3, 2, QSurfaceFormat::CoreProfile);
}

QSurfaceFormat compatibility21()
{
    return formatOf(2, 1, QSurfaceFormat::CompatibilityProfile);
}

bool supports32()
{
    const ProbedContext context(core32());
    return context.usable() && context.version() >= Version{3, 2};
}

void logContext(const ProbedContext &context)
{
    qCDebug(lcApp, "OpenGL default profile: %d.%d", context.version().first, context.version().second);
    qCDebug(lcApp, "OpenGL default profile type: %d", int(context.format().profile()));
    const std::pair<const char *, GLenum> strings[] = {{"OpenGL versions: ", GL_VERSION},
                                                       {"OpenGL vendor: ", GL_VENDOR},
                                                       {"OpenGL renderer: ", GL_RENDERER}};
    for (const auto &[prefix, name] : strings) {
        const QByteArray text = context.string(name);
        if (!text.isEmpty())
            qCDebug(lcApp, "%s%s", prefix, text.constData());
    }
}

} // namespace

void probeOpenGl(TAppState &state)
{
    {
        const ProbedContext context{QSurfaceFormat()};
        state.openGlUsable = context.usable();
        if (!context.usable()) {
            qCDebug(lcApp, "OpenGL not supported. Image viewer disabled.");
            return;
        }
        state.gl21Supported = context.version() >= Version{2, 1};
        logContext(context);
    }
    state.gl32Supported = !state.forceGl2 && supports32();
    if (!state.gl21Supported)
        qCDebug(lcApp, "Supports 2.1 profile: No");
    if (state.gl32Supported) {
        QSurfaceFormat::setDefaultFormat(core32());
        return;
    }
    qCDebug(lcApp, "Supports 3.2 profile: No");
    if (!state.gl21Supported) {
        qCDebug(lcApp, "No supported OpenGL format available");
        state.openGlUsable = false;
        return;
    }
    qCDebug(lcApp, "Setting default openGL format to compatibility profile 2.1");
    QSurfaceFormat::setDefaultFormat(compatibility21());
}

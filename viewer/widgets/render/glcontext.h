#pragma once

#include <QtGui/QOpenGLFunctions>

/// The functions of a context that has come up, and what they can be asked for.
struct GlContext {
    QOpenGLFunctions &gl;
    /// Takes GLSL 1.50 and vertices from buffers only, and has no luminance textures; else GLSL 1.20.
    bool core;
};

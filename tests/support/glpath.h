#pragma once

#include <ui/tappstate.h>

#include <QtCore/QByteArray>
#include <QtGui/QSurfaceFormat>

/// What the program's probe does, before the application object: the core path, or with TARROW_GL=2.1 in the environment
/// the compatibility path.
inline void chooseGlPath()
{
    const bool core = qgetenv("TARROW_GL") != "2.1";
    TAppState &state = TAppState::instance();
    state.openGlUsable = state.gl21Supported = true;
    state.gl32Supported = core;
    QSurfaceFormat format;
    format.setVersion(core ? 3 : 2, core ? 2 : 1);
    format.setProfile(core ? QSurfaceFormat::CoreProfile : QSurfaceFormat::CompatibilityProfile);
    QSurfaceFormat::setDefaultFormat(format);
}

#pragma once

struct TAppState;

/// Finds out once what OpenGL the viewer may use and makes it the default surface format. `state.forceGl2` is read, the
/// other flags are set.
void probeOpenGl(TAppState &state);

#pragma once

struct TAppState;

/// Sets the default surface format that the probe is expected to confirm. Call it before the application object, which
/// makes the context that all others share.
void expectOpenGl(bool forceGl2);

/// Finds out once what OpenGL the viewer may use and makes it the default surface format. `state.forceGl2` is read, the
/// other flags are set.
void probeOpenGl(TAppState &state);

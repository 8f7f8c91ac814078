#pragma once

struct TAppState;

/// Finds out once what OpenGL the viewer may use, makes it the default surface format and makes the context that all
/// widgets share. `state.forceGl2` is read, the other flags are set.
void probeOpenGl(TAppState &state);

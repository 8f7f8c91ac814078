#pragma once

/// What the start-up probe found out about OpenGL, for whoever opens a viewer or chooses its shaders.
/// Filled once on the GUI thread before the first window; until then nothing is supported.
struct TAppState {
    bool openGlUsable = false;
    bool gl32Supported = false;
    bool gl21Supported = false;
    /// Set from the command line before the probe, which then reports no 3.2.
    bool forceGl2 = false;

    static TAppState &instance();
};

#pragma once

/// Says how the picture's colours are shown; picture.frag.glsl applies it. Neutral by default.
struct Calibration {
    float gamma = 1.0F; ///< of the output
    float brightness = 1.0F;
    float saturation = 1.0F;
    float contrast = 1.0F;
    float levelInputMin = 0.0F;
    float levelInputMax = 1.0F;
    float levelOutputMin = 0.0F;
    float levelOutputMax = 1.0F;
    float softClip = 1.0F;

    bool operator==(const Calibration &other) const = default;
};

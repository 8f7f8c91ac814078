#pragma once

#include "framepainter.h"

#include <filesystem>
#include <string>
#include <string_view>

/// Encodes the frame as an EXR file: R, G, B, A, the layers "diffuse" and "specular", and Z.
std::string encodeExr(const RenderedFrame &frame);

/// Writes a file that gets its name once it is whole. False when it cannot be written.
bool writeWhole(const std::filesystem::path &path, std::string_view bytes);
/// Writes a file that has its name from the start, as a renderer does that knows no better.
bool writeInPlace(const std::filesystem::path &path, std::string_view bytes);

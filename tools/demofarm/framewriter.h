#pragma once

#include "framepainter.h"

#include <filesystem>
#include <string>
#include <string_view>

/// The frame as the bytes of an EXR file: R, G, B, A, the layers "diffuse" and "specular", and Z.
std::string encodeExr(const RenderedFrame &frame);

/// The file has its name once it is whole. False when it cannot be written.
bool writeWhole(const std::filesystem::path &path, std::string_view bytes);
/// The file has its name from the start, as of a renderer that knows no better.
bool writeInPlace(const std::filesystem::path &path, std::string_view bytes);

#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// Lowest frame of a mask that has a file; nothing when there is none or the folder cannot be read.
std::optional<std::int32_t> firstFrameOnDisk(const std::string &mask);

/// What a folder has to show: its first numbered file in the order of the names, else its first image, else empty.
std::string firstImageOf(const std::string &folder);

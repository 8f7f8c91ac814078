#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>

/// What stands before and after the frame number in the files of a mask.
struct MaskEnds {
    std::string before; ///< with the folder
    std::string after;
};

/// Nothing when the path is no mask.
std::optional<MaskEnds> endsOf(const std::string &mask);

/// The number of a mask's file by its path, as the mask writes it; nothing when it is none of the mask's.
std::optional<std::int32_t> frameOf(const std::string &path, const std::string &mask);

/// Frames of a mask that have a file, as many as a sequence may have; none when the folder cannot be read.
std::set<long> framesOnDisk(const std::string &mask);

/// Lowest of framesOnDisk().
std::optional<std::int32_t> firstFrameOnDisk(const std::string &mask);

/// Orders names by their text, and by value the numbers in them: "img.8" before "img.12".
bool comesBefore(const std::string &name, const std::string &other);

/// What a folder has to show: its first numbered file in the order of the names, else its first image, else empty.
std::string firstImageOf(const std::string &folder);

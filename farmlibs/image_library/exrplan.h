#pragma once

#include "ctimagechannel.h"
#include "exrfile.h"

#include <set>
#include <string>
#include <vector>

namespace TImageLibrary {

/// Counts samples along one axis. A channel of sampling s has sample i at the pixel i * s.
struct ExrSpan {
    int first = 0;
    int count = 0;

    bool operator==(const ExrSpan &other) const = default;
    int end() const { return first + count; }
    bool contains(const ExrSpan &other) const { return first <= other.first && end() >= other.end(); }
    /// Those at the pixels from `min` to `max`.
    static ExrSpan within(int min, int max, int sampling);
    static ExrSpan common(const ExrSpan &a, const ExrSpan &b);
};

/// Pairs a channel to read with the plane that takes it. The planes of a picture cover the display window, which stays the
/// same along a sequence while data windows change.
struct ExrTarget {
    ExrChannel channel;
    Imf::PixelType type; ///< of the plane: HALF or FLOAT
    ExrSpan columns;
    ExrSpan rows;
    CTImageChannel plane;
};

/// The planes for the named layers, or for the default layer when the file has none of them, in the file's order.
/// Throws when there is nothing to read or the file cannot hold what it announces.
std::vector<ExrTarget> planPlanes(const ExrFile &file, const std::set<std::string> &names,
                                  bool mayBeIncomplete);

} // namespace TImageLibrary

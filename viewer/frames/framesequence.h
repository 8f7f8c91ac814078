#pragma once

#include <client_lib/tchunk.h>
#include <client_lib/tjob.h>

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// The frames that a viewer window shows, one file for each, or a single file.
struct FrameSequence {
    std::set<long> frames;
    std::int32_t byFrame = 1; ///< distance between the frames, at least 1
    bool isSequence = false;
    bool isAwaited = false; ///< a mask without a file so far: no sequence yet, one frame that stands for it
    std::string framesPath; ///< of a sequence its mask, else the file

    /// The lowest frame; 1 without frames.
    long first() const { return frames.empty() ? 1 : *frames.begin(); }
    /// The highest frame; 1 without frames.
    long last() const { return frames.empty() ? 1 : *frames.rbegin(); }
    std::string fileOf(std::int32_t frame) const;
};

/// What a viewer was opened on: a chunk, or a job when there is no chunk, or neither. Not owned.
struct FramesOrigin {
    const TClientLib::TJob *job = nullptr;
    const TClientLib::TChunk *chunk = nullptr;
};

/// Asks a viewer to show the frames of a path.
struct FramesRequest {
    std::string path; ///< a file, numbered or not, or a mask
    bool force = false; ///< also when the path is the one shown
    std::optional<std::int32_t> preferredFrame = std::nullopt; ///< the frame to start at
    bool maskIsSequence = false; ///< how a path that is a mask already is shown
    std::vector<std::string> others = {}; ///< files beside the path; those of its sequence are frames too
};

struct OpenedFrames {
    FrameSequence sequence;
    std::int32_t frame = 1; ///< to be shown first
};

/// Finds the frames of a path. Those of a job or chunk are its records', capped like TFramesRange; those of a path are the
/// unbroken run of existing files round its own number, padded or not, those of a mask the run round the frame to start at
/// (0 by default), or round the first file on disk when that has none. Where fewer than two are found, the single file;
/// but a mask that stands for its sequence stays the path.
OpenedFrames openFrames(const FramesRequest &request, const FramesOrigin &origin);

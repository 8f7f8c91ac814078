#pragma once

#include <client_lib/tchunk.h>
#include <client_lib/tjob.h>

#include <cstdint>
#include <optional>
#include <set>
#include <string>

/// The frames that a viewer window shows, one file for each, or a single file.
struct FrameSequence {
    std::set<long> frames;
    std::int32_t currentFrame = 1;
    std::int32_t byFrame = 1; ///< distance between the frames, at least 1
    bool isSequence = false;
    std::string framesPath; ///< of a sequence its mask, else the file

    /// File of the current frame.
    std::string currentFile() const;
};

/// What a viewer was opened on: a chunk, or a job when there is no chunk, or neither. Not owned.
struct FramesOrigin {
    const TClientLib::TJob *job = nullptr;
    const TClientLib::TChunk *chunk = nullptr;
};

struct FramesRequest {
    static constexpr std::int32_t kNoFrame = -1;

    std::string path; ///< a file, numbered or not, or a mask
    bool force = false; ///< also when the path is the one shown
    std::int32_t preferredFrame = kNoFrame; ///< the frame to start at
    bool maskIsSequence = false; ///< how a path that is a mask already is shown
};

/// The frames of a path. Those of a job or chunk are its records', capped like TFramesRange; those of a path are the
/// unbroken run of existing files round its own number, those of a mask the run round the frame to start at, or round the
/// first file on disk when that has none. Where fewer than two are found, the single file. Nothing when the path is the
/// one in `shown` and not forced.
std::optional<FrameSequence> openFrames(const FrameSequence &shown, const FramesRequest &request,
                                        const FramesOrigin &origin);

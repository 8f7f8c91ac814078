#pragma once

#include <client_lib/tchunk.h>
#include <client_lib/tjob.h>

#include <optional>
#include <vector>

/// What a viewer is opened on: copies of the farm's records, which outlive the event that they came with. Empty for a
/// viewer without a job.
struct JobFrames {
    bool isSet() const { return job || chunk; }

    std::optional<TClientLib::TJob> job;
    std::optional<TClientLib::TChunk> chunk; ///< where a single chunk is shown
    std::vector<TClientLib::TChunk>
        chunks; ///< all chunks of the job that are known, in the order they were heard of
};

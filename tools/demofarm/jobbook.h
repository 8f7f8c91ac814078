#pragma once

#include "farmjob.h"
#include "farmrandom.h"

#include <cstdint>

/// Makes up the jobs that the users of the demo farm submit.
class JobBook {
public:
    /// The book keeps using the numbers of its caller.
    explicit JobBook(FarmRandom &random)
        : m_random(random)
    { }

    FarmJob nextJob();

private:
    FarmJob sequenceJob(TClientLib::TJob record, const std::string &folder);
    FarmJob singleFrameJob(TClientLib::TJob record, const std::string &folder);
    TClientLib::TChunk chunk(std::int64_t jobId, const TClientLib::TFramesRange &frames);

    FarmRandom &m_random;
    std::int64_t m_lastJobId = 4100;
    std::int64_t m_lastChunkId = 88000;
};

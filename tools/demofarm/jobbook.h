#pragma once

#include "farmjob.h"
#include "farmrandom.h"

#include <cstdint>
#include <string>
#include <utility>

/// Makes up the jobs that the users of the demo farm submit.
class JobBook {
public:
    /// The book keeps using the numbers of its caller. The jobs write below the folder.
    JobBook(FarmRandom &random, std::string folder)
        : m_random(random)
        , m_folder(std::move(folder))
    { }

    FarmJob nextJob();

private:
    FarmJob sequenceJob(TClientLib::TJob record, const std::string &folder);
    FarmJob singleFrameJob(TClientLib::TJob record, const std::string &folder);
    TClientLib::TChunk chunk(std::int64_t jobId, const TClientLib::TFramesRange &frames);

    FarmRandom &m_random;
    std::string m_folder;
    std::int64_t m_lastJobId = 4100;
    std::int64_t m_lastChunkId = 88000;
};

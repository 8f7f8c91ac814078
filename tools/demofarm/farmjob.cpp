#include "farmjob.h"

#include <algorithm>

FarmJob::FarmJob(TClientLib::TJob record, std::vector<TClientLib::TChunk> chunks)
    : m_record(std::move(record))
    , m_chunks(std::move(chunks))
{
    m_record.setStatus(kRunningStatus);
}

TClientLib::TChunk FarmJob::startChunk()
{
    m_running.push_back(m_nextChunk);
    TClientLib::TChunk &chunk = m_chunks[m_nextChunk++];
    chunk.setStatus(kRunningStatus);
    return chunk;
}

TClientLib::TChunk FarmJob::finishChunk(std::size_t index, Outcome outcome)
{
    TClientLib::TChunk &chunk = m_chunks[m_running[index]];
    m_running.erase(m_running.begin() + std::ptrdiff_t(index));
    chunk.setStatus(chunkStatus(outcome));
    m_worst = std::max(m_worst, outcome);
    return chunk;
}

Outcome FarmJob::complete()
{
    m_record.setStatus(jobStatus(m_worst));
    return m_worst;
}

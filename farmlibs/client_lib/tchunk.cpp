#include "tchunk.h"

#include "recordtext.h"

namespace TClientLib {

namespace {
constexpr std::int64_t kLayoutVersion = 1;
}

void TChunk::setFrames(std::int64_t start, std::int64_t end, std::int64_t step)
{
    m_start = start;
    m_end = end;
    m_step = step;
}

bool TChunk::Unmarshall(const std::vector<std::string> &values)
{
    TRecordReader reader(values);
    if (reader.integer() != kLayoutVersion)
        return false;
    m_id = reader.integer();
    m_jobId = reader.integer();
    m_status = reader.integer32();
    m_start = reader.integer();
    m_end = reader.integer();
    m_step = reader.integer();
    m_state = reader.integer32();
    return true;
}

std::string TChunk::Marshall() const
{
    TRecordWriter writer;
    for (const std::int64_t value : {kLayoutVersion, m_id, m_jobId, std::int64_t{m_status}, m_start, m_end,
                                     m_step, std::int64_t{m_state}})
        writer.add(value);
    return writer.text();
}

} // namespace TClientLib

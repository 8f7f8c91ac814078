#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace TClientLib {

/// Holds the record of a chunk, a range of frames of a job rendered in one go.
class TChunk {
public:
    std::int64_t getChunkId() const { return m_id; }
    std::int64_t getJobId() const { return m_jobId; }
    std::int32_t getStatus() const { return m_status; }
    std::int64_t getStart() const { return m_start; }
    std::int64_t getEnd() const { return m_end; }
    std::int64_t getStep() const { return m_step; }
    std::int32_t getState() const { return m_state; }

    void setChunkId(std::int64_t id) { m_id = id; }
    void setJobId(std::int64_t id) { m_jobId = id; }
    void setStatus(std::int32_t status) { m_status = status; }
    void setFrames(std::int64_t start, std::int64_t end, std::int64_t step);
    void setState(std::int32_t state) { m_state = state; }

    /// Reads the values of a record; false when the layout version is not known, the chunk then stays as it was.
    /// Missing values read as 0, surplus ones are ignored.
    bool Unmarshall(const std::vector<std::string> &values);
    /// Writes the record as a text of values, one per line.
    std::string Marshall() const;

private:
    std::int64_t m_id = 0;
    std::int64_t m_jobId = 0;
    std::int32_t m_status = 0;
    std::int64_t m_start = 0;
    std::int64_t m_end = 0;
    std::int64_t m_step = 0;
    std::int32_t m_state = 0;
};

} // namespace TClientLib

#pragma once

#include "tframesrange.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace TClientLib {

/// Maps the paths of a record from the submitter's machine to this one.
class TJobPathTranslator {
public:
    virtual ~TJobPathTranslator() = default;
    virtual std::string Translate(const std::string &path) const = 0;
};

/// Holds the record of a render job. Its marshalled form is a list of values: layout version, id, name, owner, status,
/// packet type, tasks mask, frame ranges and attributes.
class TJob {
public:
    std::int64_t getJobId() const { return m_id; }
    const std::string &getName() const { return m_name; }
    const std::string &getOwner() const { return m_owner; }
    std::int32_t getStatus() const { return m_status; }
    std::int32_t getPacketType() const { return m_packetType; }
    std::uint32_t getTasksMask() const { return m_tasksMask; }
    const std::vector<TFramesRange> &GetFrameRanges() const { return m_ranges; }
    /// Gives an attribute, empty when the job has none of that name.
    std::string attributeGetString(std::string_view name) const;

    void setJobId(std::int64_t id) { m_id = id; }
    void setName(std::string name) { m_name = std::move(name); }
    void setOwner(std::string owner) { m_owner = std::move(owner); }
    void setStatus(std::int32_t status) { m_status = status; }
    void setPacketType(std::int32_t type) { m_packetType = type; }
    void setTasksMask(std::uint32_t mask) { m_tasksMask = mask; }
    void setFrameRanges(std::vector<TFramesRange> ranges) { m_ranges = std::move(ranges); }
    void attributeSetString(std::string name, std::string value);

    /// Reads the values of a record; false when the layout version is not known, the job then stays as it was.
    /// Missing values read as 0 or empty, surplus ones are ignored. The translator may be null;
    /// otherwise the paths and masks among the attributes go through it.
    bool Unmarshall(const std::vector<std::string> &values, const TJobPathTranslator *translator);
    /// Writes the record as a text of values, one per line.
    std::string Marshall() const;

private:
    std::int64_t m_id = 0;
    std::string m_name;
    std::string m_owner;
    std::int32_t m_status = 0;
    std::int32_t m_packetType = 0;
    std::uint32_t m_tasksMask = 0;
    std::vector<TFramesRange> m_ranges;
    std::map<std::string, std::string, std::less<>> m_attributes;
};

} // namespace TClientLib

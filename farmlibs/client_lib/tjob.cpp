#include "tjob.h"

#include "recordtext.h"

#include <framework/stringhelper.h>

#include <algorithm>
#include <array>

namespace TClientLib {

namespace {

using TFramework::TStringHelper;

constexpr std::int64_t kLayoutVersion = 1;
constexpr std::string_view kFramesMask = "frames_mask";
constexpr std::array<std::string_view, 3> kPathAttributes{"output_folder", "job_project", "final_filename"};

std::string translatedMasks(const std::string &masks, const TJobPathTranslator &translator)
{
    std::string result;
    for (const std::string &mask : TStringHelper::DecodeFramesMask(masks))
        result += (result.empty() ? "" : ";") + translator.Translate(mask);
    return result;
}

std::string translated(std::string_view name, const std::string &value, const TJobPathTranslator &translator)
{
    if (name == kFramesMask)
        return translatedMasks(value, translator);
    const bool isPath =
        std::find(kPathAttributes.begin(), kPathAttributes.end(), name) != kPathAttributes.end();
    return isPath && !value.empty() ? translator.Translate(value) : value;
}

} // namespace

std::string TJob::attributeGetString(std::string_view name) const
{
    const auto found = m_attributes.find(name);
    return found == m_attributes.end() ? std::string() : found->second;
}

void TJob::attributeSetString(std::string name, std::string value)
{
    m_attributes.insert_or_assign(std::move(name), std::move(value));
}

bool TJob::Unmarshall(const std::vector<std::string> &values, const TJobPathTranslator *translator)
{
    TRecordReader reader(values);
    if (reader.integer() != kLayoutVersion)
        return false;
    *this = {};
    m_id = reader.integer();
    m_name = reader.text();
    m_owner = reader.text();
    m_status = reader.integer32();
    m_packetType = reader.integer32();
    m_tasksMask = reader.unsigned32();
    for (std::size_t left = reader.count(3); left > 0; --left) {
        TFramesRange range;
        range.start = reader.integer();
        range.end = reader.integer();
        range.step = reader.integer();
        m_ranges.push_back(range);
    }
    for (std::size_t left = reader.count(2); left > 0; --left) {
        const std::string name = reader.text();
        const std::string value = reader.text();
        attributeSetString(name, translator ? translated(name, value, *translator) : value);
    }
    return true;
}

std::string TJob::Marshall() const
{
    TRecordWriter writer;
    writer.add(kLayoutVersion);
    writer.add(m_id);
    writer.add(m_name);
    writer.add(m_owner);
    writer.add(m_status);
    writer.add(m_packetType);
    writer.add(m_tasksMask);
    writer.add(static_cast<std::int64_t>(m_ranges.size()));
    for (const TFramesRange &range : m_ranges) {
        writer.add(range.start);
        writer.add(range.end);
        writer.add(range.step);
    }
    writer.add(static_cast<std::int64_t>(m_attributes.size()));
    for (const auto &[name, value] : m_attributes) {
        writer.add(name);
        writer.add(value);
    }
    return writer.text();
}

} // namespace TClientLib

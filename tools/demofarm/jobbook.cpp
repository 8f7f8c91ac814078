#include "jobbook.h"

#include <algorithm>
#include <string>

namespace {

// The farm marks users that a directory server knows.
constexpr const char *kOwners[] = {"mara", "Jürgen", "@directory@lsantos", "tomasz", "@directory@Åsa", "wen"};
constexpr const char *kShows[] = {"harbour", "nightfall", "glass_garden"};
constexpr const char *kStages[] = {"lighting", "comp", "fx", "anim", "slapcomp"};

/// Kinds of jobs, and the bit of the tasks mask by which a client knows a job with one final file.
enum PacketType { SequencePacket = 1, SingleFramePacket = 2 };
enum TaskBit { RenderTask = 1, FinalFileTask = 2 };

constexpr int kSingleFramePercent = 25;

std::string number(int value, std::size_t digits)
{
    std::string text = std::to_string(value);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

} // namespace

FarmJob JobBook::nextJob()
{
    const std::string show = m_random.pick(kShows);
    const std::string shot = "sh" + number(10 * (1 + m_random.below(40)), 4);
    const std::string name = shot + "_" + m_random.pick(kStages) + "_v" + number(1 + m_random.below(30), 3);
    const std::string project = m_folder + "/" + show;
    const std::string folder = project + "/" + shot + "/" + name;

    TClientLib::TJob record;
    record.setJobId(++m_lastJobId);
    record.setName(name);
    record.setOwner(m_random.pick(kOwners));
    record.attributeSetString("job_project", project);
    record.attributeSetString("output_folder", folder);
    if (m_random.chance(kSingleFramePercent))
        return singleFrameJob(std::move(record), folder);
    return sequenceJob(std::move(record), folder);
}

FarmJob JobBook::sequenceJob(TClientLib::TJob record, const std::string &folder)
{
    const std::int64_t first = m_random.chance(50) ? 1 : 1001;
    const std::int64_t step = m_random.chance(15) ? 2 : 1;
    const std::int64_t perChunk = 5 + m_random.below(6);
    const int chunkCount = 3 + m_random.below(8);

    std::vector<TClientLib::TChunk> chunks;
    std::int64_t next = first;
    for (int i = 0; i < chunkCount; ++i) {
        const TClientLib::TFramesRange frames{next, next + (perChunk - 1) * step, step};
        chunks.push_back(chunk(record.getJobId(), frames));
        next = frames.end + step;
    }
    record.setPacketType(SequencePacket);
    record.setTasksMask(RenderTask);
    record.setFrameRanges({{first, next - step, step}});
    record.attributeSetString("frames_mask", folder + "/beauty.####.exr");
    return {std::move(record), std::move(chunks)};
}

FarmJob JobBook::singleFrameJob(TClientLib::TJob record, const std::string &folder)
{
    // The tiles of the picture are the chunks.
    const TClientLib::TFramesRange frame{1, 1, 1};
    const int tiles = 1 + m_random.below(4);
    std::vector<TClientLib::TChunk> chunks;
    chunks.reserve(std::size_t(tiles));
    for (int i = 0; i < tiles; ++i)
        chunks.push_back(chunk(record.getJobId(), frame));
    record.setPacketType(SingleFramePacket);
    record.setTasksMask(RenderTask | FinalFileTask);
    record.setFrameRanges({frame});
    record.attributeSetString("final_filename", folder + "/still.exr");
    return {std::move(record), std::move(chunks)};
}

TClientLib::TChunk JobBook::chunk(std::int64_t jobId, const TClientLib::TFramesRange &frames)
{
    TClientLib::TChunk chunk;
    chunk.setChunkId(++m_lastChunkId);
    chunk.setJobId(jobId);
    chunk.setFrames(frames.start, frames.end, frames.step);
    return chunk;
}

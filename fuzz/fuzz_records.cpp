#include "fuzzing.h"

#include <client_lib/tchunk.h>
#include <client_lib/tjob.h>
#include <framework/stringhelper.h>

using namespace TClientLib;

namespace {

/// Building a million frames for every input would leave no time for the inputs.
constexpr std::size_t kFewFrames = 2000;

std::vector<std::string> values(std::string_view text)
{
    return TFramework::TStringHelper::TokenizeString(text, "\n");
}

class ToOtherDrive final : public TJobPathTranslator {
public:
    std::string Translate(const std::string &path) const override { return "/mnt" + path; }
};

void ranges(const std::vector<TFramesRange> &list)
{
    std::size_t most = 0;
    for (const TFramesRange &range : list) {
        most += range.FrameCount();
        std::int64_t first = 0;
        const bool hasFirst = range.FirstFrame(first);
        require(hasFirst == (range.FrameCount() > 0 && range.FrameCount() <= TFramesRange::kMaxFrames));
    }
    if (most > kFewFrames)
        return;
    std::int64_t step = 0;
    require(TFramesRange::NumberedFrames(list, step).size() <= most && step >= 1);
}

/// What a record says once read is said again by what is written of it.
template <typename Record, typename... Translator>
void readTwice(const Record &record, Translator... translator)
{
    Record again;
    const std::string text = record.Marshall();
    require(again.Unmarshall(values(text), translator...) && again.Marshall() == text);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::vector<std::string> record = values(asText(data, size));
    TJob job;
    if (job.Unmarshall(record, nullptr)) {
        readTwice(job, nullptr);
        ranges(job.GetFrameRanges());
    }
    const ToOtherDrive translator;
    job.Unmarshall(record, &translator);
    TChunk chunk;
    if (chunk.Unmarshall(record)) {
        readTwice(chunk);
        ranges({{chunk.getStart(), chunk.getEnd(), chunk.getStep()}});
    }
    return 0;
}

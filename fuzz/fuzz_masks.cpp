#include "fuzzing.h"

#include <framework/filesystem.h>
#include <framework/stringhelper.h>
#include <viewer/frames/framesequence.h>

#include <cstring>

using TFramework::TFileSystem;

namespace {

/// Frames of a chunk: so that no file is looked for.
void asFrames(const std::string &path, std::int32_t frame)
{
    TClientLib::TChunk chunk;
    chunk.setFrames(frame, std::int64_t(frame) + 9, 1);
    FramesRequest request;
    request.path = path;
    for (const bool maskIsSequence : {false, true}) {
        request.maskIsSequence = maskIsSequence;
        request.force = true;
        const auto [sequence, frame] = openFrames(request, {nullptr, &chunk});
        require(!sequence.frames.empty() && sequence.frames.contains(frame) && sequence.byFrame >= 1
                && (!sequence.isSequence || !sequence.fileOf(frame).empty()));
    }
}

} // namespace

/// Four bytes of a frame number, then a path or a list of masks.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    std::int32_t frame = 0;
    if (size < sizeof frame)
        return 0;
    std::memcpy(&frame, data, sizeof frame);
    const std::string path(asText(data + sizeof frame, size - sizeof frame));

    std::int32_t number = 0;
    const std::string mask = TFileSystem::GetSequenceMask(path, true, number);
    require(mask.empty() ? number == 0 : TFileSystem::GetFileFromMask(mask, number) == path);
    for (const std::string &each : TFramework::TStringHelper::DecodeFramesMask(path))
        require(TFileSystem::GetFileFromMask(each, frame) != each || each.empty());
    asFrames(path, frame);
    return 0;
}

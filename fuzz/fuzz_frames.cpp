#include "fuzzing.h"

#include <framereader.h>

#include <algorithm>

namespace {

/// The frames that a stream holds, one digest for all of them; `broken` tells how it ended.
struct Drained {
    std::size_t frames = 0;
    std::size_t digest = 0;
    bool broken = false;

    bool operator==(const Drained &) const = default;
};

Drained drain(QByteArrayView stream, qsizetype piece)
{
    FrameReader reader;
    RawFrame frame;
    Drained result;
    qsizetype consumed = 0;
    for (qsizetype at = 0; at < stream.size() && !result.broken; at += piece) {
        const QByteArrayView bytes = stream.sliced(at, std::min(piece, stream.size() - at));
        reader.append(bytes);
        while (reader.take(frame) == FrameReader::Next::Frame) {
            ++result.frames;
            consumed += FrameHeader::kSize + frame.payload.size();
            require(frame.payload.size() == frame.header.length && frame.beyond.size() == reader.size());
            result.digest = qHash(frame.payload, result.digest ^ frame.header.command ^ frame.header.type);
        }
        require(consumed + reader.size() == at + bytes.size());
        result.broken = reader.next() == FrameReader::Next::Broken;
    }
    return result;
}

} // namespace

/// The first byte says in what pieces the rest arrives: they make no difference to the frames.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 1)
        return 0;
    const QByteArrayView stream(data + 1, qsizetype(size - 1));
    require(drain(stream, 1 + data[0]) == drain(stream, std::max<qsizetype>(1, stream.size())));
    return 0;
}

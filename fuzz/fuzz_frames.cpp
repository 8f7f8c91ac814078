#include "fuzzing.h"

#include <net/protocol/messagereader.h>

#include <algorithm>

namespace {

/// The messages that a stream holds, one digest for all of them; `broken` tells how it ended.
struct Drained {
    std::size_t messages = 0;
    std::size_t digest = 0;
    bool broken = false;

    bool operator==(const Drained &) const = default;
};

Drained drain(QByteArrayView stream, qsizetype piece)
{
    MessageReader reader;
    RawMessage message;
    Drained result;
    qsizetype consumed = 0;
    for (qsizetype at = 0; at < stream.size() && !result.broken; at += piece) {
        const QByteArrayView bytes = stream.sliced(at, std::min(piece, stream.size() - at));
        reader.append(bytes);
        while (reader.take(message) == MessageReader::Next::Message) {
            ++result.messages;
            consumed += MessageHeader::kSize + message.payload.size();
            require(message.payload.size() == message.header.length
                    && message.beyond.size() == reader.size());
            result.digest =
                qHash(message.payload, result.digest ^ message.header.command ^ message.header.type);
        }
        require(consumed + reader.size() == at + bytes.size());
        result.broken = reader.next() == MessageReader::Next::Broken;
    }
    return result;
}

} // namespace

/// The first byte says in what pieces the rest arrives: they make no difference to the messages.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 1)
        return 0;
    const QByteArrayView stream(data + 1, qsizetype(size - 1));
    require(drain(stream, 1 + data[0]) == drain(stream, std::max<qsizetype>(1, stream.size())));
    return 0;
}

#include "fuzzing.h"

#include <net/protocol/messagereader.h>
#include <net/protocol/sendqueue.h>

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

/// Whatever came, and wherever it was dropped: the next connection works.
void readAfresh(QByteArrayView stream, qsizetype piece)
{
    MessageReader reader;
    RawMessage message;
    for (qsizetype at = 0; at < stream.size(); at += piece) {
        reader.append(stream.sliced(at, std::min(piece, stream.size() - at)));
        if (at % 3 == 0)
            reader.drop();
        // What a drop leaves is the head of a message that is skipped, or one that breaks the stream.
        require(at % 3 != 0 || reader.next() != MessageReader::Next::Message);
    }
    reader.clear();
    reader.append(encodeMessage(601, "fresh"));
    require(reader.take(message) == MessageReader::Next::Message && message.payload == "fresh");
}

/// Takes the bytes for what is done to a queue. What has left it are whole messages, in the order of their acceptance.
void send(QByteArrayView actions)
{
    SendQueue queue;
    QByteArray wire;
    quint32 accepted = 0;
    for (const char action : actions) {
        const qsizetype amount = quint8(action) >> 2;
        const qsizetype taken = std::min(amount, queue.size());
        switch (action & 3) {
        case 0:
            queue.append(encodeMessage(++accepted, QByteArray(amount, 'p')));
            break;
        case 1:
            wire += queue.bytes().first(taken);
            queue.remove(taken);
            break;
        case 2:
            queue.prepend(encodeMessage(0, QByteArray(amount, 'f')));
            break;
        default:
            queue.drop();
        }
    }
    wire += queue.bytes();
    MessageReader peer;
    peer.append(wire);
    quint32 last = 0;
    RawMessage message;
    while (peer.take(message) == MessageReader::Next::Message) {
        require(message.payload.count(message.header.command == 0 ? 'f' : 'p') == message.header.length);
        require(message.header.command == 0 || message.header.command > last);
        last = std::max(last, message.header.command);
    }
    require(peer.size() == 0);
}

} // namespace

/// The first byte says in what pieces the rest arrives: they make no difference to the messages.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 1)
        return 0;
    const QByteArrayView stream(data + 1, qsizetype(size - 1));
    require(drain(stream, 1 + data[0]) == drain(stream, std::max<qsizetype>(1, stream.size())));
    readAfresh(stream, 1 + data[0]);
    send(stream);
    return 0;
}

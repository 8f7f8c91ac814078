#include "fuzzing.h"

#include <notify/settings/inflate.h>

#include <QtCore/QtEndian>

/// As on the wire: the announced size, then the stream.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < sizeof(quint32))
        return 0;
    const auto announced = qsizetype(qFromLittleEndian<quint32>(data));
    const QByteArrayView stream(data + sizeof(quint32), qsizetype(size - sizeof(quint32)));
    const auto text = inflateStream(stream, announced);
    if (!text)
        return 0;
    require(text->size() <= announced && text->size() <= kMaxInflatedSize);
    // The size is a bound, no part of the result.
    require(inflateStream(stream, text->size()) == text);
    require(text->isEmpty() || !inflateStream(stream, text->size() - 1));
    return 0;
}

#include "inflate.h"

#include <QtCore/QScopeGuard>

#include <algorithm>

#include <zlib.h>

std::optional<QByteArray> inflateStream(QByteArrayView source, qsizetype capacity)
{
    z_stream stream{};
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(source.data()));
    stream.avail_in = uInt(source.size());
    if (inflateInit(&stream) != Z_OK)
        return std::nullopt;
    const auto end = qScopeGuard([&stream] { inflateEnd(&stream); });

    const qsizetype limit = std::min(capacity, kMaxInflatedSize);
    QByteArray out;
    // One byte of room beyond the limit tells a stream that fills it from one that holds more.
    qsizetype room = std::min(limit, std::max<qsizetype>(source.size() * 4, 256)) + 1;
    for (;;) {
        const qsizetype done = out.size();
        out.resize(room);
        stream.next_out = reinterpret_cast<Bytef *>(out.data() + done);
        stream.avail_out = uInt(room - done);
        const int result = inflate(&stream, Z_NO_FLUSH);
        out.resize(room - qsizetype(stream.avail_out));
        if (out.size() > limit)
            return std::nullopt;
        if (result == Z_STREAM_END)
            return out;
        if (result != Z_OK || stream.avail_out > 0)
            return std::nullopt;
        room = std::min(limit + 1, room * 2);
    }
}

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

#include <optional>

/// Most bytes that one payload is ever inflated to; a stream that holds more is refused.
inline constexpr qsizetype kMaxInflatedSize = qsizetype(16) * 1024 * 1024;

/// Inflates one zlib stream (RFC 1950), which must end within `source` and hold at most `capacity` bytes; ignores what
/// follows it. Takes memory for what really comes out, never for `capacity` alone.
/// Null when the stream is damaged, cut off, or holds more.
std::optional<QByteArray> inflateStream(QByteArrayView source, qsizetype capacity);

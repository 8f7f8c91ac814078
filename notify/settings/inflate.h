#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

#include <optional>

/// Most bytes that one payload is ever inflated to; a stream that holds more is refused.
inline constexpr qsizetype kMaxInflatedSize = qsizetype(16) * 1024 * 1024;

/// The bytes of one zlib stream (RFC 1950) that must end within `source` and hold at most `capacity` bytes; what
/// follows the stream is ignored. Memory grows with what really comes out, never with `capacity` alone.
/// Null when the stream is damaged, cut off, or holds more.
std::optional<QByteArray> inflateStream(QByteArrayView source, qsizetype capacity);

#include "marking.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

namespace {

bool fits(std::int64_t frame)
{
    return frame >= std::numeric_limits<std::int32_t>::min()
        && frame <= std::numeric_limits<std::int32_t>::max();
}

std::optional<MarkedChunk> keyOf(const ChunkMap &chunks, int frame)
{
    const auto found = chunkOf(chunks, frame);
    if (found == chunks.end())
        return std::nullopt;
    return MarkedChunk{found->first, found->second.id};
}

using Span = std::pair<std::int64_t, std::int64_t>; // first and last

QString textOf(std::vector<Span> spans)
{
    std::sort(spans.begin(), spans.end());
    QStringList parts;
    for (std::size_t i = 0; i < spans.size();) {
        auto [first, last] = spans[i];
        for (++i; i < spans.size() && spans[i].first <= last + 1; ++i)
            last = std::max(last, spans[i].second);
        parts += QString::number(first) + (last > first ? QStringLiteral("-%1").arg(last) : QString());
    }
    return parts.join(QLatin1Char(','));
}

} // namespace

void Marking::setChunks(const std::vector<TClientLib::TChunk> &chunks)
{
    m_chunks.clear();
    for (const TClientLib::TChunk &chunk : chunks) {
        const auto [first, last] = std::minmax({chunk.getStart(), chunk.getEnd()}); // values, no references
        if (fits(first) && fits(last))
            m_chunks[std::int32_t(last)] = {chunk.getChunkId(), std::int32_t(first), chunk.getState()};
    }
}

void Marking::apply(int frame, const MarkRequest &request)
{
    const auto chunk = keyOf(m_chunks, frame);
    if (request.addChunk && chunk)
        m_markedChunks.insert(*chunk);
    if (request.addFrame)
        m_markedFrames.insert(frame);
    if (request.removeChunk && chunk)
        m_markedChunks.remove(*chunk);
    if (request.removeFrame)
        m_markedFrames.remove(frame);
}

void Marking::toggleFrame(int frame)
{
    if (!m_markedFrames.remove(frame))
        m_markedFrames.insert(frame);
}

void Marking::toggleChunkOf(int frame)
{
    const auto key = keyOf(m_chunks, frame);
    if (key && !m_markedChunks.remove(*key))
        m_markedChunks.insert(*key);
}

void Marking::clear()
{
    m_markedChunks.clear();
    m_markedFrames.clear();
}

QString Marking::framesText() const
{
    std::vector<Span> spans;
    for (const std::int32_t frame : m_markedFrames)
        spans.emplace_back(frame, frame);
    return textOf(std::move(spans));
}

QString Marking::chunksText() const
{
    std::vector<Span> spans;
    for (const MarkedChunk &chunk : m_markedChunks)
        spans.emplace_back(chunk.second, chunk.second);
    return textOf(std::move(spans));
}

QString Marking::framesOfChunksText() const
{
    std::vector<Span> spans;
    for (const auto &[last, id] : m_markedChunks) {
        const auto chunk = m_chunks.find(last);
        if (chunk != m_chunks.end() && chunk->second.id == id)
            spans.emplace_back(chunk->second.firstFrame, last);
    }
    return textOf(std::move(spans));
}

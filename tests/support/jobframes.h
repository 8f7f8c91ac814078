#pragma once

#include <client_lib/tchunk.h>
#include <client_lib/tjob.h>

#include <ImfChannelList.h>
#include <ImfFrameBuffer.h>
#include <ImfHeader.h>
#include <ImfOutputFile.h>

#include <QtCore/QSize>
#include <QtCore/QString>

#include <string>
#include <utility>
#include <vector>

/// What a job leaves for a viewer: its frames and its records.

using ExrChannels = std::vector<std::pair<std::string, float>>;

/// Writes an EXR file of float channels, each of one value.
inline void writeFrame(const QString &path, QSize size,
                       const ExrChannels &channels = {{"R", 0.5F}, {"G", 0.25F}, {"B", 1.0F}, {"A", 1.0F}})
{
    Imf::Header header(size.width(), size.height());
    Imf::FrameBuffer pixels;
    std::vector<std::vector<float>> rows; // one stands for all of its channel
    for (const auto &[name, value] : channels) {
        header.channels().insert(name, Imf::Channel(Imf::FLOAT));
        rows.emplace_back(std::size_t(size.width()), value);
        pixels.insert(name,
                      Imf::Slice(Imf::FLOAT, reinterpret_cast<char *>(rows.back().data()), sizeof(float), 0));
    }
    Imf::OutputFile file(path.toLocal8Bit().constData(), header);
    file.setFrameBuffer(pixels);
    file.writePixels(size.height());
}

inline TClientLib::TChunk chunkOf(int id, int first, int last)
{
    TClientLib::TChunk chunk;
    chunk.setChunkId(id);
    chunk.setJobId(42);
    chunk.setFrames(first, last, 1);
    return chunk;
}

/// The job of those chunks.
inline TClientLib::TJob jobOf(int first, int last)
{
    TClientLib::TJob job;
    job.setJobId(42);
    job.setName("shot");
    job.setFrameRanges({{first, last, 1}});
    return job;
}

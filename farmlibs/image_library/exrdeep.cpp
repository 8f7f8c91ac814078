#include "exrdeep.h"

#include "imageerror.h"

#include <ImathBox.h>
#include <ImfChannelList.h>
#include <ImfDeepCompositing.h>
#include <ImfDeepFrameBuffer.h>
#include <ImfDeepScanLineInputPart.h>
#include <ImfDeepTiledInputPart.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>

namespace TImageLibrary {

namespace {

/// A deep part, read in rows that begin and end where chunks do.
class DeepRows {
public:
    virtual ~DeepRows() = default;
    virtual void setFrameBuffer(const Imf::DeepFrameBuffer &buffer) = 0;
    virtual void readCounts(int firstRow, int lastRow) = 0;
    virtual void read(int firstRow, int lastRow) = 0;
};

class DeepScanLineRows final : public DeepRows {
public:
    DeepScanLineRows(ExrFile &file, int part)
        : m_part(file.parts(), part)
    { }
    void setFrameBuffer(const Imf::DeepFrameBuffer &buffer) override { m_part.setFrameBuffer(buffer); }
    void readCounts(int firstRow, int lastRow) override { m_part.readPixelSampleCounts(firstRow, lastRow); }
    void read(int firstRow, int lastRow) override { m_part.readPixels(firstRow, lastRow); }

private:
    Imf::DeepScanLineInputPart m_part;
};

class DeepTileRows final : public DeepRows {
public:
    DeepTileRows(ExrFile &file, int part)
        : m_part(file.parts(), part)
        , m_top(file.header(part).dataWindow().min.y)
        , m_tileRows(file.chunkRows(part))
    { }
    void setFrameBuffer(const Imf::DeepFrameBuffer &buffer) override { m_part.setFrameBuffer(buffer); }
    void readCounts(int firstRow, int lastRow) override
    {
        m_part.readPixelSampleCounts(0, m_part.numXTiles() - 1, tileRow(firstRow), tileRow(lastRow));
    }
    void read(int firstRow, int lastRow) override
    {
        m_part.readTiles(0, m_part.numXTiles() - 1, tileRow(firstRow), tileRow(lastRow));
    }

private:
    int tileRow(int row) const { return (row - m_top) / m_tileRows; }

    Imf::DeepTiledInputPart m_part;
    int m_top;
    int m_tileRows;
};

class Flattener final {
public:
    Flattener(ExrFile &file, int part, const std::vector<ExrTarget *> &targets)
        : m_file(file)
        , m_part(part)
        , m_targets(targets)
        , m_data(file.header(part).dataWindow())
        , m_width(std::uint64_t(std::int64_t(m_data.max.x) - m_data.min.x + 1))
    {
        if (file.isTiled(part))
            m_rows = std::make_unique<DeepTileRows>(file, part);
        else
            m_rows = std::make_unique<DeepScanLineRows>(file, part);
        const bool hasBack = file.header(part).channels().findChannel("ZBack") != nullptr;
        // In the order that the compositing asks for.
        addInput("Z");
        addInput(hasBack ? "ZBack" : "Z");
        addInput("A");
        for (const ExrTarget *target : targets)
            addInput(target->channel.name);
    }

    void flatten(const std::function<void(double)> &report)
    {
        constexpr std::int64_t kRows = 64; // enough chunks for the threads
        const std::int64_t chunkRows = m_file.chunkRows(m_part);
        const std::int64_t bandRows = (kRows + chunkRows - 1) / chunkRows * chunkRows;
        for (std::int64_t top = m_data.min.y; top <= m_data.max.y; top += bandRows) {
            const auto bottom = int(std::min<std::int64_t>(top + bandRows - 1, m_data.max.y));
            readBand(int(top), bottom);
            for (int row = int(top); row <= bottom; ++row)
                flattenRow(row, std::size_t(row - top) * m_width);
            report(double(bottom - m_data.min.y + 1) / double(m_data.max.y - m_data.min.y + 1));
        }
    }

private:
    struct Channel {
        std::string name;
        std::vector<float> samples; ///< of a band, pixel after pixel
        std::vector<float *> pixels;
    };

    void addInput(const std::string &name)
    {
        const auto found = std::find_if(m_channels.begin(), m_channels.end(),
                                        [&name](const Channel &channel) { return channel.name == name; });
        m_inputs.push_back(std::size_t(found - m_channels.begin()));
        if (found == m_channels.end())
            m_channels.push_back({name, {}, {}});
    }

    void require(std::uint64_t bytes) const
    {
        // A half that becomes a float doubles.
        if (!m_file.source().canHold(bytes, 2 * m_file.expansion(m_part)))
            throw ImageError(TLoadFailure::Damaged,
                             m_file.nameOf(m_part) + " announces more deep samples than the file can hold");
    }

    /// What OpenEXR counts from, the pixel (0, 0), which may lie outside the memory: no arithmetic on pointers then.
    template <typename Value>
    char *originOf(std::vector<Value> &values, int top) const
    {
        const auto data = reinterpret_cast<std::uintptr_t>(values.data());
        return reinterpret_cast<char *>(data - std::uintptr_t(top) * m_width * sizeof(Value)
                                        - std::uintptr_t(m_data.min.x) * sizeof(Value));
    }

    void readBand(int top, int bottom)
    {
        const std::uint64_t pixels = m_width * (std::uint64_t(bottom - top) + 1);
        require(pixels * (sizeof(unsigned) + m_channels.size() * sizeof(float *)));
        m_counts.assign(pixels, 0);
        Imf::DeepFrameBuffer buffer;
        buffer.insertSampleCountSlice(
            Imf::Slice(Imf::UINT, originOf(m_counts, top), sizeof(unsigned), sizeof(unsigned) * m_width));
        for (Channel &channel : m_channels) {
            channel.pixels.assign(pixels, nullptr);
            buffer.insert(channel.name,
                          Imf::DeepSlice(Imf::FLOAT, originOf(channel.pixels, top), sizeof(float *),
                                         sizeof(float *) * m_width, sizeof(float)));
        }
        m_rows->setFrameBuffer(buffer);
        m_rows->readCounts(top, bottom);
        std::uint64_t total = 0;
        for (const unsigned count : m_counts)
            total += count;
        require(total * m_channels.size() * sizeof(float));
        if (total > std::uint64_t(std::numeric_limits<int>::max()))
            throw ImageError(TLoadFailure::TooLarge, "more deep samples than can be counted");
        for (Channel &channel : m_channels) {
            channel.samples.resize(total);
            float *samples = channel.samples.data();
            for (std::size_t i = 0; i < m_counts.size(); samples += m_counts[i++])
                channel.pixels[i] = samples;
        }
        m_rows->read(top, bottom);
    }

    /// `first` is the row's first pixel in the band.
    void flattenRow(int row, std::size_t first)
    {
        const ExrSpan visible = m_targets.front()->columns;
        const ExrSpan columns = ExrSpan::common(visible, ExrSpan::within(m_data.min.x, m_data.max.x, 1));
        const ExrSpan rows = m_targets.front()->rows;
        if (row < rows.first || row >= rows.end())
            return;
        std::vector<float> flat(m_inputs.size());
        std::vector<const float *> inputs(m_inputs.size());
        std::vector<const char *> names;
        for (const std::size_t input : m_inputs)
            names.push_back(m_channels[input].name.c_str());
        for (int column = columns.first; column < columns.end(); ++column) {
            const std::size_t pixel = first + std::size_t(column - m_data.min.x);
            for (std::size_t i = 0; i < inputs.size(); ++i)
                inputs[i] = m_channels[m_inputs[i]].pixels[pixel];
            m_compositing.composite_pixel(flat.data(), inputs.data(), names.data(), int(inputs.size()),
                                          int(m_counts[pixel]), 1);
            const std::size_t to = std::size_t(row - rows.first) * std::size_t(visible.count)
                + std::size_t(column - visible.first);
            for (std::size_t i = 0; i < m_targets.size(); ++i)
                store(*m_targets[i], to, flat[i + kFixedInputs]);
        }
    }

    static void store(ExrTarget &target, std::size_t index, float value)
    {
        if (target.type == Imf::HALF)
            reinterpret_cast<half *>(target.plane.data())[index] = half(value);
        else
            reinterpret_cast<float *>(target.plane.data())[index] = value;
    }

    static constexpr std::size_t kFixedInputs = 3; // Z, ZBack, A

    ExrFile &m_file;
    int m_part;
    const std::vector<ExrTarget *> &m_targets;
    Imath::Box2i m_data;
    std::uint64_t m_width;
    std::unique_ptr<DeepRows> m_rows;
    std::vector<Channel> m_channels;
    std::vector<std::size_t> m_inputs; // channels by what the compositing takes them for
    std::vector<unsigned> m_counts; // samples of a band's pixels
    Imf::DeepCompositing m_compositing;
};

} // namespace

void flattenPart(ExrFile &file, int part, const std::vector<ExrTarget *> &targets,
                 const std::function<void(double)> &report)
{
    Flattener(file, part, targets).flatten(report);
}

} // namespace TImageLibrary

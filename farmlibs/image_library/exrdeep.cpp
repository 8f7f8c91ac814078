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

/// A deep part, read in boxes of pixels that begin and end where chunks do.
class DeepPixels {
public:
    virtual ~DeepPixels() = default;
    virtual void setFrameBuffer(const Imf::DeepFrameBuffer &buffer) = 0;
    virtual void readCounts(const Imath::Box2i &box) = 0;
    virtual void read(const Imath::Box2i &box) = 0;
};

class DeepScanLines final : public DeepPixels {
public:
    DeepScanLines(ExrFile &file, int part)
        : m_part(file.parts(), part)
    { }
    void setFrameBuffer(const Imf::DeepFrameBuffer &buffer) override { m_part.setFrameBuffer(buffer); }
    void readCounts(const Imath::Box2i &box) override { m_part.readPixelSampleCounts(box.min.y, box.max.y); }
    void read(const Imath::Box2i &box) override { m_part.readPixels(box.min.y, box.max.y); }

private:
    Imf::DeepScanLineInputPart m_part;
};

class DeepTiles final : public DeepPixels {
public:
    DeepTiles(ExrFile &file, int part)
        : m_part(file.parts(), part)
        , m_first(file.header(part).dataWindow().min)
        , m_tile(int(file.header(part).tileDescription().xSize), file.chunkRows(part))
    { }
    void setFrameBuffer(const Imf::DeepFrameBuffer &buffer) override { m_part.setFrameBuffer(buffer); }
    void readCounts(const Imath::Box2i &box) override
    {
        const Imath::Box2i tiles = tilesOf(box);
        m_part.readPixelSampleCounts(tiles.min.x, tiles.max.x, tiles.min.y, tiles.max.y);
    }
    void read(const Imath::Box2i &box) override
    {
        const Imath::Box2i tiles = tilesOf(box);
        m_part.readTiles(tiles.min.x, tiles.max.x, tiles.min.y, tiles.max.y);
    }

private:
    Imath::Box2i tilesOf(const Imath::Box2i &box) const
    {
        return {(box.min - m_first) / m_tile, (box.max - m_first) / m_tile};
    }

    Imf::DeepTiledInputPart m_part;
    Imath::V2i m_first;
    Imath::V2i m_tile;
};

class Flattener final {
public:
    Flattener(ExrFile &file, int part, const std::vector<ExrTarget *> &targets)
        : m_file(file)
        , m_part(part)
        , m_targets(targets)
        , m_data(file.header(part).dataWindow())
    {
        if (file.isTiled(part))
            m_pixels = std::make_unique<DeepTiles>(file, part);
        else
            m_pixels = std::make_unique<DeepScanLines>(file, part);
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
            flattenBox({{m_data.min.x, int(top)}, {m_data.max.x, bottom}});
            report(double(bottom - m_data.min.y + 1) / double(m_data.max.y - m_data.min.y + 1));
        }
    }

    void flattenPresent(PresentChunks &present, const std::function<void(double)> &report)
    {
        const ExrLayout &layout = present.layout();
        const std::uint64_t count = layout.fullCount();
        // As with flat pixels, OpenEXR looks for each chunk only where they are not asked for in order.
        const bool isBackwards = m_file.header(m_part).lineOrder() == Imf::INCREASING_Y;
        for (std::uint64_t i = 0; i < count; ++i) {
            const std::uint64_t index = isBackwards ? count - 1 - i : i;
            present.read({index, index + 1}, [&] { flattenBox(layout.box(index)); });
            report(double(i + 1) / double(count));
        }
    }

private:
    struct Channel {
        std::string name;
        std::vector<float> samples; ///< of a box, pixel after pixel
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
    static char *originOf(std::vector<Value> &values, const Imath::Box2i &box)
    {
        const auto data = reinterpret_cast<std::uintptr_t>(values.data());
        return reinterpret_cast<char *>(data - std::uintptr_t(box.min.y) * widthOf(box) * sizeof(Value)
                                        - std::uintptr_t(box.min.x) * sizeof(Value));
    }

    static std::uint64_t widthOf(const Imath::Box2i &box)
    {
        return std::uint64_t(std::int64_t(box.max.x) - box.min.x + 1);
    }

    void flattenBox(const Imath::Box2i &box)
    {
        readBox(box);
        for (int row = box.min.y; row <= box.max.y; ++row)
            flattenRow(row, box);
    }

    void readBox(const Imath::Box2i &box)
    {
        const std::uint64_t width = widthOf(box);
        const std::uint64_t pixels = width * (std::uint64_t(box.max.y - box.min.y) + 1);
        require(pixels * (sizeof(unsigned) + m_channels.size() * sizeof(float *)));
        m_counts.assign(pixels, 0);
        Imf::DeepFrameBuffer buffer;
        buffer.insertSampleCountSlice(
            Imf::Slice(Imf::UINT, originOf(m_counts, box), sizeof(unsigned), sizeof(unsigned) * width));
        for (Channel &channel : m_channels) {
            channel.pixels.assign(pixels, nullptr);
            buffer.insert(channel.name,
                          Imf::DeepSlice(Imf::FLOAT, originOf(channel.pixels, box), sizeof(float *),
                                         sizeof(float *) * width, sizeof(float)));
        }
        m_pixels->setFrameBuffer(buffer);
        m_pixels->readCounts(box);
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
        m_pixels->read(box);
    }

    /// Of the box that was read.
    void flattenRow(int row, const Imath::Box2i &box)
    {
        const ExrSpan visible = m_targets.front()->columns;
        const ExrSpan columns = ExrSpan::common(visible, ExrSpan::within(box.min.x, box.max.x, 1));
        const ExrSpan rows = m_targets.front()->rows;
        if (row < rows.first || row >= rows.end())
            return;
        std::vector<float> flat(m_inputs.size());
        std::vector<const float *> inputs(m_inputs.size());
        std::vector<const char *> names;
        for (const std::size_t input : m_inputs)
            names.push_back(m_channels[input].name.c_str());
        for (int column = columns.first; column < columns.end(); ++column) {
            const std::size_t pixel =
                std::size_t(row - box.min.y) * widthOf(box) + std::size_t(column - box.min.x);
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
    std::unique_ptr<DeepPixels> m_pixels;
    std::vector<Channel> m_channels;
    std::vector<std::size_t> m_inputs; // channels by what the compositing takes them for
    std::vector<unsigned> m_counts; // samples of a box's pixels
    Imf::DeepCompositing m_compositing;
};

} // namespace

void flattenPart(ExrFile &file, int part, const std::vector<ExrTarget *> &targets,
                 const std::function<void(double)> &report, PresentChunks *present)
{
    Flattener flattener(file, part, targets);
    present ? flattener.flattenPresent(*present, report) : flattener.flatten(report);
}

} // namespace TImageLibrary

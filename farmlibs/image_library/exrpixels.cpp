#include "exrpixels.h"

#include "exrchunks.h"
#include "exrunpack.h"
#include "imageerror.h"

#include <IexBaseExc.h>
#include <ImathBox.h>
#include <ImfChannelList.h>
#include <ImfFrameBuffer.h>
#include <ImfInputPart.h>
#include <ImfTiledInputPart.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>

namespace TImageLibrary {

namespace {

/// Level 0 of a part, read in rows that begin and end where chunks do.
class PartRows {
public:
    virtual ~PartRows() = default;
    virtual void setFrameBuffer(const Imf::FrameBuffer &buffer) = 0;
    virtual void read(int firstRow, int lastRow) = 0;
    virtual void readTile(int column, int row) = 0;
    virtual int chunksPerRow() const = 0;
};

class ScanLineRows final : public PartRows {
public:
    ScanLineRows(Imf::MultiPartInputFile &file, int part)
        : m_part(file, part)
    { }
    void setFrameBuffer(const Imf::FrameBuffer &buffer) override { m_part.setFrameBuffer(buffer); }
    void read(int firstRow, int lastRow) override { m_part.readPixels(firstRow, lastRow); }
    void readTile(int, int) override { }
    int chunksPerRow() const override { return 1; }

private:
    Imf::InputPart m_part;
};

class TileRows final : public PartRows {
public:
    TileRows(Imf::MultiPartInputFile &file, int part)
        : m_part(file, part)
        , m_top(file.header(part).dataWindow().min.y)
        , m_tileRows(int(file.header(part).tileDescription().ySize))
    { }
    void setFrameBuffer(const Imf::FrameBuffer &buffer) override { m_part.setFrameBuffer(buffer); }
    void read(int firstRow, int lastRow) override
    {
        m_part.readTiles(0, m_part.numXTiles() - 1, (firstRow - m_top) / m_tileRows,
                         (lastRow - m_top) / m_tileRows);
    }
    void readTile(int column, int row) override { m_part.readTile(column, row); }
    int chunksPerRow() const override { return m_part.numXTiles(); }

private:
    Imf::TiledInputPart m_part;
    int m_top;
    int m_tileRows;
};

/// A slice on memory that holds the given samples of a channel, rows packed.
Imf::Slice sliceOn(std::byte *data, const ExrTarget &target, const ExrSpan &columns, const ExrSpan &rows)
{
    const std::size_t sampleBytes = target.plane.format().pixelBytes();
    const std::size_t rowBytes = sampleBytes * std::size_t(columns.count);
    // OpenEXR counts from the sample (0, 0), which may lie outside the memory: no arithmetic on pointers then.
    const std::uintptr_t origin = reinterpret_cast<std::uintptr_t>(data)
        - std::uintptr_t(rows.first) * rowBytes - std::uintptr_t(columns.first) * sampleBytes;
    return Imf::Slice(target.type, reinterpret_cast<char *>(origin), sampleBytes, rowBytes,
                      target.channel.sampling.x, target.channel.sampling.y);
}

/// The samples of one channel in a band of the data window, where that does not lie within the display window.
class Scratch final {
public:
    Scratch(ExrTarget &target, const Imath::Box2i &band)
        : m_target(target)
        , m_columns(ExrSpan::within(band.min.x, band.max.x, target.channel.sampling.x))
        , m_rows(ExrSpan::within(band.min.y, band.max.y, target.channel.sampling.y))
        , m_data(byteSize())
    { }

    std::size_t byteSize() const
    {
        return std::size_t(m_columns.count) * std::size_t(m_rows.count)
            * m_target.plane.format().pixelBytes();
    }
    Imf::Slice slice() { return sliceOn(m_data.data(), m_target, m_columns, m_rows); }

    void copyToPlane() const
    {
        const TPlaneFormat &format = m_target.plane.format();
        const std::size_t sampleBytes = format.pixelBytes();
        const ExrSpan columns = ExrSpan::common(m_columns, m_target.columns);
        const ExrSpan rows = ExrSpan::common(m_rows, m_target.rows);
        for (int row = rows.first; row < rows.end() && columns.count > 0; ++row) {
            const std::size_t from = std::size_t(row - m_rows.first) * std::size_t(m_columns.count)
                + std::size_t(columns.first - m_columns.first);
            const std::size_t to = std::size_t(row - m_target.rows.first) * std::size_t(format.width)
                + std::size_t(columns.first - m_target.columns.first);
            std::memcpy(m_target.plane.data() + to * sampleBytes, m_data.data() + from * sampleBytes,
                        std::size_t(columns.count) * sampleBytes);
        }
    }

private:
    ExrTarget &m_target;
    ExrSpan m_columns;
    ExrSpan m_rows;
    std::vector<std::byte> m_data;
};

/// Whether pixels of a band lie in the plane.
bool reaches(const Imath::Box2i &band, const ExrTarget &target)
{
    const Imath::V2i &sampling = target.channel.sampling;
    const ExrSpan columns = ExrSpan::within(band.min.x, band.max.x, sampling.x);
    const ExrSpan rows = ExrSpan::within(band.min.y, band.max.y, sampling.y);
    return ExrSpan::common(columns, target.columns).count > 0 && ExrSpan::common(rows, target.rows).count > 0;
}

/// Calls a function of OpenEXR's and adds the place to what it says of damage.
template <typename Function>
void located(const std::string &place, const Function &function)
{
    try {
        function();
    } catch (const Iex::BaseExc &damage) {
        std::string reason = damage.what();
        while (reason.ends_with('.'))
            reason.pop_back();
        throw ImageError(TLoadFailure::Damaged, reason + ", " + place);
    }
}

class PartReader final {
public:
    PartReader(ExrFile &file, int part, const std::vector<ExrTarget *> &targets, PresentChunks *present)
        : m_file(file)
        , m_part(part)
        , m_targets(targets)
        , m_present(present)
        , m_data(file.header(part).dataWindow())
    {
        m_rows = rowsOf(file);
    }

    void read(const std::function<void(double)> &report)
    {
        const bool direct = std::all_of(m_targets.begin(), m_targets.end(), [this](const ExrTarget *target) {
            const Imath::V2i &sampling = target->channel.sampling;
            return target->columns.contains(ExrSpan::within(m_data.min.x, m_data.max.x, sampling.x))
                && target->rows.contains(ExrSpan::within(m_data.min.y, m_data.max.y, sampling.y));
        });
        if (direct)
            setPlanes();
        // In 64 bits: a band may end behind the last row that an int can count.
        const std::int64_t bandRows = rowsPerBand();
        const std::int64_t bands = (std::int64_t(m_data.max.y) - m_data.min.y) / bandRows + 1;
        for (std::int64_t i = 0; i < bands; ++i) {
            const std::int64_t top = m_data.min.y + (isBackwards() ? bands - 1 - i : i) * bandRows;
            const auto bottom = int(std::min<std::int64_t>(top + bandRows - 1, m_data.max.y));
            if (direct)
                readRows(int(top), bottom);
            else
                readThroughScratch({{m_data.min.x, int(top)}, {m_data.max.x, bottom}});
            report(double(i + 1) / double(bands));
        }
    }

private:
    /// Every band ends with a wait for its last chunk: enough chunks in each, and as many for each thread, keep the threads
    /// busy. Sixteen bands are plenty for a progress bar.
    std::int64_t rowsPerBand() const
    {
        constexpr std::int64_t kBands = 16;
        constexpr std::int64_t kChunksPerThread = 8;
        const std::int64_t threads = std::max(m_file.threads(), 1);
        const std::int64_t chunkRows = m_file.chunkRows(m_part);
        const std::int64_t chunkLines = (m_data.max.y - m_data.min.y) / chunkRows + 1;
        const std::int64_t busy = (threads * kChunksPerThread - 1) / m_rows->chunksPerRow() + 1;
        const std::int64_t lines = std::max(busy, (chunkLines - 1) / kBands + 1);
        return chunkRows * ((lines - 1) / threads + 1) * threads;
    }

    /// OpenEXR takes for granted that chunks in the order of their lines follow each other in the file, which is not so
    /// behind a damaged one; in the other order it looks for each.
    bool isBackwards() const { return m_present && m_file.header(m_part).lineOrder() == Imf::INCREASING_Y; }

    std::unique_ptr<PartRows> rowsOf(ExrFile &file) const
    {
        if (file.isTiled(m_part))
            return std::make_unique<TileRows>(file.parts(), m_part);
        return std::make_unique<ScanLineRows>(file.parts(), m_part);
    }

    void setPlanes()
    {
        Imf::FrameBuffer buffer;
        for (ExrTarget *target : m_targets)
            buffer.insert(target->channel.name,
                          sliceOn(target->plane.data(), *target, target->columns, target->rows));
        setBuffer(buffer);
    }

    void setBuffer(const Imf::FrameBuffer &buffer)
    {
        m_buffer = buffer;
        m_rows->setFrameBuffer(buffer);
    }

    void readRows(int top, int bottom)
    {
        if (m_present)
            return readPresent(top, bottom);
        located("in the lines " + std::to_string(top) + " to " + std::to_string(bottom),
                [&] { m_rows->read(top, bottom); });
    }

    /// A band at a time as long as all goes well, which keeps the threads busy.
    void readPresent(int top, int bottom)
    {
        const ExrLayout &layout = m_present->layout();
        const std::int64_t chunkRows = m_file.chunkRows(m_part);
        const auto columns = std::uint64_t(layout.columns());
        const std::uint64_t begin = std::uint64_t((std::int64_t(top) - m_data.min.y) / chunkRows) * columns;
        const std::uint64_t end =
            (std::uint64_t((std::int64_t(bottom) - m_data.min.y) / chunkRows) + 1) * columns;
        if (!takesShortChunks(m_file, m_part)
            && m_present->read({begin, end}, [&] { m_rows->read(top, bottom); }))
            return;
        // What has met damage keeps parts of it.
        if (!m_again)
            m_again = std::make_unique<Again>(*this);
        m_again->rows->setFrameBuffer(m_buffer);
        for (std::uint64_t i = 0; i < end - begin; ++i) {
            const std::uint64_t index = isBackwards() ? end - 1 - i : begin + i;
            m_present->read({index, index + 1}, [&] { readChunk(layout, index); });
        }
    }

    void readChunk(const ExrLayout &layout, std::uint64_t index)
    {
        const Imath::Box2i box = layout.box(index);
        if (takesShortChunks(m_file, m_part))
            checkChunk(m_file.header(m_part), box, m_present->packed(index));
        const auto at = std::int64_t(index);
        if (layout.isTiled())
            m_again->rows->readTile(int(at % layout.columns()), int(at / layout.columns()));
        else
            m_again->rows->read(box.min.y, box.max.y);
    }

    void readThroughScratch(const Imath::Box2i &band)
    {
        if (std::none_of(m_targets.begin(), m_targets.end(),
                         [&band](const ExrTarget *target) { return reaches(band, *target); }))
            return;
        const std::uint64_t bytes = (std::uint64_t(band.max.x) - std::uint64_t(band.min.x) + 1)
            * (std::uint64_t(band.max.y) - std::uint64_t(band.min.y) + 1) * m_targets.size() * sizeof(float);
        if (!m_file.source().canHold(bytes, 2 * m_file.expansion(m_part)))
            throw ImageError(TLoadFailure::Damaged,
                             m_file.nameOf(m_part) + " has rows larger than it can hold");
        std::vector<Scratch> scratches;
        scratches.reserve(m_targets.size());
        Imf::FrameBuffer buffer;
        for (ExrTarget *target : m_targets)
            buffer.insert(target->channel.name, scratches.emplace_back(*target, band).slice());
        setBuffer(buffer);
        readRows(band.min.y, band.max.y);
        for (const Scratch &scratch : scratches)
            scratch.copyToPlane();
    }

    /// The file once more, for chunks one by one.
    struct Again {
        explicit Again(const PartReader &reader)
            : file(ExrFile::open(reader.m_file.source(), reader.m_file.progress()))
            , rows(reader.rowsOf(file))
        { }

        ExrFile file;
        std::unique_ptr<PartRows> rows;
    };

    ExrFile &m_file;
    int m_part;
    const std::vector<ExrTarget *> &m_targets;
    PresentChunks *m_present; // null where every chunk is to be there
    Imath::Box2i m_data;
    std::unique_ptr<PartRows> m_rows;
    Imf::FrameBuffer m_buffer;
    std::unique_ptr<Again> m_again; // once a chunk has not been read with its neighbours
};

} // namespace

void readPart(ExrFile &file, int part, const std::vector<ExrTarget *> &targets,
              const std::function<void(double)> &report, PresentChunks *present)
{
    if (canUnpack(file, part) && unpackPart(file, part, targets, report, present))
        return;
    if (!present)
        located("in its last lines", [&] { checkLastChunk(file, part); });
    PartReader(file, part, targets, present).read(report);
}

} // namespace TImageLibrary

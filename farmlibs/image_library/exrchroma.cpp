#include "exrchroma.h"

#include "exrchannels.h"
#include "imageerror.h"

#include <ImathBox.h>
#include <ImfChannelList.h>
#include <ImfRgbaYca.h>
#include <ImfStandardAttributes.h>

#include <algorithm>
#include <array>

namespace TImageLibrary {

namespace {

using Imf::Rgba;
using Imf::RgbaYca::N;
using Imf::RgbaYca::N2;
using Line = std::vector<Rgba>;

/// Gives the colour of one line after the other, also of the lines next to the first and the last, which hold what the
/// filters take for granted there.
class ChromaLines final {
public:
    ChromaLines(const Imf::Header &header, const std::vector<ExrTarget> &sources)
        : m_sources(sources)
        , m_weights(Imf::RgbaYca::computeYw(Imf::hasChromaticities(header) ? Imf::chromaticities(header)
                                                                           : Imf::Chromaticities()))
        , m_rows(sources.front().rows)
        , m_width(sources.front().columns.count)
        , m_step(sources.back().channel.sampling.x)
        , m_next(m_rows.first)
        , m_padded(std::size_t(m_width + N - 1))
    {
        for (Line &line : m_filtered)
            line.resize(std::size_t(m_width));
    }

    const Imath::V3f &weights() const { return m_weights; }

    /// Rows are to be asked for in ascending order.
    void makeColor(int row, Line &color)
    {
        for (; m_next < m_rows.end() && m_next <= row + N2; ++m_next)
            filterAlong(m_next);
        const Rgba *line = filtered(row);
        // Only lines of even number have chroma.
        if (m_step == 2 && row % 2 != 0) {
            std::array<const Rgba *, N> around{};
            for (int i = 0; i < N; ++i)
                around[std::size_t(i)] = filtered(row - N2 + i);
            Imf::RgbaYca::reconstructChromaVert(m_width, around.data(), color.data());
            line = color.data();
        }
        Imf::RgbaYca::YCAtoRGBA(m_weights, m_width, line, color.data());
    }

private:
    static constexpr int kKept = 32; // a filter's lines and those next to them

    Line &slot(int row) { return m_filtered[std::size_t(row - m_rows.first) % kKept]; }

    const Rgba *filtered(int row)
    {
        const int last = m_rows.end() - 1;
        return slot(row < m_rows.first ? m_rows.first
                        : row > last   ? std::max(last - 1, m_rows.first)
                                       : row)
            .data();
    }

    /// Brings a line in, with the chroma between its samples.
    void filterAlong(int row)
    {
        Rgba *pixel = m_padded.data() + N2;
        const half *luma = samples(m_sources[0], row);
        for (int x = 0; x < m_width; ++x)
            pixel[x] = Rgba(half(0.0F), luma[x], half(0.0F));
        if (row % m_step == 0) {
            const half *redness = samples(m_sources[1], row);
            const half *blueness = samples(m_sources[2], row);
            for (int x = 0; x < m_width; x += m_step) {
                pixel[x].r = redness[x / m_step];
                pixel[x].b = blueness[x / m_step];
            }
        }
        if (m_step == 1 || row % 2 != 0) {
            std::copy_n(pixel, m_width, slot(row).data());
            return;
        }
        std::fill_n(m_padded.data(), N2, pixel[0]);
        std::fill_n(pixel + m_width, N2, pixel[m_width - 2]);
        Imf::RgbaYca::reconstructChromaHoriz(m_width, m_padded.data(), slot(row).data());
    }

    static const half *samples(const ExrTarget &source, int row)
    {
        const int index = row / source.channel.sampling.y - source.rows.first;
        return static_cast<const half *>(source.plane.GetChannelData())
            + std::ptrdiff_t(index) * source.columns.count;
    }

    const std::vector<ExrTarget> &m_sources;
    Imath::V3f m_weights;
    ExrSpan m_rows;
    int m_width;
    int m_step;
    int m_next; // the first line that is not in m_filtered yet
    Line m_padded;
    std::array<Line, kKept> m_filtered;
};

} // namespace

ExrChroma::ExrChroma(const ExrFile &file, const std::vector<ExrTarget *> &colors, CTImageChannel::Fill fill)
    : m_header(file.header(colors.front()->channel.part))
    , m_colors(colors)
{
    const ExrChannel &color = colors.front()->channel;
    const Imath::Box2i &data = m_header.dataWindow();
    const auto names = ChromaNames::of(color.name);
    const auto pixels = std::uint64_t(std::int64_t(data.max.x) - data.min.x + 1)
        * std::uint64_t(std::int64_t(data.max.y) - data.min.y + 1);
    if (!file.source().canHold(pixels * 3 * sizeof(half), file.expansion(color.part)))
        throw ImageError(TLoadFailure::Damaged,
                         file.nameOf(color.part) + " announces more pixels than the file can hold");
    for (const std::string &name : {names.luma, names.redness, names.blueness}) {
        const Imf::Channel &stored = *m_header.channels().findChannel(name);
        const Imath::V2i sampling(stored.xSampling, stored.ySampling);
        const ExrSpan columns = ExrSpan::within(data.min.x, data.max.x, sampling.x);
        const ExrSpan rows = ExrSpan::within(data.min.y, data.max.y, sampling.y);
        const TPlaneFormat format{columns.count, rows.count, sizeof(half), true, 1};
        m_sources.push_back({{{}, name, color.part, stored.type, sampling, ExrOrigin::Stored},
                             Imf::HALF,
                             columns,
                             rows,
                             CTImageChannel(name, format, fill)});
    }
}

void ExrChroma::makeColors(const std::function<void(double)> &report)
{
    ChromaLines lines(m_header, m_sources);
    const ExrSpan rows = m_sources.front().rows;
    const auto width = std::size_t(m_sources.front().columns.count);
    const bool isFiltered = m_sources.back().channel.sampling.x == 2;
    std::array<Line, 3> colors{Line(width), Line(width), Line(width)};
    Line result(width);
    for (int row = rows.first - 1; row <= rows.end(); ++row) {
        lines.makeColor(row, colors[2]);
        if (row > rows.first) {
            const Rgba *around[] = {colors[0].data(), colors[1].data(), colors[2].data()};
            // The filters' ringing leaves colours that are none.
            if (isFiltered)
                Imf::RgbaYca::fixSaturation(lines.weights(), int(width), around, result.data());
            store(row - 1, isFiltered ? result : colors[1]);
            if ((row - rows.first) % (rows.count / 16 + 1) == 0)
                report(double(row - rows.first) / double(rows.count));
        }
        std::rotate(colors.begin(), colors.begin() + 1, colors.end());
    }
}

void ExrChroma::store(int row, const std::vector<Imf::Rgba> &line)
{
    for (ExrTarget *target : m_colors) {
        const ExrSpan columns = ExrSpan::common(target->columns, m_sources.front().columns);
        if (row < target->rows.first || row >= target->rows.end())
            continue;
        const char component = target->channel.name.back();
        const auto member = component == 'R' ? &Rgba::r : component == 'G' ? &Rgba::g : &Rgba::b;
        const std::size_t at = std::size_t(row - target->rows.first) * std::size_t(target->columns.count)
            + std::size_t(columns.first - target->columns.first);
        const Rgba *from = line.data() + (columns.first - m_sources.front().columns.first);
        std::byte *to = target->plane.data() + at * target->plane.format().pixelBytes();
        if (target->type == Imf::HALF)
            std::transform(from, from + columns.count, reinterpret_cast<half *>(to),
                           [member](const Rgba &pixel) { return pixel.*member; });
        else
            std::transform(from, from + columns.count, reinterpret_cast<float *>(to),
                           [member](const Rgba &pixel) { return float(pixel.*member); });
    }
}

} // namespace TImageLibrary

#include "exrpresent.h"

#include "imageerror.h"

#include <IexBaseExc.h>

#include <algorithm>
#include <cstring>
#include <optional>

namespace TImageLibrary {

namespace {

using Box = TPartialLoad::Box;

/// What of the pixels lies in the picture, counted from its corner.
std::optional<Box> within(const Imath::Box2i &pixels, const Imath::Box2i &picture)
{
    const Imath::V2i first(std::max(pixels.min.x, picture.min.x), std::max(pixels.min.y, picture.min.y));
    const Imath::V2i last(std::min(pixels.max.x, picture.max.x), std::min(pixels.max.y, picture.max.y));
    if (first.x > last.x || first.y > last.y)
        return std::nullopt;
    return Box{first.x - picture.min.x, first.y - picture.min.y, last.x - first.x + 1, last.y - first.y + 1};
}

/// Makes one of boxes side by side, then of rows of them that lie one below the other.
void add(std::vector<Box> &boxes, const Box &box)
{
    if (!boxes.empty()) {
        Box &last = boxes.back();
        if (last.y == box.y && last.height == box.height && last.x + last.width == box.x) {
            last.width += box.width;
            return;
        }
        if (last.x == box.x && last.width == box.width && last.y + last.height == box.y) {
            last.height += box.height;
            return;
        }
    }
    boxes.push_back(box);
}

} // namespace

bool PresentChunks::read(const Range &chunks, const std::function<void()> &function)
{
    for (std::uint64_t index = chunks.begin; index < chunks.end; ++index) {
        if (!isThere(index))
            return false;
    }
    try {
        function();
    } catch (const ImageError &fault) {
        if (fault.kind() != TLoadFailure::Damaged)
            throw;
        return false;
    } catch (const Iex::BaseExc &) {
        return false; // OpenEXR's word for damage
    }
    std::fill(m_isRead.begin() + std::ptrdiff_t(chunks.begin), m_isRead.begin() + std::ptrdiff_t(chunks.end),
              1);
    return true;
}

bool PresentChunks::isAnyRead() const
{
    return std::any_of(m_isRead.begin(), m_isRead.end(), [](std::uint8_t isRead) { return isRead != 0; });
}

void PresentChunks::clearUnread(ExrTarget &target) const
{
    const Imath::V2i &sampling = target.channel.sampling;
    const TPlaneFormat &format = target.plane.format();
    for (std::uint64_t index = 0; index < m_isRead.size(); ++index) {
        if (m_isRead[index] != 0)
            continue;
        const Imath::Box2i box = layout().box(index);
        const ExrSpan columns =
            ExrSpan::common(ExrSpan::within(box.min.x, box.max.x, sampling.x), target.columns);
        const ExrSpan rows = ExrSpan::common(ExrSpan::within(box.min.y, box.max.y, sampling.y), target.rows);
        for (int row = rows.first; row < rows.end() && columns.count > 0; ++row)
            std::memset(target.plane.data() + std::size_t(row - target.rows.first) * format.rowBytes()
                            + std::size_t(columns.first - target.columns.first) * format.pixelBytes(),
                        0, std::size_t(columns.count) * format.pixelBytes());
    }
}

void PresentChunks::tell(TPartialLoad &load, const Imath::Box2i &picture) const
{
    std::vector<Box> rows;
    for (std::uint64_t index = 0; index < m_isRead.size(); ++index) {
        const auto box = within(layout().box(index), picture);
        if (!box)
            continue;
        ++load.chunks;
        if (m_isRead[index] != 0)
            continue;
        const bool isUnwritten = m_survey.chunk(m_part, index) == ExrSurvey::Chunk::Unwritten;
        ++(isUnwritten ? load.unwritten : load.damaged);
        add(rows, *box);
    }
    for (const Box &row : rows)
        add(load.unread, row);
}

} // namespace TImageLibrary

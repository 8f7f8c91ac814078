#pragma once

#include "exrplan.h"
#include "exrsurvey.h"
#include "tpartialload.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace TImageLibrary {

/// The chunks of a part's full picture that are to be read, where others are not there or damaged, and which of them were.
/// Many threads may ask and note at once, each of a chunk of its own.
class PresentChunks final {
public:
    /// The survey outlives this.
    PresentChunks(const ExrSurvey &survey, int part)
        : m_survey(survey)
        , m_part(part)
        , m_isRead(survey.layout(part).fullCount(), false)
    { }

    struct Range {
        std::uint64_t begin;
        std::uint64_t end;
    };

    const ExrLayout &layout() const { return m_survey.layout(m_part); }
    std::string packed(std::uint64_t index) const { return m_survey.packed(m_part, index); }
    bool isThere(std::uint64_t index) const
    {
        return m_survey.chunk(m_part, index) == ExrSurvey::Chunk::Found;
    }
    /// Has chunks read, if all of them are there. `function` throws where one is damaged, of which it has kept nothing
    /// then; false where not all were read.
    bool read(const Range &chunks, const std::function<void()> &function);

    /// Clears what of a plane is in no chunk that was read.
    void clearUnread(ExrTarget &target) const;
    /// Adds the part to what was read of the picture, whose pixels are counted as the chunks' are.
    void tell(TPartialLoad &load, const Imath::Box2i &picture) const;
    bool isAnyRead() const;

private:
    const ExrSurvey &m_survey;
    int m_part;
    std::vector<std::uint8_t> m_isRead;
};

} // namespace TImageLibrary

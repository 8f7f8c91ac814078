#include "loadprogress.h"

#include <algorithm>
#include <utility>

LoadProgress::LoadProgress(std::function<std::int64_t()> seconds)
    : m_seconds(std::move(seconds))
{ }

LoadProgress::Step LoadProgress::report(float fraction)
{
    Step step;
    if (!(fraction < 1.0F)) { // also what is no number
        step.restoreCursor = m_state == State::Waiting;
        m_state = State::Idle;
        return step;
    }
    step.barVisible = true;
    step.value = static_cast<int>(std::max(fraction, 0.0F) * static_cast<float>(kRange));
    if (m_state == State::Idle) {
        m_start = m_seconds();
        m_state = State::Loading;
    } else if (m_state == State::Loading && m_seconds() - m_start >= 1) {
        m_state = State::Waiting;
        step.setWaitCursor = true;
    }
    return step;
}

#pragma once

#include <cstdint>
#include <map>

enum class FrameState {
    Whole, ///< or not looked at yet
    InTheMaking,
    Missing,
    Broken,
};

/// What is known of the frames of a sequence that were looked at.
class FrameStates final {
public:
    void set(std::int32_t frame, FrameState state)
    {
        if (state == FrameState::Whole)
            m_states.erase(frame);
        else
            m_states[frame] = state;
    }
    void clear() { m_states.clear(); }

    /// The worst among the frames from `first` to `last`.
    FrameState worst(std::int32_t first, std::int32_t last) const
    {
        FrameState worst = FrameState::Whole;
        for (auto at = m_states.lower_bound(first); at != m_states.end() && at->first <= last; ++at)
            worst = at->second > worst ? at->second : worst;
        return worst;
    }

    bool operator==(const FrameStates &) const = default;

private:
    std::map<std::int32_t, FrameState> m_states;
};

#pragma once

#include <cstdint>
#include <functional>

/// Turns the image library's progress reports into what the window must do. One object serves one load after another.
class LoadProgress final {
public:
    static constexpr int kRange = 10000;

    struct Step {
        bool barVisible = false;
        int value = 0; ///< of the bar, 0 to kRange
        bool setWaitCursor = false;
        bool restoreCursor = false; ///< takes back what an earlier step set
    };

    /// `seconds` tells the time in whole seconds from any start.
    explicit LoadProgress(std::function<std::int64_t()> seconds);

    /// From 0 to 1; 1 ends the load.
    Step report(float fraction);

private:
    enum class State { Idle, Loading, Waiting };

    std::function<std::int64_t()> m_seconds;
    State m_state = State::Idle;
    std::int64_t m_start = 0;
};

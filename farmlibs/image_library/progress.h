#pragma once

#include "iimagecore.h"

namespace TImageLibrary {

/// Tells a caller how far its load is. Fractions only grow, and the end is told once, when this dies: whatever becomes
/// of the load, a progress bar is taken away.
class Progress final {
public:
    Progress(TLoadProgress callback, void *user)
        : m_callback(callback)
        , m_user(user)
    { }
    ~Progress()
    {
        if (m_callback)
            m_callback(1.0F, m_user);
    }
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    void report(double fraction)
    {
        const auto value = static_cast<float>(fraction);
        if (!m_callback || !(value > m_last && value < 1.0F))
            return;
        m_last = value;
        m_callback(value, m_user);
    }

private:
    TLoadProgress m_callback;
    void *m_user;
    float m_last = 0.0F;
};

} // namespace TImageLibrary

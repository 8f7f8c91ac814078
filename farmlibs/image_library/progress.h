#pragma once

#include "iimagecore.h"

namespace TImageLibrary {

/// Steers a load that runs ahead of need, on the thread that decodes.
class AheadControl {
public:
    AheadControl() = default;
    virtual ~AheadControl() = default;
    AheadControl(const AheadControl &) = delete;
    AheadControl &operator=(const AheadControl &) = delete;

    /// Waits while others have the right of way; throws when the load is to end.
    virtual void goOn(double fraction) = 0;
    /// Whether the load keeps to its thread; who asks can have others join in later on.
    virtual bool isAlone() = 0;
};

/// Tells a caller how far its load is. Fractions only grow, and the end is told once, when this dies: whatever becomes
/// of the load, a progress bar is taken away.
class Progress final {
public:
    Progress(TLoadProgress callback, void *user)
        : m_callback(callback)
        , m_user(user)
    { }
    /// Of a load ahead, which nobody watches.
    explicit Progress(AheadControl &control)
        : m_control(&control)
    { }
    ~Progress()
    {
        if (m_callback)
            m_callback(1.0F, m_user);
    }
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    bool isAhead() const { return m_control != nullptr; }
    /// Whether the load keeps to one thread for now.
    bool isAlone() const { return m_control && m_control->isAlone(); }

    /// Throws where a load ahead is to end.
    void report(double fraction)
    {
        if (m_control)
            m_control->goOn(fraction);
        const auto value = static_cast<float>(fraction);
        if (!m_callback || !(value > m_last && value < 1.0F))
            return;
        m_last = value;
        m_callback(value, m_user);
    }

private:
    TLoadProgress m_callback = nullptr;
    void *m_user = nullptr;
    AheadControl *m_control = nullptr;
    float m_last = 0.0F;
};

} // namespace TImageLibrary

#include "playback.h"

#include <QtCore/QPointer>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr float kDefaultFramesPerSecond = 24.0F;
constexpr double kMillisecondsPerSecond = 1000.0;

} // namespace

Playback::Playback(QObject *parent)
    : QObject(parent)
{ }

Playback::~Playback() = default;

double Playback::period() const
{
    return std::min(kMillisecondsPerSecond / double(m_framesPerSecond),
                    double(std::numeric_limits<int>::max()));
}

int Playback::interval() const
{
    return int(period());
}

void Playback::setFramesPerSecond(float framesPerSecond)
{
    m_framesPerSecond =
        framesPerSecond > 0.0F && std::isfinite(framesPerSecond) ? framesPerSecond : kDefaultFramesPerSecond;
}

void Playback::start()
{
    if (m_timer)
        return;
    m_timer = std::make_unique<QTimer>();
    m_timer->setSingleShot(true);
    m_timer->setTimerType(Qt::PreciseTimer);
    connect(m_timer.get(), &QTimer::timeout, this, &Playback::step);
    m_isPostponed = false;
    m_clock.start();
    m_due = 0.0;
    wait();
    m_measured.start();
    m_steps = 0;
    Q_EMIT playingChanged(true);
}

void Playback::stop()
{
    if (!m_timer)
        return;
    m_timer->disconnect(this);
    m_timer.release()->deleteLater(); // it may be what called
    Q_EMIT playingChanged(false);
}

void Playback::goOn()
{
    if (m_timer && m_isPostponed)
        step();
}

void Playback::step()
{
    const QPointer<Playback> self(this);
    m_isPostponed = false;
    Q_EMIT stepDue();
    if (!self || !m_timer || m_isPostponed)
        return;
    measure();
    wait();
}

/// For the end of the period that has begun, with its fraction of a millisecond; late by a period or more, from now on.
void Playback::wait()
{
    const double now = double(m_clock.nsecsElapsed()) * 1e-6;
    m_due += period();
    if (now - m_due > period())
        m_due = now;
    m_timer->start(int(std::lround(std::clamp(m_due - now, 0.0, double(std::numeric_limits<int>::max())))));
}

void Playback::measure()
{
    ++m_steps;
    const qint64 elapsed = m_measured.elapsed();
    if (double(elapsed) < kMillisecondsPerSecond)
        return;
    Q_EMIT rateMeasured(m_steps * kMillisecondsPerSecond / double(elapsed));
    m_steps = 0;
    m_measured.restart();
}

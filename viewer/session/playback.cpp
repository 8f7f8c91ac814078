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

int Playback::interval() const
{
    const double milliseconds = kMillisecondsPerSecond / double(m_framesPerSecond);
    return int(std::min(milliseconds, double(std::numeric_limits<int>::max())));
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
    m_timer->start(interval());
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

void Playback::step()
{
    const QPointer<Playback> self(this);
    Q_EMIT stepDue();
    if (!self || !m_timer)
        return;
    measure();
    m_timer->start(interval());
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

#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <memory>

/// Keeps the time of playback: asks for one step after the other and measures how fast they really come.
/// Steps are due at whole periods from the start, whatever each of them takes. None is left out: where they take longer
/// than the period, they follow each other at once, and the periods count from the last one.
class Playback final : public QObject {
    Q_OBJECT

public:
    explicit Playback(QObject *parent = nullptr);
    ~Playback() override;

    bool isPlaying() const { return bool(m_timer); }
    float framesPerSecond() const { return m_framesPerSecond; }
    /// Whole milliseconds from a step to the next.
    int interval() const;

    /// 0, less, or what is no number becomes 24.
    void setFramesPerSecond(float framesPerSecond);

    /// While a step is asked for: it cannot be taken yet. No other is asked for until goOn().
    void postpone() { m_isPostponed = true; }

public Q_SLOTS:
    void start();
    void stop();
    /// Asks for a postponed step again.
    void goOn();

Q_SIGNALS:
    void playingChanged(bool playing);
    void stepDue();
    /// Steps a second over the last second or so.
    void rateMeasured(double framesPerSecond);

private:
    double period() const;
    void step();
    void wait();
    void measure();

    float m_framesPerSecond = 24.0F;
    std::unique_ptr<QTimer> m_timer; // there only while playing
    QElapsedTimer m_clock; // since the start
    double m_due = 0.0; // milliseconds on it, of the next step
    QElapsedTimer m_measured;
    int m_steps = 0; // since m_measured was started
    bool m_isPostponed = false;
};

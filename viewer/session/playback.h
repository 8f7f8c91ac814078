#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <memory>

/// Keeps the time of playback: asks for one step after the other and measures how fast they really come.
/// The time that a step takes adds to the period.
class Playback final : public QObject {
    Q_OBJECT

public:
    explicit Playback(QObject *parent = nullptr);
    ~Playback() override;

    bool isPlaying() const { return bool(m_timer); }
    float framesPerSecond() const { return m_framesPerSecond; }
    /// Milliseconds between the end of a step and the next.
    int interval() const;

    /// 0, less, or what is no number becomes 24.
    void setFramesPerSecond(float framesPerSecond);

public Q_SLOTS:
    void start();
    void stop();

Q_SIGNALS:
    void playingChanged(bool playing);
    void stepDue();
    /// Steps a second over the last second or so.
    void rateMeasured(double framesPerSecond);

private:
    void step();
    void measure();

    float m_framesPerSecond = 24.0F;
    std::unique_ptr<QTimer> m_timer; // there only while playing
    QElapsedTimer m_measured;
    int m_steps = 0; // since m_measured was started
};

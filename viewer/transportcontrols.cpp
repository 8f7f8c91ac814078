#include "transportcontrols.h"

#include "ui_imageviewer.h"
#include "viewericons.h"

#include <ui/numbertext.h>
#include <viewer/session/viewersession.h>

#include <QtCore/QLocale>
#include <QtCore/QSignalBlocker>

#include <algorithm>
#include <utility>

namespace {

constexpr int kFieldMargins = 14; // a frame, and room for the cursor
constexpr int kLabelMargins = 2; // what a label adds
constexpr int kFewestDigits = 4;

void widen(QLineEdit &field, int digits)
{
    field.setFixedWidth(field.fontMetrics().horizontalAdvance(QString(digits, QLatin1Char('0')))
                        + kFieldMargins);
}

/// To what it takes for a text with that many digits.
void widen(QLabel &label, const QString &text, int digits)
{
    const QString widest = text.arg(QString(digits, QLatin1Char('0')));
    label.setFixedWidth(label.fontMetrics().horizontalAdvance(widest) + kLabelMargins);
}

} // namespace

TransportControls::TransportControls(const Ui::ImageViewerClass &form, ViewerSession &session)
    : m_form(form)
    , m_session(session)
{
    m_form.imageAllocation->setCache(&m_session.cache());
    connectTimeline();
    connectFields();
    connect(&m_session, &ViewerSession::opened, this, &TransportControls::showSequence);
    connect(&m_session, &ViewerSession::rangeChanged, this, &TransportControls::showRange);
    connect(&m_session, &ViewerSession::frameChanged, this, &TransportControls::showFrame);
    connect(&m_session, &ViewerSession::loaded, this, [this] {
        showStates();
        // A frame that was cached changes nothing in the cache.
        if (!m_session.lastLoad().shown() || m_session.lastLoad().decoded)
            m_form.imageAllocation->update();
    });
    for (const auto changed : {&ViewerSession::cacheTrimmed, &ViewerSession::readAhead})
        connect(&m_session, changed, m_form.imageAllocation, qOverload<>(&QWidget::update));
    showSequence();
}

void TransportControls::connectTimeline()
{
    imageTimeline *timeline = m_form.timeline;
    connect(m_form.goBegin, &QAbstractButton::clicked, timeline, &imageTimeline::moveFirst);
    connect(m_form.stepBackward, &QAbstractButton::clicked, timeline, &imageTimeline::movePrevious);
    connect(m_form.stepForward, &QAbstractButton::clicked, timeline, &imageTimeline::moveNext);
    connect(m_form.goEnd, &QAbstractButton::clicked, timeline, &imageTimeline::moveLast);
    connect(timeline, &imageTimeline::held, this, [this](bool held) { m_session.setHeld(held); });
    const auto settle = [this](int frame, bool addChunk, bool addFrame, bool removeChunk, bool removeFrame) {
        m_session.setFrame(frame);
        m_session.mark(frame, {addChunk, addFrame, removeChunk, removeFrame});
    };
    connect(timeline, &imageTimeline::frameChanged, this, settle);
    connect(timeline, &imageTimeline::frameScrubbed, this,
            [this, settle](int frame, bool addChunk, bool addFrame, bool removeChunk, bool removeFrame) {
                if (m_form.liveScrubbing->isChecked()) {
                    settle(frame, addChunk, addFrame, removeChunk, removeFrame);
                    return;
                }
                m_form.currentFrame->setText(QString::number(frame));
                m_session.mark(frame, {addChunk, addFrame, removeChunk, removeFrame});
            });
}

void TransportControls::connectFields()
{
    connect(m_form.currentFrame, &QLineEdit::editingFinished, this, &TransportControls::editFrame);
    for (QLineEdit *field : {m_form.startFrame, m_form.endFrame, m_form.byFrame})
        connect(field, &QLineEdit::editingFinished, this, &TransportControls::editRange);
    connect(m_form.fps, &QLineEdit::editingFinished, this, &TransportControls::editFramesPerSecond);
    Playback &playback = m_session.playback();
    m_form.fps->setText(QString::number(double(playback.framesPerSecond())));
    connect(m_form.playAndStop, &QAbstractButton::clicked, &m_session, &ViewerSession::togglePlaying);
    connect(&playback, &Playback::playingChanged, this, &TransportControls::showPlaying);
    connect(&playback, &Playback::rateMeasured, this, [this](double rate) {
        m_form.playbackRate->setText(tr("%1 fps").arg(QLocale().toString(rate, 'f', 1)));
    });
}

void TransportControls::retranslate()
{
    const FrameSequence &sequence = m_session.sequence();
    m_form.startFrameLabel->setText(tr("S:(%1)").arg(sequence.first()));
    m_form.endFrameLabel->setText(tr("E:(%1)").arg(sequence.last()));
    m_form.totalFramesLabel->setText(tr("%1 frame(s)").arg(sequence.frames.size()));
    fixPlaces();
    showPlayButton();
}

// As wide as any number of the sequence, and any rate: nothing moves while it plays.
void TransportControls::fixPlaces()
{
    const FrameSequence &sequence = m_session.sequence();
    const auto digits = int(std::max({qsizetype(kFewestDigits), QString::number(sequence.first()).size(),
                                      QString::number(sequence.last()).size()}));
    widen(*m_form.startFrameLabel, tr("S:(%1)"), digits);
    widen(*m_form.endFrameLabel, tr("E:(%1)"), digits);
    for (QLineEdit *field : {m_form.startFrame, m_form.endFrame, m_form.currentFrame})
        widen(*field, digits);
    widen(*m_form.byFrame, 2);
    widen(*m_form.fps, kFewestDigits);
    const QFontMetrics metrics(m_form.playbackRate->font());
    m_form.playbackRate->setFixedWidth(metrics.horizontalAdvance(tr("%1 fps").arg(999.9, 0, 'f', 1)));
}

void TransportControls::showSequence()
{
    retranslate();
    const PlaybackRange &range = m_session.range();
    m_form.startFrame->setText(QString::number(range.start));
    m_form.endFrame->setText(QString::number(range.end));
    m_form.byFrame->setText(QString::number(range.step));
    m_form.imageAllocation->setFileMask(m_session.sequence().framesPath);
    for (QWidget *control : std::initializer_list<QWidget *>{m_form.timeline, m_form.imageAllocation,
                                                             m_form.imageMarker, m_form.transport})
        control->setEnabled(m_session.canPlay());
    // A single picture has nothing to step through.
    for (QWidget *row : std::initializer_list<QWidget *>{m_form.frameBlock, m_form.transport,
                                                         m_form.totalFramesLabel, m_form.liveScrubbing})
        row->setVisible(m_session.canPlay());
    showRange();
}

void TransportControls::showRange()
{
    const std::set<long> &frames = m_session.sequence().frames;
    const PlaybackRange &range = m_session.range();
    // Steps stay within the range: the timeline knows of no frame outside it.
    const std::vector<std::int32_t> &played = m_session.playedFrames();
    m_form.timeline->setFrames({played.begin(), played.end()});
    m_form.timeline->setRange(range.start, range.end);
    m_form.timeline->setByFrame(range.step);
    const auto show = [&frames, &range](FrameStrip &strip) {
        strip.setFrames(frames);
        strip.setRange(range.start, range.end);
        strip.update();
    };
    show(*m_form.imageAllocation);
    show(*m_form.imageMarker);
    showFrame(m_session.frame());
}

void TransportControls::showStates()
{
    const FrameStates &states = m_session.states();
    if (states == m_states)
        return;
    m_states = states;
    m_form.timeline->setStates(states);
    m_form.timeline->update();
    for (FrameStrip *strip :
         std::initializer_list<FrameStrip *>{m_form.imageAllocation, m_form.imageMarker}) {
        strip->setStates(states);
        strip->update();
    }
}

void TransportControls::showFrame(int frame)
{
    m_form.currentFrame->setText(QString::number(frame));
    // A drag shows where it is, and settles when it ends.
    if (m_session.isHeld())
        return;
    m_form.timeline->setPosition(frame);
    m_form.timeline->update();
}

void TransportControls::showPlaying()
{
    showPlayButton();
    m_form.playbackRate->clear();
    // A field that is disabled may open what was typed, which ends the playback again.
    for (QWidget *control :
         std::initializer_list<QWidget *>{m_form.framesPath, m_form.pickFramesPath, m_form.reloadButton})
        control->setEnabled(!m_session.playback().isPlaying());
}

void TransportControls::showPlayButton()
{
    const bool playing = m_session.playback().isPlaying();
    m_form.playAndStop->setIcon(playerIcon(playing ? QStringLiteral("stop") : QStringLiteral("play")));
    m_form.playAndStop->setAccessibleName(playing ? tr("Stop") : tr("Play"));
    m_form.playAndStop->setToolTip(playing ? tr("Stop (Space)") : tr("Play (Space)"));
}

void TransportControls::editRange()
{
    const RangeEdit edit = correctedRange(m_session.sequence(), m_form.startFrame->text(),
                                          m_form.endFrame->text(), m_form.byFrame->text());
    const std::pair<QLineEdit *, const QString &> fields[] = {
        {m_form.startFrame, edit.start}, {m_form.endFrame, edit.end}, {m_form.byFrame, edit.step}};
    for (const auto &[field, text] : fields) {
        const QSignalBlocker blocker(field);
        if (!text.isNull())
            field->setText(text);
    }
    m_session.setRange(edit.range);
}

void TransportControls::editFrame()
{
    m_session.setFrame(m_form.currentFrame->text().toInt());
    m_form.currentFrame->setText(QString::number(m_session.frame()));
}

void TransportControls::editFramesPerSecond()
{
    Playback &playback = m_session.playback();
    playback.setFramesPerSecond(readNumber(m_form.fps->text()).value_or(0.0F));
    m_form.fps->setText(QString::number(double(playback.framesPerSecond())));
}

bool TransportControls::takeKey(int key)
{
    switch (key) {
    case Qt::Key_Left:
        m_form.timeline->movePrevious();
        return true;
    case Qt::Key_Right:
        m_form.timeline->moveNext();
        return true;
    case Qt::Key_Up:
        m_form.timeline->moveFirst();
        return true;
    case Qt::Key_Down:
        m_form.timeline->moveLast();
        return true;
    case Qt::Key_Space:
        m_session.togglePlaying();
        return true;
    default:
        return false;
    }
}

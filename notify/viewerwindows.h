#pragma once

#include <viewer/frames/cachetotals.h>
#include <viewer/session/jobframes.h>
#include <viewer/viewersettings.h>

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>

class EventsList;
class ImageViewer;
class NotifyEvent;
class QWidget;
struct Settings;

/// Frames of an event as a viewer takes them; independent of the event, which may go.
struct EventFrames {
    QString mask;
    JobFrames job;
};

/// Collects the mask and the records of the event, and the chunks of its job among all events.
EventFrames framesOf(const NotifyEvent &event, const EventsList &events);

/// The viewer windows of the program and the frame budgets that they share. Closes them when it ends.
/// Where OpenGL cannot be used no viewer comes up, and a message says so.
class ViewerWindows final : public QObject {
    Q_OBJECT

public:
    /// `owner` is in front of whom messages about frames open; it outlives this.
    explicit ViewerWindows(QWidget &owner);
    ~ViewerWindows() override;

    /// Applies the budgets, what is shown of incomplete frames and what is read ahead at once, the rest to windows to come.
    void setSettings(const Settings &settings);
    /// Makes a viewer window, not shown yet, which deletes itself when closed; null without OpenGL, which the message says
    /// in front of `asker`. It is a window of its own: neither kept above the list nor gone with it.
    ImageViewer *create(QWidget *asker);
    /// Opens a viewer on the frames; `maskIsSequence` as in FramesRequest.
    void open(const EventFrames &frames, bool maskIsSequence);
    /// Opens a viewer on the result of an event that has just come in, when control returns to the event loop. Leaves it
    /// out while as many viewers are open or waiting as may open by themselves.
    void openSoon(const NotifyEvent &event, const EventsList &events);

private:
    qsizetype openCount() const;
    void openWaiting();

    QWidget &m_owner;
    CacheTotals m_totals;
    ViewerSettings m_settings;
    QList<QPointer<ImageViewer>> m_viewers;
    QList<EventFrames> m_waiting;
    bool m_opening = false;
};

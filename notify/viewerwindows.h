#pragma once

#include <viewer/frames/cachetotals.h>
#include <viewer/session/jobframes.h>

#include <QtCore/QList>
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

/// The mask, the records of the event, and the chunks of its job among all events.
EventFrames framesOf(const NotifyEvent &event, const EventsList &events);

/// The viewer windows of the program and the frame budgets that they share. Closes them when it ends.
class ViewerWindows final {
public:
    ViewerWindows() = default;
    ~ViewerWindows();
    Q_DISABLE_COPY_MOVE(ViewerWindows)

    int count() const;

    /// The budgets hold at once, the rest for windows to come.
    void setSettings(const Settings &settings);
    /// A new viewer window, not shown yet; it deletes itself when closed. OpenGL must be usable.
    ImageViewer *create(QWidget *parent);
    /// Brings the window up with the frames; `maskIsSequence` as in FramesRequest.
    static void show(ImageViewer &viewer, const EventFrames &frames, bool maskIsSequence);

private:
    CacheTotals m_totals;
    float m_exrImportGamma = 1.0F;
    float m_defaultImportGamma = 1.0F;
    QList<QPointer<ImageViewer>> m_viewers;
};

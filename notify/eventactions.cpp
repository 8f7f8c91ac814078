#include "eventactions.h"

#include "resultopener.h"
#include "viewerwindows.h"

#include <notify/events/eventslist.h>
#include <notify/events/notifyevent.h>
#include <notify/settings/settings.h>

void EventActions::openOutputs(const QList<quint64> &eventIds) const
{
    ResultOpener::openOutputs(m_place.events.find(eventIds), &m_place.window);
}

void EventActions::openFrames(const QList<quint64> &eventIds) const
{
    // All of them first: a message box runs an event loop, in which events may go.
    QList<EventFrames> frames;
    for (const NotifyEvent *event : m_place.events.find(eventIds)) {
        if (event->has(EventKey::kFramesMask))
            frames += framesOf(*event, m_place.events);
    }
    for (const EventFrames &one : frames)
        m_place.viewers.open(one, true);
}

void EventActions::openFramesExternally(const QList<quint64> &eventIds) const
{
    ResultOpener::openFramesExternally(m_place.events.find(eventIds), m_place.settings.imageViewer,
                                       &m_place.window);
}

void EventActions::openEvent(quint64 eventId) const
{
    const NotifyEvent *event = m_place.events.find(eventId);
    if (!event)
        return;
    if (event->has(EventKey::kFramesMask))
        openFrames({eventId});
    else if (event->has(EventKey::kFramesPath))
        openOutputs({eventId});
}

void EventActions::openResult(const NotifyEvent &event) const
{
    if (m_place.settings.imageViewerMode == 1)
        ResultOpener::startExternalViewer(m_place.settings.imageViewer, event.text(EventKey::kFramesMask));
    else
        m_place.viewers.openSoon(event, m_place.events);
}

#include "viewerwindows.h"

#include <notify/events/eventslist.h>
#include <notify/events/notifyevent.h>
#include <notify/settings/settings.h>
#include <viewer/frames/framesequence.h>
#include <viewer/imageviewer.h>

#include <algorithm>

EventFrames framesOf(const NotifyEvent &event, const EventsList &events)
{
    EventFrames frames{event.text(EventKey::kFramesMask), {}};
    if (event.job)
        frames.job.job = *event.job;
    if (event.chunk)
        frames.job.chunk = *event.chunk;
    if (!event.job)
        return frames;
    for (int row = 0; row < events.size(); ++row) {
        const NotifyEvent &other = events.at(row);
        if (other.chunk && other.chunk->getJobId() == event.job->getJobId())
            frames.job.chunks.push_back(*other.chunk);
    }
    return frames;
}

ViewerWindows::~ViewerWindows()
{
    for (const QPointer<ImageViewer> &viewer : std::as_const(m_viewers))
        delete viewer;
}

int ViewerWindows::count() const
{
    return int(std::count_if(m_viewers.begin(), m_viewers.end(),
                             [](const QPointer<ImageViewer> &viewer) { return !viewer.isNull(); }));
}

void ViewerWindows::setSettings(const Settings &settings)
{
    m_totals.videoMemoryBudget = settings.imageViewerMaxGPUCache;
    m_totals.mainMemoryBudget = settings.imageViewerMaxRAMCache;
    m_exrImportGamma = settings.imageViewerExrImportGamma;
    m_defaultImportGamma = settings.imageViewerDefaultImportGamma;
}

ImageViewer *ViewerWindows::create(QWidget *parent)
{
    m_viewers.removeAll(QPointer<ImageViewer>());
    auto *viewer = new ImageViewer(m_totals, {m_exrImportGamma, m_defaultImportGamma}, parent);
    m_viewers.append(viewer);
    return viewer;
}

void ViewerWindows::show(ImageViewer &viewer, const EventFrames &frames, bool maskIsSequence)
{
    viewer.setJob(frames.job);
    viewer.show();
    viewer.raise();
    viewer.setFramesPath(
        {.path = frames.mask.toStdString(), .force = true, .maskIsSequence = maskIsSequence});
}

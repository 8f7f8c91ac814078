#include "viewerwindows.h"

#include <notify/events/eventslist.h>
#include <notify/events/notifyevent.h>
#include <notify/settings/settings.h>
#include <ui/product.h>
#include <ui/qskinnedmessagebox.h>
#include <ui/tappstate.h>
#include <ui/windowplacement.h>
#include <viewer/frames/framesequence.h>
#include <viewer/imageviewer.h>
#include <viewer/session/viewersession.h>

#include <QtCore/QTimer>
#include <QtGui/QScreen>

#include <algorithm>

namespace {

// A farm that finishes single frames by the hundred must not bury the desktop; the rest wait in the list.
constexpr qsizetype kMaxAutomaticViewers = 20;

} // namespace

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

ViewerWindows::ViewerWindows(QWidget &owner)
    : m_owner(owner)
{ }

ViewerWindows::~ViewerWindows()
{
    for (const QPointer<ImageViewer> &viewer : std::as_const(m_viewers))
        delete viewer;
}

qsizetype ViewerWindows::openCount() const
{
    return std::count_if(m_viewers.begin(), m_viewers.end(),
                         [](const QPointer<ImageViewer> &viewer) { return !viewer.isNull(); });
}

void ViewerWindows::setSettings(const Settings &settings)
{
    m_totals.videoMemoryBudget = settings.imageViewerMaxGPUCache;
    m_totals.mainMemoryBudget = settings.imageViewerMaxRAMCache;
    m_settings = {settings.imageViewerExrImportGamma, settings.imageViewerDefaultImportGamma,
                  settings.viewerShowIncompleteFrames, settings.viewerReadAhead};
    for (const QPointer<ImageViewer> &viewer : std::as_const(m_viewers)) {
        if (!viewer)
            continue;
        viewer->session().applyBudgets();
        viewer->session().setShowIncomplete(m_settings.showIncomplete);
        viewer->session().setReadAhead(m_settings.readAhead);
    }
}

ImageViewer *ViewerWindows::create(QWidget *asker)
{
    if (!TAppState::instance().openGlUsable) {
        QSkinnedMessageBox::critical(asker, product::kProductTitle,
                                     tr("OpenGL not supported by your GPU! Image viewer cannot be used!"),
                                     QMessageBox::Ok);
        return nullptr;
    }
    m_viewers.removeAll(QPointer<ImageViewer>());
    auto *viewer = new ImageViewer(m_totals, m_settings);
    if (!m_viewers.isEmpty()) {
        const ImageViewer &last = *m_viewers.last();
        viewer->move(cascaded(last.geometry(), viewer->size(), last.screen()->availableGeometry()));
    }
    m_viewers.append(viewer);
    return viewer;
}

void ViewerWindows::open(const EventFrames &frames, bool maskIsSequence)
{
    ImageViewer *viewer = create(&m_owner);
    if (!viewer)
        return;
    viewer->setJob(frames.job);
    viewer->show();
    viewer->raise();
    viewer->setFramesPath(
        {.path = frames.mask.toStdString(), .force = true, .maskIsSequence = maskIsSequence});
}

void ViewerWindows::openSoon(const NotifyEvent &event, const EventsList &events)
{
    if (openCount() + m_waiting.size() >= kMaxAutomaticViewers)
        return;
    // A load takes its time, and what else has arrived is not to wait for it.
    m_waiting += framesOf(event, events);
    QTimer::singleShot(0, this, &ViewerWindows::openWaiting);
}

void ViewerWindows::openWaiting()
{
    // One after the other, also while a message box waits for an answer.
    if (m_opening)
        return;
    m_opening = true;
    while (!m_waiting.isEmpty())
        open(m_waiting.takeFirst(), false);
    m_opening = false;
}

#include "markingcontrols.h"

#include "ui_imageviewer.h"

#include <ui/product.h>
#include <ui/qskinnedmessagebox.h>
#include <viewer/session/viewersession.h>

#include <QtCore/QPointer>

MarkingControls::MarkingControls(const Ui::ImageViewerClass &form, ViewerSession &session)
    : m_form(form)
    , m_session(session)
{
    const auto clicked = [this](QAbstractButton *button, void (MarkingControls::*handler)()) {
        connect(button, &QAbstractButton::clicked, this, handler);
    };
    connect(m_form.markFrameButton, &QAbstractButton::clicked, &m_session, &ViewerSession::toggleFrameMark);
    connect(m_form.markChunkButton, &QAbstractButton::clicked, &m_session, &ViewerSession::toggleChunkMark);
    clicked(m_form.clearMarkingsButton, &MarkingControls::askToClear);
    clicked(m_form.requeueMarkedFrames, &MarkingControls::requeueMarkedFrames);
    clicked(m_form.requeueMarkedChunks, &MarkingControls::requeueMarkedChunks);
    clicked(m_form.downloadChunksButton, &MarkingControls::downloadChunks);
    connect(&m_session, &ViewerSession::opened, this, &MarkingControls::refresh);
    connect(&m_session, &ViewerSession::marksChanged, this, &MarkingControls::refresh);
    refresh();
}

void MarkingControls::refresh()
{
    const Marking &marking = m_session.marking();
    const auto frames = marking.markedFrames().size();
    const auto chunks = marking.markedChunks().size();
    m_form.markings->setEnabled(m_session.canPlay());
    m_form.jobInfoContainer->hide();
    m_form.markFrameButton->setEnabled(false);
    m_form.markChunkButton->setEnabled(false);
    m_form.downloadChunksButton->setEnabled(false);
    m_form.clearMarkingsButton->setEnabled(frames > 0 || chunks > 0);
    m_form.requeueMarkedFrames->setEnabled(frames > 0);
    m_form.requeueMarkedChunks->setEnabled(chunks > 0);
    m_form.framesMarkerCounter->setText(tr("%1 frame(s)").arg(frames));
    m_form.chunksMarkerCounter->setText(tr("%1 chunk(s)").arg(chunks));
    m_form.imageMarker->setVisible(m_session.job().isSet());
    m_form.imageMarker->setChunks(marking.chunks());
    m_form.imageMarker->setMarkedChunks(marking.markedChunks());
    m_form.imageMarker->setMarkedFrames(marking.markedFrames());
    m_form.imageMarker->update();
}

void MarkingControls::askToClear()
{
    const QPointer<MarkingControls> self(this);
    const auto answer = QSkinnedMessageBox::question(
        m_form.markings->window(), product::kProductTitle,
        tr("Are you sure you want to remove the current markings ?"), QMessageBox::Yes | QMessageBox::No);
    if (self && answer == QMessageBox::Yes)
        m_session.clearMarks();
}

// The marks stay with the user: nothing is requeued or downloaded from here, though the buttons are there.
void MarkingControls::requeueMarkedFrames() { }
void MarkingControls::requeueMarkedChunks() { }
void MarkingControls::downloadChunks() { }

#include "markingcontrols.h"

#include "ui_imageviewer.h"

#include <ui/product.h>
#include <ui/qskinnedmessagebox.h>
#include <viewer/session/viewersession.h>

#include <QtCore/QPointer>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

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
    connect(&m_session, &ViewerSession::frameChanged, this, &MarkingControls::enableMarking);
    m_copyFrames = addCopying(m_form.framesMarkerCounter, &Marking::framesText);
    m_copyChunks = addCopying(m_form.chunksMarkerCounter, &Marking::chunksText);
    m_copyFramesOfChunks = addCopying(m_form.chunksMarkerCounter, &Marking::framesOfChunksText);
    retranslate();
}

QAction *MarkingControls::addCopying(QLabel *counter, QString (Marking::*marks)() const)
{
    auto *action = new QAction(counter);
    connect(action, &QAction::triggered, this,
            [this, marks] { QGuiApplication::clipboard()->setText((m_session.marking().*marks)()); });
    counter->addAction(action);
    counter->setContextMenuPolicy(Qt::ActionsContextMenu);
    return action;
}

void MarkingControls::retranslate()
{
    m_copyFrames->setText(tr("Copy marked frames"));
    m_copyChunks->setText(tr("Copy marked chunks"));
    m_copyFramesOfChunks->setText(tr("Copy frames of marked chunks"));
    refresh();
}

void MarkingControls::refresh()
{
    const Marking &marking = m_session.marking();
    const auto frames = marking.markedFrames().size();
    const auto chunks = marking.markedChunks().size();
    m_form.markings->setEnabled(m_session.canPlay() || m_session.canMark());
    m_form.markings->setVisible(m_session.job().isSet());
    m_form.jobInfoContainer->hide();
    m_form.downloadChunksButton->setEnabled(false);
    enableMarking();
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
    m_copyFrames->setEnabled(frames > 0);
    m_copyChunks->setEnabled(chunks > 0);
    m_copyFramesOfChunks->setEnabled(chunks > 0);
}

void MarkingControls::enableMarking()
{
    const ChunkMap &chunks = m_session.marking().chunks();
    m_form.markFrameButton->setEnabled(m_session.canMark());
    m_form.markChunkButton->setEnabled(m_session.canMark()
                                       && chunkOf(chunks, m_session.frame()) != chunks.end());
}

void MarkingControls::askToClear()
{
    const QPointer<MarkingControls> self(this);
    const bool isSure =
        QSkinnedMessageBox::confirm(m_form.image->window(), product::kProductTitle,
                                    tr("Are you sure you want to remove the current markings ?"));
    if (self && isSure)
        m_session.clearMarks();
}

// The marks stay with the user: nothing is requeued or downloaded from here, though the buttons are there.
void MarkingControls::requeueMarkedFrames() { }
void MarkingControls::requeueMarkedChunks() { }
void MarkingControls::downloadChunks() { }

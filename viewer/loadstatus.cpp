#include "loadstatus.h"

#include "ui_imageviewer.h"

#include <ui/plaintext.h>
#include <viewer/frames/incompletetext.h>
#include <viewer/session/viewersession.h>

#include <QtGui/QGuiApplication>

namespace {

QPixmap statusPicture(const char *name)
{
    return QPixmap(QStringLiteral(":/Activity/Resources/") + QString::fromLatin1(name));
}

} // namespace

LoadStatus::LoadStatus(const Ui::ImageViewerClass &form, ViewerSession &session)
    : m_form(form)
    , m_session(session)
    , m_pictures{statusPicture("missingfile.png"), statusPicture("brokenfile.png"),
                 statusPicture("nofileinprogress.png"), statusPicture("processing.png")}
{
    // Frames come and go too fast for the picture to change its size with the bar.
    QSizePolicy policy = m_form.progressBar->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_form.progressBar->setSizePolicy(policy);
    connect(&session, &ViewerSession::loadProgressed, this, &LoadStatus::showProgress);
    connect(&session, &ViewerSession::loaded, this, &LoadStatus::showOutcome);
    showOutcome();
}

void LoadStatus::showOutcome()
{
    const QString fault = faultText();
    m_form.imageWarningReason->setText(fault);
    m_form.imageWarningDetails->setText(detailsText());
    m_form.imageWarningDetails->setHidden(m_form.imageWarningDetails->text().isEmpty());
    if (!fault.isEmpty()) {
        const bool missing = m_session.lastLoad().outcome == LoadOutcome::NotFound;
        m_form.imageWarningLabel->setPixmap(missing ? m_pictures.missing : m_pictures.broken);
        // The focus would go to the next field with the picture, and take the keys of the frames along: what is round
        // the panel takes it, also of a window that is not active yet.
        if (m_form.image->window()->focusWidget() == m_form.image)
            m_form.imageWarningWidget->parentWidget()->setFocus();
    }
    const bool nothingOpen = m_session.file().empty();
    const bool firstPicture = m_form.imageContainer->isHidden() && m_form.imageWarningWidget->isHidden();
    m_form.imageContainer->setVisible(fault.isEmpty() && !nothingOpen);
    m_form.image->setVisible(fault.isEmpty()); // it may stand alone
    m_form.imageWarningWidget->setVisible(!fault.isEmpty());
    m_form.invitation->setVisible(nothingOpen && fault.isEmpty());
    m_form.fullScreen->setEnabled(!nothingOpen);
    // Nothing could take the keys of the frames while there were none.
    if (firstPicture && fault.isEmpty() && !nothingOpen)
        m_form.image->setFocus();
}

QString LoadStatus::faultText() const
{
    const QString path = shortened(m_session.file());
    switch (m_session.lastLoad().outcome) {
    case LoadOutcome::NotFound:
        return tr("File not found at path: %1").arg(path);
    case LoadOutcome::Corrupted:
        return tr("Corrupted file at path: %1").arg(path);
    case LoadOutcome::Unreadable:
    case LoadOutcome::Refused:
        return tr("File that cannot be shown at path: %1").arg(path);
    default:
        return {};
    }
}

QString LoadStatus::detailsText() const
{
    const LoadResult &load = m_session.lastLoad();
    if (load.outcome == LoadOutcome::Refused)
        return refusalText(load.refusal);
    return load.failed() ? reasonText(load.failure) : QString();
}

QString LoadStatus::shownText() const
{
    const LoadResult &load = m_session.lastLoad();
    QStringList texts;
    if (load.shown() && load.partial.isIncomplete())
        texts += incompleteText(load.partial);
    if (load.shown() && load.forcedHalvings != 0)
        texts +=
            tr("Too large for OpenGL: shown at 1/%1 of its size").arg(qulonglong(1) << load.forcedHalvings);
    const LookAhead &ahead = m_session.lookAhead();
    if (ahead.isReading())
        texts +=
            tr("%1 s ahead")
                .arg(double(ahead.framesThere()) / double(m_session.playback().framesPerSecond()), 0, 'f', 1);
    return texts.join(u' ');
}

QString LoadStatus::refusalText(Refusal refusal)
{
    switch (refusal) {
    case Refusal::NoContext:
        return tr("OpenGL does not start.");
    case Refusal::NoShaders:
        return tr("OpenGL does not build the shaders that draw pictures. The log says why.");
    case Refusal::NoMemory:
        return tr("OpenGL has no memory for it. Choose a higher downsampling.");
    case Refusal::TooLarge:
        return tr("It is too large for OpenGL.");
    case Refusal::UnknownSamples:
        return tr("This OpenGL cannot show samples of its kind.");
    default:
        return tr("It holds too few samples for its size.");
    }
}

QString LoadStatus::reasonText(const FarmHelpers::LoadFailure &failure)
{
    using FarmHelpers::LoadFailure;
    const QString reason = QString::fromStdString(failure.reason);
    switch (failure.kind) {
    case LoadFailure::Forbidden:
        return tr("You have no permission to read it.");
    case LoadFailure::NoImage:
        return tr("It is no image of a format that the viewer reads.");
    case LoadFailure::TooLarge:
        return tr("Its picture is too large for the memory of this computer.");
    case LoadFailure::Unsupported:
        return tr("The viewer cannot read it: %1").arg(reason);
    default:
        return reason.isEmpty() ? QString() : tr("What is wrong: %1").arg(reason);
    }
}

void LoadStatus::showProgress(const LoadProgress::Step &step)
{
    m_form.progressBar->setValue(step.value);
    m_form.progressBar->setVisible(step.barVisible);
    if (step.setWaitCursor)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    if (step.restoreCursor)
        QGuiApplication::restoreOverrideCursor();
    m_form.progressBar->repaint();
}

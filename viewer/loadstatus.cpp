#include "loadstatus.h"

#include "ui_imageviewer.h"

#include <ui/plaintext.h>
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
    const LoadResult &load = m_session.lastLoad();
    const bool failed = load.failed();
    if (failed) {
        const bool missing = load.outcome == LoadOutcome::NotFound;
        m_form.imageWarningLabel->setPixmap(missing ? m_pictures.missing : m_pictures.broken);
        m_form.imageWarningReason->setText(
            outcomeText(load.outcome).arg(shortened(m_session.file())));
        m_form.imageWarningDetails->setText(reasonText(load.failure));
        // The focus would go to the next field with the picture, and take the keys of the frames along: the form takes it.
        if (m_form.image->hasFocus())
            m_form.imageContainer->parentWidget()->setFocus();
    } else {
        m_form.imageWarningReason->clear();
        m_form.imageWarningDetails->clear();
    }
    m_form.imageContainer->setVisible(!failed);
    m_form.imageWarningWidget->setVisible(failed);
}

QString LoadStatus::outcomeText(LoadOutcome outcome)
{
    switch (outcome) {
    case LoadOutcome::NotFound:
        return tr("File not found at path: %1");
    case LoadOutcome::Unreadable:
        return tr("File that cannot be shown at path: %1");
    default:
        return tr("Corrupted file at path: %1");
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

#pragma once

#include <viewer/frames/frameloader.h>
#include <viewer/frames/loadprogress.h>

#include <QtCore/QObject>
#include <QtGui/QPixmap>

class ViewerSession;

namespace Ui {
class ImageViewerClass;
}

/// Tells how a load goes and what it came to: the progress bar while it runs, and in place of a picture that is missing or
/// broken the reason. Owned by the window whose form it fills.
class LoadStatus final : public QObject {
    Q_OBJECT

public:
    /// Both outlive the status.
    LoadStatus(const Ui::ImageViewerClass &form, ViewerSession &session);

    /// Says for the status line how the picture differs from its file: it is incomplete, or shown smaller than it is.
    QString shownText() const;

private:
    struct StatusPictures {
        QPixmap missing;
        QPixmap broken;
        // Kept for frames of jobs under way: what is shown of them today is that they are missing.
        QPixmap noFileInProgress;
        QPixmap processing;
    };

    void showOutcome();
    /// What is wrong, and why where that is known; empty where nothing is.
    QString faultText() const;
    QString detailsText() const;
    static QString reasonText(const FarmHelpers::LoadFailure &failure);
    static QString refusalText(Refusal refusal);
    void showProgress(const LoadProgress::Step &step);

    const Ui::ImageViewerClass &m_form;
    const ViewerSession &m_session;
    const StatusPictures m_pictures;
};

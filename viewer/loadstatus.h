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

private:
    struct StatusPictures {
        QPixmap missing;
        QPixmap broken;
        // Kept for frames of jobs under way: what is shown of them today is that they are missing.
        QPixmap noFileInProgress;
        QPixmap processing;
    };

    void showOutcome();
    static QString outcomeText(LoadOutcome outcome);
    /// Why the file does not load; empty where the image library does not tell.
    static QString reasonText(const FarmHelpers::LoadFailure &failure);
    void showProgress(const LoadProgress::Step &step);

    const Ui::ImageViewerClass &m_form;
    const ViewerSession &m_session;
    const StatusPictures m_pictures;
};

#pragma once

#include <QtCore/QObject>

class ViewerSession;

namespace Ui {
class ImageViewerClass;
}

/// The counters and buttons of the marks and the strip that shows them. Owned by the window whose form it fills.
class MarkingControls final : public QObject {
    Q_OBJECT

public:
    /// Both outlive the controls.
    MarkingControls(const Ui::ImageViewerClass &form, ViewerSession &session);

    void retranslate() { refresh(); }

private:
    void refresh();
    void askToClear();
    void requeueMarkedFrames();
    void requeueMarkedChunks();
    void downloadChunks();

    const Ui::ImageViewerClass &m_form;
    ViewerSession &m_session;
};

#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

class Marking;
class QAction;
class QLabel;
class ViewerSession;

namespace Ui {
class ImageViewerClass;
}

/// The counters and buttons of the marks and the strip that shows them; the counters' menus copy the marks. Owned by the window whose form it fills.
class MarkingControls final : public QObject {
    Q_OBJECT

public:
    /// Both outlive the controls.
    MarkingControls(const Ui::ImageViewerClass &form, ViewerSession &session);

    void retranslate();

private:
    void refresh();
    void enableMarking();
    /// Adds to the counter's menu what puts the marks on the clipboard.
    QAction *addCopying(QLabel *counter, QString (Marking::*marks)() const);
    void askToClear();
    void requeueMarkedFrames();
    void requeueMarkedChunks();
    void downloadChunks();

    const Ui::ImageViewerClass &m_form;
    ViewerSession &m_session;
    // The counters'.
    QAction *m_copyFrames = nullptr;
    QAction *m_copyChunks = nullptr;
    QAction *m_copyFramesOfChunks = nullptr;
};

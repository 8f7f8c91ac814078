#pragma once

#include <viewer/frames/framestates.h>

#include <QtCore/QObject>

class ViewerSession;

namespace Ui {
class ImageViewerClass;
}

/// The timeline, the strips beside it and the fields and buttons below: shows the session's frame, range and playback, and
/// hands the session what the user wants of them. Owned by the window whose form it fills.
class TransportControls final : public QObject {
    Q_OBJECT

public:
    /// Both outlive the controls.
    TransportControls(const Ui::ImageViewerClass &form, ViewerSession &session);

    /// Steps, or plays and stops; false for any other key.
    bool takeKey(int key);
    void retranslate();

private:
    void connectTimeline();
    void connectFields();
    void showSequence();
    void showRange();
    void showStates();
    void showFrame(int frame);
    void showPlaying();
    void showPlayButton();
    void fixPlaces();
    void editRange();
    void editFrame();
    void editFramesPerSecond();

    const Ui::ImageViewerClass &m_form;
    ViewerSession &m_session;
    FrameStates m_states; // as the timeline and the strips show them
};

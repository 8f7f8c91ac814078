#pragma once

#include <QtCore/QRect>

class QWidget;

/// Where the main window was, kept in the settings. It comes up there again, its frame in sight, on screens of any size.
class WindowMemory final {
public:
    explicit WindowMemory(QWidget &window)
        : m_window(window)
    { }

    /// The window is about to show.
    void takeUp();
    /// The window has hidden.
    void save();

private:
    QWidget &m_window;
    QRect m_rect;
};

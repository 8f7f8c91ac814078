#pragma once

#include <QtCore/QObject>

class QWidget;

namespace Ui {
class ImageViewerClass;
}

/// Shows the picture alone on the whole screen, or in its place why there is none, in a window of its own where the keys
/// of the form's buttons work too. Owned by the viewer, whose event filter gets that window's events.
class FullScreen final : public QObject {
    Q_OBJECT

public:
    /// Both outlive this.
    FullScreen(const Ui::ImageViewerClass &form, QWidget &viewer);

    /// Null unless it is shown.
    QWidget *window() const { return m_window; }

    void show();
    void end();

private:
    void addKeys();
    void settle();

    const Ui::ImageViewerClass &m_form;
    QWidget &m_viewer;
    QWidget *m_window = nullptr; // the viewer's child
};

#pragma once

#include <QtCore/QObject>

class ViewerSession;

namespace Ui {
class ImageViewerClass;
}

/// The panel beside the picture: the calibration and what is known of the file on show. It comes and goes with its button
/// and can be kept for the next window. Owned by the window whose form it fills.
class SidePanel final : public QObject {
    Q_OBJECT

public:
    /// Both outlive the panel, which opens as it was kept last.
    SidePanel(const Ui::ImageViewerClass &form, ViewerSession &session);

    /// Keeps in the settings whether it is open.
    void keep() const;
    /// Takes the width that its texts need.
    void retranslate();

private:
    void show(bool open);
    void tellFile();

    const Ui::ImageViewerClass &m_form;
    const ViewerSession &m_session;
};

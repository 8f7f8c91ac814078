#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtGui/QColor>

class QToolButton;
class ViewerSession;
class imageWidget;

namespace Ui {
class ImageViewerClass;
}

/// Sets how the frame is looked at: what lies behind and over it, its channels, its layer and its size. Owned by the
/// window whose form it fills.
class DisplayControls final : public QObject {
    Q_OBJECT

public:
    /// Both outlive the controls.
    DisplayControls(const Ui::ImageViewerClass &form, ViewerSession &session);

    /// RGBA, red, green, blue, alpha, luminance as 0 to 5.
    void setChannelViewMode(int mode);
    void setComposite(bool on);
    void setChecker(bool on);
    void setPremultiplied(bool on);
    void setBackground(const QColor &color);

private:
    void connectPicture();
    void connectSession();
    void pickColor(const QString &title, void (imageWidget::*set)(const QColor &), QColor &color);
    void showColors();
    void saveAsDefault();
    void showLayers();
    void enableChannels();
    QList<QToolButton *> channelButtons() const;

    const Ui::ImageViewerClass &m_form;
    ViewerSession &m_session;
    QStringList m_layerEntries; // that the selector holds
    QColor m_backgroundColor = Qt::black;
    QColor m_hudColor = Qt::white;
};

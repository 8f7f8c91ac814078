#include "displaycontrols.h"

#include "ui_imageviewer.h"
#include "viewericons.h"
#include "waitcursor.h"

#include <ui/plaintext.h>
#include <viewer/frames/imageframe.h>
#include <viewer/session/viewersession.h>

#include <QtCore/QSignalBlocker>
#include <QtGui/QStandardItemModel>
#include <QtGui/qopengl.h>
#include <QtWidgets/QColorDialog>

#include <algorithm>
#include <utility>

DisplayControls::DisplayControls(const Ui::ImageViewerClass &form, ViewerSession &session)
    : m_form(form)
    , m_session(session)
{
    connectPicture();
    connectSession();
    m_form.image->setBackgroundColor(m_backgroundColor);
    m_form.image->setHudColor(m_hudColor);
    showColors();
    showLayers();
    enableChannels();
}

void DisplayControls::connectPicture()
{
    imageWidget *image = m_form.image;
    connect(m_form.checkerButton, &QAbstractButton::toggled, image, &imageWidget::setCheckerOn);
    connect(m_form.compositeButton, &QAbstractButton::toggled, image, &imageWidget::setAlphaOn);
    connect(m_form.hudButton, &QAbstractButton::toggled, image, &imageWidget::setHudOn);
    connect(m_form.backgroundColorButton, &QAbstractButton::clicked, this,
            [this] { pickColor(tr("Background"), &imageWidget::setBackgroundColor, m_backgroundColor); });
    connect(m_form.hudColorButton, &QAbstractButton::clicked, this,
            [this] { pickColor(tr("HUD colour"), &imageWidget::setHudColor, m_hudColor); });
    connect(m_form.displaySaveAsDefault, &QAbstractButton::clicked, this, &DisplayControls::saveAsDefault);
    const QList<QToolButton *> channels = channelButtons();
    for (int mode = 0; mode < channels.size(); ++mode)
        connect(channels[mode], &QAbstractButton::clicked, this, [this, mode] { setChannelViewMode(mode); });
    connect(image, &imageWidget::initialized, this,
            [this] { m_form.limitedFunctionalities->setVisible(!m_form.image->floatTexturesUsable()); });
}

void DisplayControls::connectSession()
{
    connect(m_form.premultipliedButton, &QAbstractButton::toggled, this, [this](bool on) {
        const WaitCursor cursor;
        m_session.setPremultiplied(on);
    });
    connect(m_form.resizeComboBox, &QComboBox::currentIndexChanged, &m_session,
            &ViewerSession::setDownsampling);
    connect(m_form.layersSelector, &QComboBox::activated, &m_session, [this](int index) {
        m_session.setLayer(m_form.layersSelector->itemData(index).toString().toStdString());
    });
    connect(&m_session, &ViewerSession::opened, this, [this](bool another) {
        if (another)
            setChannelViewMode(0);
    });
    connect(&m_session, &ViewerSession::loaded, this, [this] {
        if (m_session.lastLoad().shown())
            showLayers();
        enableChannels();
    });
}

void DisplayControls::pickColor(const QString &title, void (imageWidget::*set)(const QColor &), QColor &color)
{
    // In front of the picture, also while that has a window of its own.
    auto *dialog = new QColorDialog(color, m_form.image->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title);
    imageWidget *image = m_form.image;
    const QColor before = color;
    connect(dialog, &QColorDialog::currentColorChanged, image, set);
    connect(dialog, &QDialog::rejected, image, [image, set, before] { (image->*set)(before); });
    connect(dialog, &QColorDialog::colorSelected, this, [this, &color](const QColor &chosen) {
        color = chosen;
        showColors();
    });
    dialog->open();
}

void DisplayControls::showColors()
{
    m_form.backgroundColorButton->setIcon(
        swatchIcon(QStringLiteral("background"), m_backgroundColor, {3, 3, 10, 10}));
    m_form.hudColorButton->setIcon(swatchIcon(QStringLiteral("hudcolor"), m_hudColor, {2, 12, 12, 3}));
}

// Kept for the button that is there: what a display looks like is not remembered.
void DisplayControls::saveAsDefault() { }

QList<QToolButton *> DisplayControls::channelButtons() const
{
    return {m_form.rgbaChannelButton, m_form.redChannelButton,   m_form.greenChannelButton,
            m_form.blueChannelButton, m_form.alphaChannelButton, m_form.luminanceButton};
}

void DisplayControls::setChannelViewMode(int mode)
{
    const QList<QToolButton *> channels = channelButtons();
    for (int i = 0; i < channels.size(); ++i)
        channels[i]->setChecked(i == mode);
    m_form.image->setChannelViewMode(mode);
}

void DisplayControls::setComposite(bool on)
{
    m_form.compositeButton->setChecked(on);
}

void DisplayControls::setChecker(bool on)
{
    m_form.checkerButton->setChecked(on);
}

void DisplayControls::setPremultiplied(bool on)
{
    m_form.premultipliedButton->setChecked(on);
}

void DisplayControls::setBackground(const QColor &color)
{
    m_backgroundColor = color;
    m_form.image->setBackgroundColor(color);
    showColors();
}

void DisplayControls::showLayers()
{
    const LayerList &layers = m_session.layers();
    const QString shown = QString::fromStdString(m_session.layer());
    const bool isMissing = !layers.offers(m_session.chosenLayer());
    QStringList entries;
    for (const std::string &entry : layers.entries)
        entries += QString::fromStdString(entry);
    if (entries.isEmpty())
        entries += QStringLiteral("Default");
    int current = std::max(0, int(entries.indexOf(shown)));
    if (isMissing) {
        current = 0;
        // The layer that is shown, and the one that this frame lacks.
        entries.prepend(tr("%1 (no %2)").arg(shown, QString::fromStdString(m_session.chosenLayer())));
    }
    QComboBox &selector = *m_form.layersSelector;
    const QSignalBlocker blocker(selector);
    if (entries != std::exchange(m_layerEntries, entries)) {
        selector.clear();
        for (const QString &entry : std::as_const(entries))
            selector.addItem(shortened(entry), entry);
        // What is not there cannot be chosen.
        if (auto *items = qobject_cast<QStandardItemModel *>(selector.model()); items && isMissing)
            items->item(0)->setEnabled(false);
    }
    selector.setCurrentIndex(current);
}

void DisplayControls::enableChannels()
{
    const ImageFrame *frame = m_form.image->frame();
    const bool rgb = frame && (frame->internalFormat == GL_RGB || frame->textureCount == 3);
    const bool rgba = frame && (frame->internalFormat == GL_RGBA || frame->textureCount == 4);
    for (QToolButton *button : {m_form.redChannelButton, m_form.greenChannelButton, m_form.blueChannelButton,
                                m_form.luminanceButton})
        button->setEnabled(rgb || rgba);
    m_form.alphaChannelButton->setEnabled(rgba);
}

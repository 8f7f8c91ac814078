#include "sidepanel.h"

#include "ui_imageviewer.h"

#include <ui/plaintext.h>
#include <viewer/session/viewersession.h>
#include <viewer/widgets/render/hud.h>

#include <QtCore/QSettings>
#include <QtWidgets/QScrollBar>

namespace {

constexpr auto kOpenKey = "viewerWindow/sidePanel";

} // namespace

SidePanel::SidePanel(const Ui::ImageViewerClass &form, ViewerSession &session)
    : m_form(form)
    , m_session(session)
{
    connect(m_form.calibrationButton, &QAbstractButton::toggled, this, &SidePanel::show);
    connect(&session, &ViewerSession::loaded, this, &SidePanel::tellFile);
    m_form.calibrationButton->setChecked(QSettings().value(QLatin1String(kOpenKey), false).toBool());
}

void SidePanel::keep() const
{
    QSettings().setValue(QLatin1String(kOpenKey), m_form.calibrationButton->isChecked());
}

void SidePanel::show(bool open)
{
    m_form.sidePanel->setVisible(open);
    m_form.calibrationHolder->setVisible(open);
    if (open)
        retranslate();
}

void SidePanel::retranslate()
{
    QWidget *contents = m_form.sidePanelContents;
    // What it told before is to widen nothing.
    m_form.fileInfo->setFixedSize(0, 0);
    contents->ensurePolished();
    contents->layout()->activate();
    m_form.sidePanel->setFixedWidth(contents->minimumSizeHint().width()
                                    + m_form.sidePanel->verticalScrollBar()->sizeHint().width());
    tellFile();
}

// The label's size is fixed, so that another file's name does not lay out the window anew while it plays.
void SidePanel::tellFile()
{
    if (m_form.sidePanel->isHidden())
        return;
    QLabel &label = *m_form.fileInfo;
    const ImageFrame *frame = m_session.lastLoad().shown() ? m_form.image->frame() : nullptr;
    QStringList lines = frame ? hudLines(*frame) : QStringList();
    label.setToolTip(lines.isEmpty() ? QString() : plainToolTip(lines.first()));
    const QMargins margins = m_form.sidePanelLayout->contentsMargins();
    const int width = m_form.sidePanel->width() - m_form.sidePanel->verticalScrollBar()->sizeHint().width()
        - margins.left() - margins.right();
    for (QString &line : lines)
        line = label.fontMetrics().elidedText(shortened(line), Qt::ElideMiddle, width);
    label.setText(lines.join(u'\n'));
    const QSize size(width, label.sizeHint().height());
    if (label.size() != size || label.minimumSize() != size)
        label.setFixedSize(size);
    m_form.fileTitle->setHidden(lines.isEmpty());
    label.setHidden(lines.isEmpty());
}

#include "imageviewer.h"

#include "calibrationpanel.h"
#include "displaycontrols.h"
#include "filepicker.h"
#include "fullscreen.h"
#include "loadstatus.h"
#include "markingcontrols.h"
#include "sidepanel.h"
#include "transportcontrols.h"
#include "ui_imageviewer.h"
#include "viewerlook.h"
#include "waitcursor.h"
#include "zoomcontrol.h"

#include <image_library/iimagecore.h>
#include <ui/plaintext.h>
#include <ui/stylesheets.h>
#include <ui/theme.h>
#include <viewer/frames/cachetotals.h>
#include <viewer/frames/framepaths.h>
#include <viewer/frames/imageframe.h>
#include <viewer/session/viewersession.h>
#include <viewer/widgets/imagewidget.h>

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtCore/QUrl>
#include <QtGui/QDropEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>

namespace {

constexpr QSize kInitialSize(640, 480);
constexpr const char *kKeysProperty = "keys";

QStringList localFiles(const QMimeData &data)
{
    QStringList files;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            files += url.toLocalFile();
    }
    return files;
}

} // namespace

ImageViewer::ImageViewer(CacheTotals &totals, const ViewerSettings &settings, QWidget *parent)
    : QSkinnedDialog(parent)
    , m_ui(std::make_unique<Ui::ImageViewerClass>())
    , m_totals(totals)
    , m_settings(settings)
    , m_imageCore(TImageLibrary::IImageCore::GetUniqueClass())
{
    setAttribute(Qt::WA_DeleteOnClose);
    setName(QStringLiteral("imageViewer"));
    setShowSetSize(true);
    setPalette(Theme::neutral());
    StyleSheets::wantViewer(*qApp);
    m_ui->setupUi(content());
    giveIcons(*m_ui);
    m_session = std::make_unique<ViewerSession>(totals, picture());
    m_session->setShowIncomplete(settings.showIncomplete);
    m_session->setReadAhead(settings.readAhead);
    m_zoom = new ZoomControl({m_ui->image, m_ui->horizontalScrollBar, m_ui->verticalScrollBar,
                              m_ui->fitPixelSize, m_ui->setPixelSize});
    m_transport = std::make_unique<TransportControls>(*m_ui, *m_session);
    m_display = std::make_unique<DisplayControls>(*m_ui, *m_session);
    m_markings = std::make_unique<MarkingControls>(*m_ui, *m_session);
    m_loadStatus = std::make_unique<LoadStatus>(*m_ui, *m_session);
    m_sidePanel = std::make_unique<SidePanel>(*m_ui, *m_session);
    m_fullScreen = new FullScreen(*m_ui, *this);
    connectPath();
    connectZoom();
    connectCalibration();
    connectSession();
    filterKeys();
    retranslate();
    calibration().reset(m_settings.defaultImportGamma);
    enableZoom();
    buildFrame();
    // As a dialog it would be kept above other windows, without an entry in the task bar.
    if (!parentWidget())
        setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    resize(kInitialSize);
    loadDefaultState();
    content()->setFocus();
}

ImageViewer::~ImageViewer()
{
    m_zoom->disconnect(this); // it goes with the picture, whose last changes it would tell
}

imageWidget &ImageViewer::picture() const
{
    return *m_ui->image;
}

CalibrationPanel &ImageViewer::calibration() const
{
    return *m_ui->calibrationPanel;
}

void ImageViewer::connectPath()
{
    // What is dropped is opened, wherever it falls; the field would add its address to the text.
    setAcceptDrops(true);
    m_ui->framesPath->setAcceptDrops(false);
    connect(m_ui->framesPath, &QLineEdit::editingFinished, this, &ImageViewer::editFramesPath);
    connect(m_ui->pickFramesPath, &QAbstractButton::clicked, this, &ImageViewer::pickFramesPath);
    connect(m_ui->reloadButton, &QAbstractButton::clicked, this, [this] {
        const WaitCursor cursor;
        m_session->reload();
    });
    connect(m_ui->fullScreen, &QAbstractButton::clicked, this, &ImageViewer::showGlFullscreen);
}

void ImageViewer::connectZoom()
{
    connect(m_ui->zoomIn, &QAbstractButton::clicked, m_zoom, &ZoomControl::zoomIn);
    connect(m_ui->zoomOut, &QAbstractButton::clicked, m_zoom, &ZoomControl::zoomOut);
    connect(m_zoom, &ZoomControl::zoomChanged, this, &ImageViewer::enableZoom);
}

void ImageViewer::connectCalibration()
{
    imageWidget *image = m_ui->image;
    connect(m_ui->calibrationPanel, &CalibrationPanel::calibrationChanged, image,
            &imageWidget::setCalibration);
    connect(m_ui->calibrationPanel, &CalibrationPanel::inputGammaChanged, image,
            &imageWidget::setSourceGamma);
    for (QToolButton *reset : {m_ui->calibrationReset, m_ui->calibrationResetToDefaults})
        connect(reset, &QAbstractButton::clicked, this, &ImageViewer::resetCalibration);
    connect(m_ui->calibrationSaveAsDefault, &QAbstractButton::clicked, this,
            &ImageViewer::saveCalibrationAsDefault);
    connect(m_session.get(), &ViewerSession::firstFrameShown, this, &ImageViewer::resetCalibration);
}

void ImageViewer::connectSession()
{
    connect(m_session.get(), &ViewerSession::opened, this, [this](bool another) {
        m_ui->framesPath->setText(QString::fromStdString(m_session->sequence().framesPath));
        if (another)
            m_zoom->resetZoom();
    });
    connect(m_ui->image, &imageWidget::texturesLost, m_session.get(), &ViewerSession::loadAnew,
            Qt::QueuedConnection);
    connect(m_session.get(), &ViewerSession::loaded, this, [this] {
        m_zoom->refresh();
        m_ui->infoLabel->setText(m_totals.statusText() + m_loadStatus->shownText());
    });
    connect(m_session.get(), &ViewerSession::readAhead, this,
            [this] { m_ui->infoLabel->setText(m_totals.statusText() + m_loadStatus->shownText()); });
    connect(m_session.get(), &ViewerSession::cacheTrimmed, this,
            [this] { m_ui->infoLabel->setText(m_totals.statusText()); });
}

void ImageViewer::filterKeys()
{
    // Keys that no field wants move through the frames, wherever the focus is; a click on anything but a field leaves
    // them to the frames.
    for (QWidget *control : content()->findChildren<QWidget *>()) {
        const bool isField = qobject_cast<QLineEdit *>(control) || control == m_ui->imageWarningReason;
        if ((control->focusPolicy() & Qt::ClickFocus) && !isField && control != m_ui->image)
            control->setFocusPolicy(Qt::TabFocus);
    }
    for (QObject *watched :
         std::initializer_list<QObject *>{content(), m_ui->image, m_ui->imageWarningReason})
        watched->installEventFilter(this);
    for (QAbstractButton *button : content()->findChildren<QAbstractButton *>())
        button->installEventFilter(this);
}

void ImageViewer::retranslate()
{
    m_ui->retranslateUi(content());
    for (QAbstractButton *button : content()->findChildren<QAbstractButton *>()) {
        const QKeySequence keys(button->property(kKeysProperty).toString());
        if (keys.isEmpty())
            continue;
        button->setShortcut(keys); // its text took it away
        button->setToolTip(
            QStringLiteral("%1 (%2)").arg(button->toolTip(), keys.toString(QKeySequence::NativeText)));
    }
    sizeIcons(*content());
    m_transport->retranslate();
    m_markings->retranslate();
    m_sidePanel->retranslate();
    m_ui->infoLabel->setText(m_totals.statusText() + m_loadStatus->shownText());
    showTitle();
}

void ImageViewer::showTitle()
{
    const JobFrames &opened = m_session->job();
    const QString chunkTitle = tr("Images viewer on job %1 (%2) chunk ID %3");
    const QString jobTitle = tr("Images viewer on job %1 (%2)");
    const QString name = opened.job ? shortened(opened.job->getName()) : QString();
    if (opened.chunk)
        setTitle(chunkTitle.arg(name, QString::number(opened.chunk->getJobId()),
                                QString::number(opened.chunk->getChunkId())));
    else if (opened.job)
        setTitle(jobTitle.arg(name, QString::number(opened.job->getJobId())));
    else
        setTitle(tr("Images viewer"));
    m_ui->jobInfo->setText(name);
    m_ui->chunkInfo->setText(opened.chunk ? QString::number(opened.chunk->getChunkId()) : QString());
}

void ImageViewer::setJob(JobFrames job)
{
    m_session->setJob(std::move(job));
    showTitle();
}

void ImageViewer::setFramesPath(const FramesRequest &request)
{
    const WaitCursor cursor;
    m_session->open(request);
}

void ImageViewer::setZoom(float zoom)
{
    m_zoom->zoomTo(zoom);
}

void ImageViewer::editFramesPath()
{
    const QString text = m_ui->framesPath->text();
    if (text.toStdString() != m_session->sequence().framesPath)
        setFramesPath(requestFor(pathsIn(text)));
}

void ImageViewer::pickFramesPath()
{
    const QPointer<ImageViewer> self(this);
    const QString file = pickImageFile(picture().window(), m_imageCore, session().file());
    if (self && !file.isEmpty())
        setFramesPath(requestFor({file}));
}

void ImageViewer::resetCalibration()
{
    const ImageFrame *frame = picture().frame();
    calibration().reset(frame && frame->formatName == "exr" ? m_settings.exrImportGamma
                                                            : m_settings.defaultImportGamma);
}

// Kept for the button that is there: a calibration is not remembered.
void ImageViewer::saveCalibrationAsDefault() { }

void ImageViewer::enableZoom()
{
    m_ui->zoomIn->setEnabled(m_zoom->canZoomIn());
    m_ui->zoomOut->setEnabled(m_zoom->canZoomOut());
}

void ImageViewer::showGlFullscreen()
{
    content()->setFocus(); // or the next field would take the focus, and show it ever after
    m_fullScreen->show();
}

void ImageViewer::showGlNormal()
{
    m_fullScreen->end();
}

bool ImageViewer::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close && m_fullScreen && watched == m_fullScreen->window()) {
        event->ignore();
        showGlNormal();
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress && watched == windowHandle())
        leaveField(static_cast<QMouseEvent *>(event)->position().toPoint());
    // What comes to the window within the system goes to the widget with the focus first.
    const bool taken = event->type() == QEvent::KeyPress && watched->isWidgetType()
        && takeKey(watched, static_cast<QKeyEvent *>(event)->key());
    return taken || QSkinnedDialog::eventFilter(watched, event);
}

// The form itself takes no focus by a click: it would be a stop on the way of those who see its controls alone.
void ImageViewer::leaveField(QPoint clicked)
{
    const QWidget *under = childAt(clicked);
    if (!under || !content()->isAncestorOf(under))
        return;
    for (; under != content(); under = under->parentWidget()) {
        if (under->focusPolicy() & Qt::ClickFocus)
            return;
    }
    content()->setFocus(Qt::MouseFocusReason);
}

bool ImageViewer::takeKey(const QObject *watched, int key)
{
    const QWidget *fullScreen = m_fullScreen->window();
    if (fullScreen && (key == Qt::Key_Escape || key == Qt::Key_F11)) {
        showGlNormal();
        return true;
    }
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab || !m_session->canPlay())
        return false;
    if (watched == content() || watched == fullScreen) {
        // What a field took for its end gives the keys back to the frames.
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            content()->setFocus();
        m_transport->takeKey(key);
        return true;
    }
    // A button keeps the keys that press it.
    const bool presses = qobject_cast<const QAbstractButton *>(watched) && key == Qt::Key_Space;
    return !presses && m_transport->takeKey(key);
}

void ImageViewer::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->ignore();
    else
        QSkinnedDialog::keyPressEvent(event);
}

void ImageViewer::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ImageViewer::dropEvent(QDropEvent *event)
{
    const QStringList files = localFiles(*event->mimeData());
    if (files.isEmpty())
        return;
    event->acceptProposedAction();
    setFramesPath(requestFor(files));
}

void ImageViewer::closeEvent(QCloseEvent *event)
{
    m_session->playback().stop();
    showGlNormal();
    if (!isMaximized() && !isFullScreen())
        setDefaultState(false);
    m_sidePanel->keep();
    QSkinnedDialog::closeEvent(event);
}

bool ImageViewer::event(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::ApplicationFontChange)
        retranslate();
    // Of several viewers, the one in use reads first.
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate)
        m_session->lookAhead().setPriority(event->type() == QEvent::WindowActivate ? 1 : 0);
    return QSkinnedDialog::event(event);
}

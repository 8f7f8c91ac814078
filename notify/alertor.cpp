#include "alertor.h"

#include "menus.h"
#include "notifylog.h"
#include "preferences.h"
#include "resultopener.h"
#include "ui_alertor.h"

#include <net/protocol/packets.h>
#include <notify/events/eventbuilder.h>
#include <notify/events/notifyevent.h>
#include <system/tdesktop.h>
#include <ui/managedwindow.h>
#include <ui/product.h>
#include <ui/qskinnedmessagebox.h>
#include <ui/tappstate.h>
#include <viewer/imageviewer.h>

#include <QtCore/QPointer>
#include <QtGui/QCloseEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMessageBox>

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace {

constexpr auto kTick = std::chrono::milliseconds(400);
constexpr quint32 kFlashTicks = 4;
constexpr quint32 kConnectionTicks = 16;
constexpr int kAcknowledgedColumnWidth = 30;
// In the order of the columns; the last takes what is left.
constexpr int kColumnWidths[EventsModel::ColumnCount] = {100, kAcknowledgedColumnWidth, 175, 260, 90, 170, 60,
                                                         200};
constexpr int kSingleFramePacket = 2; // packet type of the jobs that make one frame
// A farm that finishes single frames by the hundred must not bury the desktop; the rest wait in the list.
constexpr int kMaxAutomaticViewers = 20;

bool hasText(const NotifyEvent *event, const QString &key)
{
    return !event->text(key).isEmpty();
}

bool sendThrough(void *owner, std::uint32_t command, const char *payload, std::size_t size,
                 std::uint32_t param)
{
    return static_cast<Alertor *>(owner)->sendMessage(command, QByteArray(payload, qsizetype(size)), param);
}

} // namespace

Alertor::Alertor(QWidget *parent)
    : QDialog(parent, Qt::Window)
    , m_ui(std::make_unique<Ui::AlertorClass>())
    , m_sendEntry{this, &sendThrough}
{
    m_ui->setupUi(this);
    buildList();
    buildMenus();
    connectSession();
    connect(&m_tray, &QSystemTrayIcon::activated, this, &Alertor::iconActivated);
    m_tray.setContextMenu(m_trayMenu);
    connect(&m_timer, &QTimer::timeout, this, qOverload<>(&Alertor::timerEvent));
    m_timer.start(kTick);
    setWindowIcon(m_tray.normalIcon());
    m_tray.show();
    setWindowFlags(Qt::WindowStaysOnTopHint | Qt::BypassWindowManagerHint);
}

Alertor::~Alertor()
{
    m_session.disconnect(this);
    m_session.closeConnection();
    updateIcon(false);
}

void Alertor::buildList()
{
    EventsView *list = m_ui->treeWidget;
    list->setModel(&m_model);
    list->installEventFilter(this);
    list->header()->setMinimumSectionSize(kAcknowledgedColumnWidth);
    for (int column = 0; column < EventsModel::ColumnCount; ++column)
        list->header()->resizeSection(column, kColumnWidths[column]);
    connect(list, &QWidget::customContextMenuRequested, this, &Alertor::popupMenu);
}

void Alertor::buildMenus()
{
    m_trayMenu = new TrayMenu(this);
    connect(m_trayMenu, &QMenu::aboutToShow, this, &Alertor::updateTrayMenu);
    connect(m_trayMenu->restore, &QAction::triggered, this, &Alertor::restore);
    connect(m_trayMenu->acknowledge, &QAction::triggered, this, &Alertor::actAckEvents);
    connect(m_trayMenu->silent, &QAction::triggered, this, &Alertor::actIsSilent);
    connect(m_trayMenu->openViewer, &QAction::triggered, this, &Alertor::openImageViewer);
    connect(m_trayMenu->configure, &QAction::triggered, this, &Alertor::configure);
    connect(m_trayMenu->quit, &QAction::triggered, this, &Alertor::onQuit);
    m_ui->menuButton->setMenu(m_trayMenu);

    m_listMenu = new ListMenu(this);
    connect(m_listMenu->acknowledge, &QAction::triggered, this, &Alertor::actAckSelection);
    connect(m_listMenu->openOutput, &QAction::triggered, this, &Alertor::actOpenOutput);
    connect(m_listMenu->openFrames, &QAction::triggered, this, &Alertor::actOpenFrame);
    connect(m_listMenu->openFramesExternally, &QAction::triggered, this, &Alertor::actOpenFrameExternally);
    connect(m_listMenu->removeSelection, &QAction::triggered, this, &Alertor::actRemoveSelected);
    connect(m_listMenu->removeAll, &QAction::triggered, this, &Alertor::actRemoveAll);
}

void Alertor::connectSession()
{
    connect(&m_session, &DispatcherSession::stateChanged, this, &Alertor::socketStateChanged);
    connect(&m_session, &DispatcherSession::errorOccurred, this, &Alertor::socketError);
    connect(&m_session, &DispatcherSession::connected, this, &Alertor::socketConnected);
    connect(&m_session, &DispatcherSession::disconnected, this, &Alertor::socketDisconnected);
    connect(&m_session, &DispatcherSession::messageReady, this, &Alertor::socketMessage);
}

void Alertor::loadSettings()
{
    m_settings = ::loadSettings();
    m_commandLineOverrides.applyTo(m_settings);
    m_session.setSettings(m_settings.link());
    m_viewers.setSettings(m_settings);
}

void Alertor::saveSettings()
{
    if (!::saveSettings(m_settings))
        showError(tr("The settings cannot be saved. They hold until the program ends."));
}

void Alertor::checkLocalConnection()
{
    m_session.checkLocalConnection();
    updateIcon(false);
}

void Alertor::socketStateChanged(QAbstractSocket::SocketState state)
{
    Q_UNUSED(state);
}

void Alertor::socketError(QAbstractSocket::SocketError error)
{
    Q_UNUSED(error);
    updateIcon(false);
}

void Alertor::socketConnected()
{
    updateIcon(false);
}

void Alertor::socketDisconnected()
{
    updateIcon(false);
}

void Alertor::socketMessage()
{
    m_session.drain([this](uint command, QByteArray *payload) { processCommand(command, payload); });
}

void Alertor::openConnection()
{
    m_session.openConnection();
}

void Alertor::closeConnection()
{
    m_session.closeConnection();
    updateIcon(false);
}

bool Alertor::sendMessage(uint command, const QByteArray &payload, uint param)
{
    return m_session.send(command, payload, param);
}

void Alertor::updateIcon(bool normal)
{
    m_tray.update(m_session.state(), m_pendingLevel, normal);
}

void Alertor::processCommand(uint cmd, QByteArray *payload)
{
    switch (cmd) {
    case CMD_NOTIFICATION:
        processNotification(*payload);
        break;
    case CMD_LOGIN_DENIED:
        m_session.refuse();
        showRefusal();
        break;
    case CMD_CUSTOM_MESSAGE:
        processCustomMessage(*payload);
        break;
    default:
        break;
    }
}

void Alertor::processNotification(const QByteArray &payload)
{
    if (const std::optional<NotificationPacket> packet = decodeNotification(payload))
        handleNewEvent(buildEvent(*packet, m_nextEventId++));
}

void Alertor::processCustomMessage(const QByteArray &payload)
{
    const std::optional<CustomMessagePacket> packet = decodeCustomMessage(payload);
    if (!packet)
        std::fputs("Invalid content received for onkD2ACustomMessage\n", stderr);
    else if (m_customMessageHandler)
        m_customMessageHandler(packet->templateId, packet->message);
}

void Alertor::showRefusal()
{
    // Modal, yet without an event loop of its own: what is left of the drain goes on. One box serves any number of
    // refusals.
    if (m_refusal)
        return;
    m_refusal =
        new QMessageBox(QMessageBox::Warning, product::kProductTitle,
                        tr("Dispatcher denied Alertor connection. Please double check the login and password "
                           "in the Alertor applet configuration dialog!"),
                        QMessageBox::Ok, this);
    m_refusal->setAttribute(Qt::WA_DeleteOnClose);
    m_refusal->setWindowModality(Qt::ApplicationModal);
    m_refusal->show();
}

void Alertor::handleNewEvent(std::unique_ptr<NotifyEvent> event)
{
    const EventHandling handling = handlingOf(*event);
    if (handling.filter && !(m_settings.*handling.filter))
        return;
    const NotifyEvent &kept = *event;
    if (!m_events.append(std::move(event)))
        return;
    qCInfo(lcNotify, "event %llu type %lld \"%s\"", kept.eventId, kept.eventType,
           qUtf8Printable(kept.text(EventKey::kMessage)));
    // The check boxes of the preferences do not count here: a path that is set is played.
    if (!m_silent && handling.sound)
        m_sounds.play(m_settings.*handling.sound);
    if (handling.jobCompletion && m_settings.launchImageViewer && hasText(&kept, EventKey::kFramesMask)
        && kept.text(EventKey::kPacketType).toInt() == kSingleFramePacket)
        openNewResult(kept);
    else if (m_settings.showBubble)
        m_tray.showNewEvent();
    refreshList();
}

void Alertor::openNewResult(const NotifyEvent &event)
{
    if (m_settings.imageViewerMode == 1) {
        ResultOpener::startExternalViewer(m_settings.imageViewer, event.text(EventKey::kFramesMask));
    } else if (m_viewers.count() + m_newResults.size() < kMaxAutomaticViewers) {
        // Later: a load takes its time, and what else has arrived is not to wait for it.
        m_newResults += framesOf(event, m_events);
        QTimer::singleShot(0, this, &Alertor::openNewResults);
    }
}

void Alertor::openNewResults()
{
    // One after the other, also while a message box waits for an answer.
    if (m_openingNewResults)
        return;
    m_openingNewResults = true;
    while (!m_newResults.isEmpty()) {
        const EventFrames frames = m_newResults.takeFirst();
        if (ImageViewer *viewer = CreateImageViewer(this))
            ViewerWindows::show(*viewer, frames, false);
    }
    m_openingNewResults = false;
}

void Alertor::refreshList()
{
    const PendingLevel level = m_events.pendingLevel();
    if (level == m_pendingLevel)
        return;
    m_pendingLevel = level;
    updateIcon(true);
}

void Alertor::actAckEvents()
{
    m_events.ackAll();
    refreshList();
}

void Alertor::actAckSelection()
{
    for (const quint64 id : m_ui->treeWidget->selectedIds())
        m_events.ackEvent(id);
    refreshList();
}

void Alertor::actRemoveSelected()
{
    m_events.removeEvents(m_ui->treeWidget->selectedIds());
    TDesktop::ReturnFreedMemory();
    refreshList();
}

void Alertor::actRemoveAll()
{
    m_events.removeAll();
    TDesktop::ReturnFreedMemory();
    refreshList();
}

QList<const NotifyEvent *> Alertor::selectedEvents() const
{
    QList<const NotifyEvent *> events;
    for (const quint64 id : m_ui->treeWidget->selectedIds()) {
        if (const NotifyEvent *event = m_events.find(id))
            events += event;
    }
    return events;
}

void Alertor::actOpenOutput()
{
    QStringList paths;
    for (const NotifyEvent *event : selectedEvents())
        paths += event->text(EventKey::kFramesPath);
    paths.removeAll(QString());
    for (const QString &path : paths) {
        if (!ResultOpener::openFolder(path))
            showError(tr("Cannot open output folder %1").arg(path));
    }
}

void Alertor::actOpenFrame()
{
    QList<EventFrames> selected;
    for (const NotifyEvent *event : selectedEvents()) {
        if (hasText(event, EventKey::kFramesMask))
            selected += framesOf(*event, m_events);
    }
    for (const EventFrames &frames : selected) {
        if (ImageViewer *viewer = CreateImageViewer(this))
            ViewerWindows::show(*viewer, frames, true);
    }
}

void Alertor::actOpenFrameExternally()
{
    QStringList frames;
    for (const NotifyEvent *event : selectedEvents()) {
        const QString file = event->text(EventKey::kFramesFilePath);
        frames += file.isEmpty() ? event->text(EventKey::kFramesMask) : file;
    }
    frames.removeAll(QString());
    for (const QString &frame : frames) {
        if (!ResultOpener::startExternalViewer(m_settings.imageViewer, frame))
            showError(tr("Cannot launch image viewer to shown selected frame"));
    }
}

void Alertor::showError(const QString &text)
{
    QMessageBox box(QMessageBox::Critical, product::kProductTitle, text, QMessageBox::Ok, this);
    // Paths come from the farm: they are no markup.
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Ok);
    box.exec();
}

void Alertor::onQuit()
{
    const auto answer = QMessageBox::question(this, product::kProductTitle,
                                              tr("Are you sure you want to close the Alertor?"));
    // Not quit(): that asks every window to close, and this one never does.
    if (answer == QMessageBox::Yes)
        QCoreApplication::exit(0);
}

void Alertor::actIsSilent()
{
    m_silent = m_trayMenu->silent->isChecked();
}

void Alertor::popupMenu(const QPoint &position)
{
    Q_UNUSED(position);
    const QList<const NotifyEvent *> selected = selectedEvents();
    const auto any = [&selected](auto test) { return std::any_of(selected.begin(), selected.end(), test); };
    const bool anyFrames =
        any([](const NotifyEvent *event) { return hasText(event, EventKey::kFramesMask); });
    m_listMenu->acknowledge->setEnabled(any([](const NotifyEvent *event) { return !event->acknowledged; }));
    m_listMenu->openOutput->setEnabled(
        any([](const NotifyEvent *event) { return hasText(event, EventKey::kFramesPath); }));
    m_listMenu->openFrames->setEnabled(anyFrames);
    m_listMenu->openFramesExternally->setEnabled(anyFrames);
    m_listMenu->removeSelection->setEnabled(!selected.isEmpty());
    m_listMenu->removeAll->setEnabled(m_events.size() > 0);
    m_listMenu->popup(QCursor::pos());
}

void Alertor::minimize()
{
    if (!QSystemTrayIcon::isSystemTrayAvailable()) {
        // Nobody would find a hidden window again.
        isVisible() ? showMinimized() : show();
        return;
    }
    hide();
    if (m_firstHideHint && m_settings.showBubble)
        m_tray.showBackgroundHint();
    m_firstHideHint = false;
}

void Alertor::restore()
{
    if (m_settings.autoAckOnRaise)
        actAckEvents();
    showNormal();
    raise();
    activateWindow();
}

void Alertor::openImageViewer()
{
    if (ImageViewer *viewer = CreateImageViewer(this)) {
        viewer->show();
        viewer->raise();
    }
}

ImageViewer *Alertor::CreateImageViewer(QWidget *parent)
{
    if (TAppState::instance().openGlUsable)
        return m_viewers.create(parent);
    QSkinnedMessageBox::critical(parent, product::kProductTitle,
                                 tr("OpenGL not supported by your GPU! Image viewer cannot be used!"),
                                 QMessageBox::Ok);
    return nullptr;
}

void Alertor::iconActivated(QSystemTrayIcon::ActivationReason reason)
{
    if (reason == QSystemTrayIcon::Context)
        updateTrayMenu();
    else if (reason == QSystemTrayIcon::DoubleClick)
        restore();
}

void Alertor::updateTrayMenu()
{
    m_trayMenu->acknowledge->setEnabled(m_events.anyUnacknowledged());
    m_trayMenu->restore->setEnabled(!isVisible() || isMinimized());
    m_trayMenu->silent->setChecked(m_silent);
}

void Alertor::handleMessage(const QString &message)
{
    if (message != QLatin1String("wakeup"))
        return;
    if (!QSystemTrayIcon::isSystemTrayAvailable())
        restore();
    else if (m_settings.showBubble)
        m_tray.showBackgroundHint();
}

void Alertor::configure()
{
    if (m_preferences) { // the tray menu is within reach while it is open
        m_preferences->raise();
        return;
    }
    const QPointer<preferences> dialog = new preferences(this);
    m_preferences = dialog;
    dialog->setValues(m_settings);
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
    const Settings edited = accepted ? dialog->values(m_settings) : m_settings;
    delete dialog;
    if (!accepted)
        return;
    const bool reconnect = edited.link() != m_settings.link();
    m_settings = edited;
    if (reconnect) {
        m_session.reconnect(m_settings.link());
        updateIcon(false);
    }
    m_viewers.setSettings(m_settings);
    m_sounds.clear();
    saveSettings();
}

void Alertor::timerEvent()
{
    static quint32 tick = 0;
    updateIcon(tick % kFlashTicks != 0);
    if (tick % kConnectionTicks == 0) {
        standInForTray();
        if (m_session.autoReconnect())
            checkLocalConnection();
    }
    ++tick;
}

void Alertor::standInForTray()
{
    const bool hasTray = QSystemTrayIcon::isSystemTrayAvailable();
    m_ui->menuButton->setVisible(!hasTray);
    // A window that was hidden into a tray which has gone since: nobody would find it again.
    if (!hasTray && !isVisible() && !m_firstHideHint)
        show();
}

void Alertor::closeEvent(QCloseEvent *event)
{
    minimize();
    event->ignore();
}

void Alertor::showEvent(QShowEvent *event)
{
    standInForTray();
    QDialog::showEvent(event);
}

bool Alertor::event(QEvent *event)
{
    keepManaged(this, event);
    return QDialog::event(event);
}

bool Alertor::eventFilter(QObject *object, QEvent *event)
{
    if (object != m_ui->treeWidget)
        return QDialog::eventFilter(object, event);
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        actRemoveSelected();
        return true;
    }
    return false;
}

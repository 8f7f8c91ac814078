#include "alertor.h"

#include "emptylist.h"
#include "eventcolumns.h"
#include "linkdisplay.h"
#include "menus.h"
#include "messages.h"
#include "notifylog.h"
#include "pendingcounts.h"
#include "preferences.h"
#include "setup.h"
#include "ui_alertor.h"

#include <net/protocol/packets.h>
#include <notify/events/eventbuilder.h>
#include <notify/events/notifyevent.h>
#include <system/tdesktop.h>
#include <ui/managedwindow.h>
#include <ui/plaintext.h>
#include <viewer/imageviewer.h>

#include <QtCore/QPointer>
#include <QtGui/QCloseEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QShortcut>
#include <QtWidgets/QApplication>

#include <chrono>
#include <cstdio>

namespace {

constexpr auto kTick = std::chrono::milliseconds(400);
constexpr quint32 kFlashTicks = 4;
constexpr quint32 kConnectionTicks = 16;

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
    m_ui->statusLine->addButton(m_ui->menuButton);
    m_ui->treeWidget->setModel(&m_model);
    m_ui->statusLine->counts().follow(m_events, m_model);
    m_ui->treeWidget->installEventFilter(this);
    connect(m_ui->treeWidget, &QWidget::customContextMenuRequested, this, &Alertor::popupMenu);
    connect(m_ui->treeWidget, &EventsView::openRequested, this,
            [this](quint64 id) { m_actions.openEvent(id); });
    buildMenus();
    connectSession();
    m_session.setSettings(m_settings.link());
    m_viewers.setSettings(m_settings);
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
    hide(); // what it keeps is saved then
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
    auto *windowMenu = new WindowMenu(*m_trayMenu, m_ui->treeWidget->columns().menu(), this);
    connect(windowMenu, &QMenu::aboutToShow, this, &Alertor::updateTrayMenu);
    connect(windowMenu->about, &QAction::triggered, this, [this] { Setup::openAbout(*this); });
    m_ui->menuButton->setMenu(windowMenu);
    connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, m_ui->menuButton,
            &QPushButton::showMenu);

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
    connect(&m_session, &DispatcherSession::reportChanged, this, [this] { updateIcon(true); });
    auto *emptyList = new EmptyList(m_ui->treeWidget);
    connect(emptyList, &EmptyList::configureRequested, this, &Alertor::configure);
    connect(m_ui->statusLine, &StatusLine::connectRequested, &m_session, &DispatcherSession::retry);
    m_linkDisplay = new LinkDisplay(m_session, {m_tray, *m_ui->statusLine, *emptyList}, this);
}

void Alertor::loadSettings()
{
    m_settings = ::loadSettings();
    m_commandLineOverrides.applyTo(m_settings);
    m_isConfigured = anySettingStored() || m_commandLineOverrides.any();
    m_linkDisplay->setConfigured(m_isConfigured);
    m_session.setSettings(m_settings.link());
    m_viewers.setSettings(m_settings);
    keepAbove(this, m_settings.keepAbove);
}

void Alertor::saveSettings()
{
    if (!::saveSettings(m_settings))
        Messages::showError(this,
                            tr("Cannot save the settings: check the free space and the permissions of your "
                               "home folder. Your changes apply until you quit."));
}

void Alertor::checkLocalConnection()
{
    m_session.checkLocalConnection();
    updateIcon(false);
}

void Alertor::socketStateChanged([[maybe_unused]] QAbstractSocket::SocketState state) { }

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
    m_tray.update(m_session.report().state, m_pendingLevel, normal);
}

void Alertor::processCommand(uint cmd, QByteArray *payload)
{
    switch (cmd) {
    case CMD_NOTIFICATION:
        if (const std::optional<NotificationPacket> packet = decodeNotification(*payload))
            handleNewEvent(buildEvent(*packet, m_nextEventId++));
        break;
    case CMD_LOGIN_DENIED:
        m_session.refuse();
        if (!m_refusal) // one box serves any number of refusals
            m_refusal = Messages::openRefusal(this);
        break;
    case CMD_CUSTOM_MESSAGE:
        processCustomMessage(*payload);
        break;
    default:
        break;
    }
}

void Alertor::processCustomMessage(const QByteArray &payload)
{
    const std::optional<CustomMessagePacket> packet = decodeCustomMessage(payload);
    if (!packet)
        std::fputs("Invalid content received for onkD2ACustomMessage\n", stderr);
    else if (m_customMessageHandler)
        m_customMessageHandler(packet->templateId, packet->message);
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
           qUtf8Printable(shortened(kept.text(EventKey::kMessage))));
    // The check boxes of the preferences do not count here: a path that is set is played.
    if (!m_silent && handling.sound)
        m_sounds.play(m_settings.*handling.sound);
    if (handling.singleFrame && m_settings.launchImageViewer)
        m_actions.openResult(kept);
    else if (m_settings.showBubble)
        m_tray.showNewEvent();
    refreshList();
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

void Alertor::actOpenOutput()
{
    m_actions.openOutputs(m_ui->treeWidget->selectedIds());
}

void Alertor::actOpenFrame()
{
    m_actions.openFrames(m_ui->treeWidget->selectedIds());
}

void Alertor::actOpenFrameExternally()
{
    m_actions.openFramesExternally(m_ui->treeWidget->selectedIds());
}

void Alertor::onQuit()
{
    // Not quit(): that asks every window to close, and this one never does.
    if (Messages::askToQuit(this))
        QCoreApplication::exit(0);
}

void Alertor::actIsSilent()
{
    m_silent = m_trayMenu->silent->isChecked();
}

void Alertor::popupMenu(const QPoint &position)
{
    m_listMenu->follow(m_events.find(m_ui->treeWidget->selectedIds()), m_events.size() > 0);
    m_listMenu->popup(m_ui->treeWidget->viewport()->mapToGlobal(position));
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
        m_events.ackAllAtSight();
    refreshList();
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
    return m_viewers.create(parent);
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
    m_trayMenu->follow({m_events.anyUnacknowledged(), !isVisible() || isMinimized(), m_silent});
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
    if (auto *open = findChild<preferences *>()) // the tray menu is within reach while it is open
        open->raise();
    else if (const std::optional<Settings> edited = preferences::edit(m_settings, this))
        applySettings(*edited);
}

void Alertor::applySettings(const Settings &edited)
{
    const bool isOtherLink = edited.link() != m_settings.link();
    m_settings = edited;
    if (isOtherLink)
        m_linkDisplay->forgetLink();
    if (isOtherLink || !m_isConfigured || !m_session.autoReconnect()) {
        m_isConfigured = true;
        m_linkDisplay->setConfigured(true);
        m_session.reconnect(m_settings.link());
        updateIcon(false);
    }
    m_viewers.setSettings(m_settings);
    keepAbove(this, m_settings.keepAbove);
    m_sounds.clear();
    saveSettings();
}

void Alertor::timerEvent()
{
    updateIcon(m_tick % kFlashTicks != 0);
    m_session.checkAfterSleep();
    if (m_tick % kConnectionTicks == 0) {
        standInForTray();
        m_linkDisplay->attempt(kConnectionTicks * kTick);
        if (m_isConfigured && m_session.autoReconnect())
            checkLocalConnection();
    }
    ++m_tick;
}

void Alertor::standInForTray()
{
    const bool hasTray = QSystemTrayIcon::isSystemTrayAvailable();
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
    QDialog::showEvent(event); // puts it into the middle of the screen, large or small
    if (!event->spontaneous())
        m_place.takeUp();
}

void Alertor::hideEvent(QHideEvent *event)
{
    if (!event->spontaneous()) {
        m_events.settle();
        m_place.save();
    }
    QDialog::hideEvent(event);
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

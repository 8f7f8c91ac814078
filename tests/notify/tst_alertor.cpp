#include "capturedoutput.h"
#include "farmpackets.h"
#include "glpath.h"
#include "loopbackpeer.h"
#include "modals.h"

#include <notify/alertor.h>
#include <notify/events/notifyevent.h>
#include <notify/eventsview.h>
#include <notify/resultopener.h>
#include <ui/product.h>
#include <viewer/calibrationpanel.h>
#include <viewer/imageviewer.h>
#include <viewer/session/viewersession.h>

#include <QtCore/QScopeGuard>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The window on a link of its own.
struct Farm {
    LoopbackPeer peer;
    Alertor alertor;
    QStringList trayWhileConnecting; // icon and tooltip

    explicit Farm(const QString &key = {}, const QVariant &value = {})
    {
        if (!key.isEmpty())
            QSettings().setValue(key, value);
        CommandLineOverrides overrides;
        overrides.port = peer.port();
        alertor.setCommandLineOverrides(overrides);
        alertor.loadSettings();
        QSettings().clear();
        alertor.checkLocalConnection();
        trayWhileConnecting = tray();
        QTRY_VERIFY(!peer.received().isEmpty());
    }
    QStringList tray() const
    {
        return {alertor.tray().shownIcon(), alertor.tray().toolTip().section(u'\n', 0, 0)};
    }
    void send(const NotificationPacket &packet) { peer.send(farm::frame(packet)); }
    /// One event of each of these job statuses.
    void sendJobs(const QList<int> &statuses)
    {
        const qsizetype before = alertor.events().size();
        for (const int status : statuses) {
            const TClientLib::TJob job = farm::job(status);
            send(farm::notification(1, &job));
        }
        QTRY_COMPARE(alertor.events().size(), before + statuses.size());
    }
    void tick(int times)
    {
        while (times-- > 0)
            QMetaObject::invokeMethod(&alertor, "timerEvent");
    }
    QString text(const char *label) const
    {
        const auto *found = alertor.findChild<QLabel *>(QLatin1String(label));
        return found->isVisible() ? found->text() : QString();
    }
    EventsView *list() const { return alertor.findChild<EventsView *>(u"treeWidget"_s); }
    QMenu *menu(const char *name) const { return alertor.findChild<QMenu *>(QLatin1String(name)); }
    void show()
    {
        alertor.show();
        QVERIFY(QTest::qWaitForWindowExposed(&alertor));
    }
    void click(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const QRect cell = list()->visualRect(list()->model()->index(row, EventsModel::Message));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, modifiers, cell.center());
    }
};

/// All entries, or those that can be chosen.
QString textsOf(const QMenu *menu, bool enabled = false)
{
    QStringList texts;
    for (const QAction *action : menu->actions()) {
        if (!enabled || (action->isEnabled() && !action->isSeparator()))
            texts += action->isSeparator() ? u"-"_s : action->text();
    }
    return texts.join(u'|');
}

/// The toolkit's own, beside the icon.
QWidget *bubble()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->inherits("QBalloonTip") && window->isVisible())
            return window;
    }
    return nullptr;
}

} // namespace

class TestAlertor final : public QObject {
    Q_OBJECT

public:
    static void initMain()
    {
        chooseGlPath();
        QCoreApplication::setOrganizationName(product::kOrganisation);
        QCoreApplication::setApplicationName(product::kApplicationName);
        QApplication::setQuitOnLastWindowClosed(false);
    }

private Q_SLOTS:
    void theWindowIsAsDrawnAndManaged()
    {
        Farm farm;
        QCOMPARE(farm.alertor.windowTitle(), u"Tarrow Alertor"_s);
        QCOMPARE(int(farm.alertor.windowFlags() & 0x40400), 0x40400);
        QCOMPARE(
            textsOf(farm.menu("trayMenu")),
            u"&Restore|-|&Acknowledge pending events|&Silent|-|&Open images viewer|-|&Configure|&Quit"_s);
        farm.show();
        farm.alertor.activateWindow();
        QTRY_VERIFY(farm.alertor.isActiveWindow());
        QTRY_VERIFY(farm.alertor.frameGeometry().height()
                    > farm.alertor.height()); // the window manager's frame
    }

    void eventsComeInAndFiltersHold()
    {
        Farm farm(u"behaviours/filterServiceActivities"_s, false);
        farm.send(farm::notification(512)); // dropped
        farm.peer.send(encodeMessage(MessageHeader::Plain, CMD_IGNORED, "x")
                       + encodeMessage(MessageHeader::Plain, 999, "x")
                       + encodeMessage(MessageHeader::Plain, CMD_NOTIFICATION, "m\n1\n2\nu\n\n"));
        farm.sendJobs({1024, 1});
        QCOMPARE(farm.alertor.events().pendingLevel(), SuccessPending);
    }

    void refusalShowsOneBoxAndStops()
    {
        Farm farm;
        const QByteArray refusal = encodeMessage(MessageHeader::Plain, CMD_LOGIN_DENIED, {});
        farm.peer.send(refusal + refusal + farm::frame(farm::notification(512)));
        QTRY_VERIFY(QApplication::activeModalWidget());
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        QCOMPARE(box->windowTitle(), product::kProductTitle);
        QCOMPARE(box->text(),
                 u"Dispatcher denied Alertor connection. Please double check the login and password in the "
                 "Alertor applet configuration dialog!"_s);
        QCOMPARE(farm.alertor.events().size(), 1); // the rest of the drain was not held up
        QTest::keyClick(box, Qt::Key_Return);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        farm.tick(40);
        QCOMPARE(farm.peer.connections(), 1);
        farm.show();
        QVERIFY(farm.text("linkState").startsWith(u"Log-in refused"_s));
        QTest::mouseClick(farm.alertor.findChild<QPushButton *>(u"connectNow"_s), Qt::LeftButton);
        QTRY_COMPARE(farm.peer.received().size(), 2);
        QTRY_VERIFY(farm.text("linkState").startsWith(u"Connected to 127.0.0.1:"_s));
        farm.peer.send(refusal);
        QTRY_VERIFY(QApplication::activeModalWidget());
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        whenModalOpens([](QWidget *modal) { QTest::keyClick(modal, Qt::Key_Return); });
        farm.alertor.configure();
        QTRY_COMPARE(farm.peer.received().size(), 3);
    }

    void theLinkIsToldOf()
    {
        Farm farm;
        farm.show();
        QTRY_VERIFY(farm.text("linkState").startsWith(u"Connected to"_s));
        QVERIFY(farm.alertor.tray().toolTip().startsWith(u"Tarrow Alertor\nConnected to"_s));
        farm.tick(17);
        farm.peer.send(encodeMessage(MessageHeader::Plain, 601, QByteArray(2'000'000, 'x')));
        QTRY_VERIFY(farm.text("linkHistory").contains(u"larger than 1 MiB"_s));
        farm.peer.listen(false);
        farm.peer.dropLink();
        QTRY_VERIFY(farm.text("linkState").startsWith(u"Not connected"_s));
        farm.tick(16);
        QTRY_VERIFY(farm.text("linkState").contains(u"Connection refused. Next try at"_s));
        QVERIFY(
            farm.alertor.tray().toolTip().startsWith(u"Tarrow Alertor (not connected)\nNot connected to"_s));
        QCOMPARE(farm.alertor.tray().shownIcon(), u":/icons/unconnectedIcon"_s);
        farm.peer.listen(true);
        farm.tick(16);
        QTRY_VERIFY(farm.text("linkState").startsWith(u"Connected to"_s));
        farm.tick(16);
        QVERIFY(farm.text("linkHistory").startsWith(u"Link was down"_s));
    }

    void nothingIsTriedBeforeAnythingIsConfigured()
    {
        LoopbackPeer peer;
        Alertor alertor;
        alertor.loadSettings();
        alertor.show();
        QVERIFY(QTest::qWaitForWindowExposed(&alertor));
        for (int tick = 0; tick < 17; ++tick)
            QMetaObject::invokeMethod(&alertor, "timerEvent");
        QVERIFY(!alertor.findChild<QTcpSocket *>());
        QCOMPARE(alertor.tray().shownIcon(), u":/icons/unconnectedIcon"_s);
        whenModalOpens([&peer](QWidget *modal) {
            modal->findChild<QLineEdit *>(u"dispatcherAddress"_s)
                ->setText(u" 127.0.0.1:%1 "_s.arg(peer.port()));
            QTest::keyClick(modal, Qt::Key_Return);
        });
        QTest::mouseClick(alertor.findChild<QPushButton *>(u"configureButton"_s), Qt::LeftButton);
        QTRY_COMPARE(peer.received().size(), 1);
        auto *emptyList = alertor.findChild<QWidget *>(u"emptyList"_s);
        QVERIFY(emptyList->isVisible());
        peer.send(farm::frame(farm::notification(512)));
        QTRY_VERIFY(!emptyList->isVisible());
        QSettings().clear();
    }

    void customMessagesReachTheirHandler()
    {
        Farm farm;
        QByteArrayList received;
        farm.alertor.setCustomMessageHandler(
            [&](int id, const QByteArray &message) { received += QByteArray::number(id) + message; });
        CapturedOutput errors(STDERR_FILENO);
        farm.peer.send(
            encodeMessage(MessageHeader::Plain, CMD_CUSTOM_MESSAGE, "12")
            + encodeMessage(MessageHeader::Plain, CMD_CUSTOM_MESSAGE, encodeCustomMessage({12, "hello"})));
        QTRY_COMPARE(received, QByteArrayList{"12hello"});
        QCOMPARE(errors.take(), "Invalid content received for onkD2ACustomMessage\n");
        const TFramework::TSendEntry &entry = *farm.alertor.sendEntry();
        QVERIFY(entry.send(entry.owner, 700, "back", 4, 1));
        QTRY_COMPARE(farm.peer.received().last().payload, "back");
    }

    void listMenuFollowsTheSelection()
    {
        Farm farm;
        farm.show();
        QTRY_VERIFY(farm.alertor.isActiveWindow());
        TClientLib::TJob job = farm::job();
        job.attributeSetString("frames_mask", "/f/a.####.exr");
        farm.send(farm::notification(1, &job));
        farm.send(farm::notification(512));
        TClientLib::TJob bare = farm::job();
        bare.attributeSetString("output_folder", "/out");
        farm.send(farm::notification(1, &bare));
        QTRY_COMPARE(farm.alertor.events().size(), 3);
        const auto openedOn = [&farm](int row) {
            row < 0 ? farm.list()->clearSelection() : farm.click(row);
            QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, QCursor::pos());
            QApplication::sendEvent(farm.list()->viewport(), &event);
            QString enabled = textsOf(farm.menu("listMenu"), true);
            QTest::keyClick(farm.menu("listMenu"), Qt::Key_Escape);
            return enabled;
        };
        QCOMPARE(openedOn(-1), u"Remove all"_s);
        QCOMPARE(openedOn(1), u"&Acknowledge selection|&Remove selection\tDEL|Remove all"_s);
        QCOMPARE(
            openedOn(0),
            u"&Acknowledge selection|&Open output folder|Open &frame(s)|Open frame(s) exter&nally|&Remove "
            "selection\tDEL|Remove all"_s);
        farm.menu("listMenu")->actions().first()->trigger();
        QVERIFY(farm.alertor.events().at(0).acknowledged);
        QVERIFY(openedOn(2).contains(u"&Open output folder|&Remove"_s));
        QVERIFY(openedOn(0).startsWith(u"&Open output folder"_s));
    }

    void deleteKeyRemovesWhatIsSelected()
    {
        Farm farm;
        farm.show();
        farm.sendJobs({1024, 2048, 4096, 1024});
        farm.click(1);
        farm.click(2, Qt::ControlModifier);
        QTest::keyClick(farm.list(), Qt::Key_Delete);
        QCOMPARE(farm.alertor.events().at(1).eventId, 4U);
        QCOMPARE(farm.alertor.events().pendingLevel(), SuccessPending);
        QCOMPARE(farm.list()->currentIndex().row(), 1); // the row behind the removed ones
        QVERIFY(farm.list()->selectedIds().isEmpty());
        farm.menu("listMenu")->actions().last()->trigger();
        QCOMPARE(farm.alertor.events().size(), 0);
    }

    void theViewSurvivesRebuilds()
    {
        Farm farm;
        farm.show();
        farm.sendJobs(QList<int>(200, 1024));
        EventsView *list = farm.list();
        QScrollBar *bar = list->verticalScrollBar();
        QTRY_VERIFY(bar->maximum() > 0);
        QTRY_COMPARE(bar->value(), bar->maximum()); // new rows stay in sight
        list->scrollTo(list->model()->index(100, 0), QAbstractItemView::PositionAtTop);
        farm.click(102);
        farm.sendJobs({1024});
        QCOMPARE(list->indexAt({0, 0}).data(Qt::UserRole).toULongLong(), 101U); // but not against the user
        const_cast<EventsList &>(farm.alertor.events()).removeEvents({1, 2, 3, 150});
        QCOMPARE(list->selectedIds(), QList<quint64>{103});
        QCOMPARE(list->currentIndex().siblingAtColumn(0).data(Qt::UserRole).toULongLong(), 103U);
        QCOMPARE(list->indexAt({0, 0}).data(Qt::UserRole).toULongLong(), 101U);
    }

    void closingHidesAndRestoringAcknowledges()
    {
        Farm farm;
        QTRY_VERIFY(QSystemTrayIcon::isSystemTrayAvailable());
        farm.show();
        farm.sendJobs({4096});
        QVERIFY(!farm.alertor.close());
        QVERIFY(!farm.alertor.isVisible());
        farm.show();
        QTest::keyClick(&farm.alertor, Qt::Key_Escape);
        QVERIFY(!farm.alertor.isVisible());
        QCOMPARE(farm.alertor.events().pendingLevel(), ErrorPending);
        farm.menu("trayMenu")->popup({10, 10});
        QVERIFY(farm.menu("trayMenu")->actions().first()->isEnabled());
        QTest::keyClick(farm.menu("trayMenu"), Qt::Key_R);
        QTRY_VERIFY(farm.alertor.isVisible());
        QCOMPARE(farm.alertor.events().pendingLevel(), NothingPending);
        farm.menu("trayMenu")->popup({10, 10});
        QCOMPARE(textsOf(farm.menu("trayMenu"), true), u"&Silent|&Open images viewer|&Configure|&Quit"_s);
        QTest::keyClick(farm.menu("trayMenu"), Qt::Key_Escape);

        Farm keeping(u"behaviours/autoAckOnRaise"_s, false);
        keeping.sendJobs({4096});
        keeping.alertor.restore();
        QCOMPARE(keeping.alertor.events().pendingLevel(), ErrorPending);
    }

    void theIconTellsOfTheLinkAndFlashesWhatIsPending()
    {
        Farm farm;
        const QStringList calm{u":/icons/mainIcon"_s, u"Tarrow Alertor"_s};
        const QString notConnected = u"Tarrow Alertor (not connected)"_s;
        QCOMPARE(farm.trayWhileConnecting, (QStringList{u":/icons/connectingIcon"_s, notConnected}));
        QTRY_COMPARE(farm.tray(), calm);
        const auto shownInTicks = [&farm](int ticks) {
            QStringList shown;
            for (int tick = 0; tick < ticks; ++tick) {
                QMetaObject::invokeMethod(&farm.alertor, "timerEvent");
                shown += farm.alertor.tray().shownIcon();
            }
            return shown;
        };
        // Each worse than those before.
        farm.send(farm::notification(512));
        QTRY_COMPARE(farm.alertor.events().size(), 1);
        for (const auto &[status, icon] : {std::pair(1, u":/icons/service"_s),
                                           {1024, u":/icons/itemCompleted"_s},
                                           {2048, u":/icons/itemWarning"_s},
                                           {4096, u":/icons/itemError"_s}}) {
            farm.sendJobs({status});
            const QStringList shown = shownInTicks(8);
            QCOMPARE(shown.count(calm[0]), 6);
            QCOMPARE(shown.count(icon), 2);
        }
        farm.alertor.actAckEvents();
        QCOMPARE(shownInTicks(4), QStringList(4, calm[0]));
        farm.peer.dropLink();
        QTRY_COMPARE(farm.tray(), (QStringList{u":/icons/unconnectedIcon"_s, notConnected}));
    }

    void everyBurstShowsABubble()
    {
        Farm farm;
        QTRY_VERIFY(farm.alertor.tray().isVisible() && !farm.alertor.tray().geometry().isEmpty());
        for (int burst = 0; burst < 2; ++burst) {
            farm.sendJobs({1024, 1024});
            QTRY_VERIFY(bubble());
            QStringList texts;
            for (const QLabel *label : bubble()->findChildren<QLabel *>())
                texts += label->text();
            QVERIFY2(texts.contains(u"New event available!"_s), qPrintable(texts.join(u'|')));
            bubble()->close();
            QTRY_VERIFY(!bubble());
        }
    }

    void quittingAsks()
    {
        Farm farm;
        const auto quitAnswering = [&farm](QMessageBox::StandardButton answer) {
            whenModalOpens([answer](QWidget *modal) {
                auto *box = qobject_cast<QMessageBox *>(modal);
                QCOMPARE(box->text(), u"Are you sure you want to close the Alertor?"_s);
                QTest::mouseClick(box->button(answer), Qt::LeftButton);
            });
            farm.alertor.onQuit();
        };
        QStringList steps;
        QTimer::singleShot(0, &farm.alertor, [&] {
            quitAnswering(QMessageBox::No);
            QTimer::singleShot(0, &farm.alertor, [&] {
                steps += u"still running"_s;
                quitAnswering(QMessageBox::Yes);
            });
        });
        QCOMPARE(QCoreApplication::exec(), 0); // left by the quit alone
        QCOMPARE(steps, QStringList{u"still running"_s});
    }

    void preferencesReconnectWhereTheLinkChanged()
    {
        Farm farm;
        const auto editAndAccept = [&farm](const char *field, const char *text) {
            whenModalOpens([=](QWidget *dialog) {
                auto *edit = dialog->findChild<QLineEdit *>(QLatin1String(field));
                QVERIFY(edit);
                edit->selectAll();
                QTest::keyClicks(edit, QLatin1String(text));
                QTest::keyClick(dialog, Qt::Key_Return);
            });
            farm.menu("trayMenu")->actions().at(7)->trigger();
        };
        editAndAccept("errorSoundPath", "/sounds/error.wav");
        QCOMPARE(farm.alertor.settings().errorSound, u"/sounds/error.wav"_s);
        editAndAccept("authenticationPassword", "secret");
        QTRY_COMPARE(farm.peer.connections(), 2);
        QTRY_COMPARE(farm.peer.received().size(), 2);
        QCOMPARE(decodeLogin(farm.peer.received()[1].payload)->password, u"secret"_s);
        QCOMPARE(loadSettings(), farm.alertor.settings());
        QSettings().clear();
    }

    void resultsOpenOutsideOrSayWhyNot()
    {
        QTemporaryDir folder;
        const QString viewer = folder.filePath(u"viewer"_s);
        QFile script(viewer);
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nprintf '%s|%s' \"$#\" \"$1\" > \"$0.new\" && mv \"$0.new\" \"$0.opened\"\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        Farm farm(u"imageViewer/imageViewer"_s, viewer);
        farm.show();
        TClientLib::TJob job = farm::job();
        job.attributeSetString("frames_mask", "/no where/$(touch x)/a.####.exr");
        job.setFrameRanges({{5, 9, 1}});
        farm.send(farm::notification(1, &job));
        QTRY_COMPARE(farm.alertor.events().size(), 1);
        farm.click(0);
        const auto opened = [viewer] {
            QFile arguments(viewer + u".opened"_s);
            const auto remove = qScopeGuard([&arguments] { arguments.remove(); });
            return QTest::qWaitFor([&] { return arguments.open(QIODevice::ReadOnly); }) ? arguments.readAll()
                                                                                        : QByteArray();
        };
        farm.alertor.actOpenFrameExternally();
        QCOMPARE(opened(), "1|/no where/$(touch x)/a.0005.exr");
        QVERIFY(ResultOpener::startExternalViewer(viewer, u"--exec.####.exr"_s));
        QCOMPARE(opened(), "1|./--exec.####.exr");
        QSettings().setValue(u"imageViewer/imageViewerMode"_s, 1);
        QSettings().setValue(u"imageViewer/launchImageViewer"_s, true);
        Farm automatic(u"imageViewer/imageViewer"_s, viewer);
        TClientLib::TJob still = farm::stillJob("/f/still.exr");
        still.setStatus(2048);
        automatic.send(farm::notification(1, &still));
        QCOMPARE(opened(), "1|/f/still.exr");

        const auto saidBy = [&farm](void (Alertor::*act)()) {
            QString said;
            whenModalOpens([&said](QWidget *box) {
                const auto *plain = qobject_cast<QMessageBox *>(box);
                QVERIFY(!plain || plain->textFormat() == Qt::PlainText);
                for (const QLabel *label : box->findChildren<QLabel *>())
                    said += label->text();
                QTest::keyClick(box->focusWidget(), Qt::Key_Return);
            });
            (farm.alertor.*act)();
            return said;
        };
        QVERIFY(saidBy(&Alertor::actOpenFrame)
                    .contains(u"OpenGL not supported by your GPU! Image viewer cannot be used!"_s));
        QCOMPARE(saidBy(&Alertor::actOpenOutput), u"Cannot open output folder /no where/$(touch x)"_s);

        // A folder that is gone opens the one above, and so does what is no folder: nothing that the farm names is run.
        QDesktopServices::setUrlHandler(u"file"_s, this, "noteOpened");
        for (const QString &output : {folder.path(), folder.filePath(u"gone"_s), viewer}) {
            TClientLib::TJob done = farm::job();
            done.attributeSetString("output_folder", output.toStdString());
            farm.send(farm::notification(1, &done));
            QTRY_COMPARE(farm.alertor.events().size(), 2);
            farm.click(1);
            farm.alertor.actOpenOutput();
            QCOMPARE(std::exchange(m_opened, {}), QUrl::fromLocalFile(folder.path()));
            farm.alertor.actRemoveSelected();
        }
        QDesktopServices::unsetUrlHandler(u"file"_s);
    }

    void framesOpenInAViewerEach()
    {
        TAppState::instance() = m_openGl;
        const auto restore = qScopeGuard([] { TAppState::instance() = {}; });
        QTemporaryDir folder;
        TClientLib::TJob job = farm::job();
        job.attributeSetString("frames_mask", folder.filePath(u"a.####.exr"_s).toStdString());
        job.setFrameRanges({{5, 9, 1}});
        const QString picture = folder.filePath(u"still.png"_s);
        QVERIFY(QImage(10, 10, QImage::Format_RGB32).save(picture));
        const TClientLib::TJob still = farm::stillJob(picture.toStdString());
        TClientLib::TChunk chunk = farm::chunk();
        chunk.setFrames(5, 6, 1);
        Farm notAsked;
        notAsked.send(farm::notification(1, &still));
        QSettings().setValue(u"imageViewer/imageViewerMaxGPUCache"_s, 4000);
        Farm farm(u"imageViewer/launchImageViewer"_s, true);
        farm.show();
        const auto viewers = [&farm] { return farm.alertor.findChildren<ImageViewer *>(); };

        farm.send(farm::notification(1, &job));
        farm.send(farm::notification(2, &job, &chunk));
        QTRY_COMPARE(farm.alertor.events().size(), 2);
        QVERIFY(viewers().isEmpty());
        farm.list()->selectAll();
        farm.alertor.actOpenFrame();
        QCOMPARE(viewers().size(), 2);
        QCOMPARE(viewers()[0]->session().sequence().frames, (std::set<long>{5, 6, 7, 8, 9}));
        QCOMPARE(viewers()[0]->session().marking().chunks().size(), 1U);
        QCOMPARE(viewers()[1]->session().sequence().frames, (std::set<long>{5, 6}));
        qDeleteAll(viewers());

        for (int i = 0; i < 25; ++i)
            farm.send(farm::notification(1, &still));
        QTRY_COMPARE(farm.alertor.events().size(), 27);
        QTRY_COMPARE(viewers().size(), 20); // and no more by themselves
        QVERIFY(QString::fromStdString(viewers().last()->session().sequence().framesPath)
                    .endsWith(u"still.png"_s));
        // The budgets and the gammas are those of the preferences, each its own.
        QCOMPARE(viewers().first()->findChild<QLabel *>(u"infoLabel"_s)->text(),
                 u"VRAM Cache Usage: 7.50% RAM Cache Usage: 0.00% "_s);
        QCOMPARE(viewers().first()->calibration().inputGamma(), 1.0F);
        farm.alertor.openImageViewer();
        QVERIFY(viewers().last()->session().sequence().framesPath.empty());
        QCOMPARE(notAsked.alertor.events().size(), 1);
        QVERIFY(!notAsked.alertor.findChild<ImageViewer *>());
    }

public Q_SLOTS:
    void noteOpened(const QUrl &url) { m_opened = url; }

private:
    QUrl m_opened;
    // What there is; the tests run without, but for the one of the viewer.
    const TAppState m_openGl = std::exchange(TAppState::instance(), {});
};

QTEST_MAIN(TestAlertor)
#include "tst_alertor.moc"

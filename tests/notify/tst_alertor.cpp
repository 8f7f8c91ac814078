#include "farmpackets.h"
#include "glpath.h"
#include "loopbackpeer.h"

#include <alertor.h>
#include <eventsview.h>
#include <imageviewer.h>
#include <notifyevent.h>
#include <product.h>
#include <resultopener.h>

#include <QtCore/QScopeGuard>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtGui/QContextMenuEvent>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

#include <utility>

namespace {

/// The window on a link of its own.
struct Farm {
    LoopbackPeer peer;
    Alertor alertor;

    Farm()
    {
        CommandLineOverrides overrides;
        overrides.port = peer.port();
        alertor.setCommandLineOverrides(overrides);
        alertor.loadSettings();
        alertor.checkLocalConnection();
    }
    void send(const NotificationPacket &packet) { peer.send(farm::frame(packet)); }
    /// One event of each of these job statuses.
    void sendJobs(const QList<int> &statuses)
    {
        for (const int status : statuses) {
            const TClientLib::TJob job = farm::job(status);
            send(farm::notification(1, &job));
        }
    }
    bool up() const { return !peer.received().isEmpty(); }
    EventsView *list() const { return alertor.findChild<EventsView *>(QStringLiteral("treeWidget")); }
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

QStringList textsOf(const QMenu &menu)
{
    QStringList texts;
    for (const QAction *action : menu.actions())
        texts += action->isSeparator() ? QStringLiteral("-") : action->text();
    return texts;
}

QStringList enabledIn(const QMenu &menu)
{
    QStringList texts;
    for (const QAction *action : menu.actions()) {
        if (!action->isSeparator() && action->isEnabled())
            texts += action->text();
    }
    return texts;
}

} // namespace

class TestAlertor final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void slotsStandInOrder()
    {
        const QMetaObject &meta = Alertor::staticMetaObject;
        QByteArrayList names;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            names += meta.method(i).name();
        QCOMPARE(
            names.join(' '),
            "checkLocalConnection socketStateChanged socketError socketConnected socketDisconnected "
            "socketMessage "
            "openConnection closeConnection updateIcon processCommand actAckEvents actRemoveSelected "
            "actRemoveAll "
            "actAckSelection actOpenOutput actOpenFrame actOpenFrameExternally onQuit actIsSilent popupMenu "
            "minimize restore openImageViewer CreateImageViewer iconActivated handleMessage configure "
            "timerEvent");
    }

    void theWindowIsAsDrawn()
    {
        Farm farm;
        QCOMPARE(farm.alertor.objectName(), QStringLiteral("AlertorClass"));
        QCOMPARE(farm.alertor.windowTitle(), QStringLiteral("Tarrow Alertor"));
        QCOMPARE(farm.alertor.size(), QSize(600, 400));
        QCOMPARE(farm.list()->header()->sectionSize(EventsModel::Acknowledged), 30);
        QCOMPARE(int(farm.alertor.windowFlags() & 0x40400), 0x40400);
        QCOMPARE(textsOf(*farm.menu("trayMenu")).join(QLatin1Char('|')),
                 QStringLiteral("&Restore|-|&Acknowledge pending events|&Silent|-|&Open images "
                                "viewer|-|&Configure|&Quit"));
        QCOMPARE(textsOf(*farm.menu("listMenu")).join(QLatin1Char('|')),
                 QStringLiteral("&Acknowledge selection|-|&Open output folder|-|Open &frame(s)|Open frame(s) "
                                "exter&nally|-|&Remove selection\tDEL|Remove all"));
    }

    void eventsComeInAndFiltersHold()
    {
        QSettings().setValue(QStringLiteral("behaviours/filterServiceActivities"), false);
        Farm farm;
        QSettings().clear();
        QTRY_VERIFY(farm.up());
        farm.send(farm::notification(512)); // dropped
        farm.peer.send(encodeFrame(FrameHeader::Plain, CMD_IGNORED, "x")
                       + encodeFrame(FrameHeader::Plain, 999, "x")
                       + encodeFrame(FrameHeader::Plain, CMD_NOTIFICATION, "m\n1\n2\nu\n\n"));
        farm.sendJobs({1024, 1});
        QTRY_COMPARE(farm.alertor.events().size(), 2);
        QCOMPARE(farm.alertor.events().pendingLevel(), SuccessPending);
    }

    void refusalShowsOneBoxAndStops()
    {
        Farm farm;
        QTRY_VERIFY(farm.up());
        const QByteArray refusal = encodeFrame(FrameHeader::Plain, CMD_LOGIN_DENIED, {});
        farm.peer.send(refusal + refusal + farm::frame(farm::notification(512)));
        QTRY_VERIFY(QApplication::activeModalWidget());
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        QCOMPARE(box->windowTitle(), product::kProductTitle);
        QCOMPARE(box->text(),
                 QStringLiteral("Dispatcher denied Alertor connection. Please double check the login and "
                                "password in the Alertor applet configuration dialog!"));
        QCOMPARE(farm.alertor.events().size(), 1); // the rest of the drain was not held up
        QTest::keyClick(box, Qt::Key_Return);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        for (int tick = 0; tick < 40; ++tick)
            QMetaObject::invokeMethod(&farm.alertor, "timerEvent");
        QCOMPARE(farm.peer.connections(), 1);
    }

    void customMessagesReachTheirHandler()
    {
        Farm farm;
        QList<QPair<int, QByteArray>> received;
        farm.alertor.setCustomMessageHandler([&](int id, const QByteArray &message) {
            received.append({id, message});
        });
        QTRY_VERIFY(farm.up());
        farm.peer.send(
            encodeFrame(FrameHeader::Plain, CMD_CUSTOM_MESSAGE, "12")
            + encodeFrame(FrameHeader::Plain, CMD_CUSTOM_MESSAGE, encodeCustomMessage({12, "hello"})));
        QTRY_COMPARE(received.size(), 1);
        QCOMPARE(received[0], (QPair<int, QByteArray>(12, "hello")));
        const TFramework::TSendEntry &entry = *farm.alertor.sendEntry();
        QVERIFY(entry.send(entry.owner, 700, "back", 4, 1));
        QTRY_COMPARE(farm.peer.received().last().payload, "back");
    }

    void listMenuFollowsTheSelection()
    {
        Farm farm;
        QTRY_VERIFY(farm.up());
        farm.show();
        QTRY_VERIFY(farm.alertor.isActiveWindow());
        TClientLib::TJob job = farm::job();
        job.attributeSetString("frames_mask", "/f/a.####.exr");
        farm.send(farm::notification(1, &job));
        farm.send(farm::notification(512));
        QTRY_COMPARE(farm.alertor.events().size(), 2);
        const auto openedOn = [&farm](int row) {
            row < 0 ? farm.list()->clearSelection() : farm.click(row);
            QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, QCursor::pos());
            QApplication::sendEvent(farm.list()->viewport(), &event);
            const QStringList enabled = enabledIn(*farm.menu("listMenu"));
            QTest::keyClick(farm.menu("listMenu"), Qt::Key_Escape);
            return enabled.join(QLatin1Char('|'));
        };
        QCOMPARE(openedOn(-1), QStringLiteral("Remove all"));
        QCOMPARE(openedOn(1), QStringLiteral("&Acknowledge selection|&Remove selection\tDEL|Remove all"));
        QCOMPARE(openedOn(0),
                 QStringLiteral("&Acknowledge selection|&Open output folder|Open &frame(s)|Open frame(s) "
                                "exter&nally|&Remove selection\tDEL|Remove all"));
        farm.menu("listMenu")->actions().first()->trigger();
        QVERIFY(farm.alertor.events().at(0).acknowledged);
        QVERIFY(openedOn(0).startsWith(QStringLiteral("&Open output folder")));
    }

    void deleteKeyRemovesWhatIsSelected()
    {
        Farm farm;
        QTRY_VERIFY(farm.up());
        farm.show();
        farm.sendJobs({1024, 2048, 4096, 1024});
        QTRY_COMPARE(farm.alertor.events().size(), 4);
        farm.click(1);
        farm.click(2, Qt::ControlModifier);
        QTest::keyClick(farm.list(), Qt::Key_Delete);
        QCOMPARE(farm.alertor.events().size(), 2);
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
        QTRY_VERIFY(farm.up());
        farm.sendJobs(QList<int>(200, 1024));
        QTRY_COMPARE(farm.alertor.events().size(), 200);
        EventsView *list = farm.list();
        QScrollBar *bar = list->verticalScrollBar();
        QTRY_VERIFY(bar->maximum() > 0);
        QTRY_COMPARE(bar->value(), bar->maximum()); // new rows stay in sight
        list->scrollTo(list->model()->index(100, 0), QAbstractItemView::PositionAtTop);
        farm.click(102);
        farm.sendJobs({1024});
        QTRY_COMPARE(farm.alertor.events().size(), 201);
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
        QTRY_VERIFY(farm.up());
        farm.show();
        farm.sendJobs({4096});
        QTRY_COMPARE(farm.alertor.events().size(), 1);
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
        QCOMPARE(enabledIn(*farm.menu("trayMenu")).join(QLatin1Char('|')),
                 QStringLiteral("&Silent|&Open images viewer|&Configure|&Quit"));
        QTest::keyClick(farm.menu("trayMenu"), Qt::Key_Escape);
    }

    void theIconFlashesOneTickInFour()
    {
        Farm farm;
        QTRY_VERIFY(farm.up());
        const QString calm = QStringLiteral(":/icons/mainIcon");
        farm.sendJobs({4096});
        QTRY_COMPARE(farm.alertor.events().size(), 1);
        QStringList shown;
        for (int tick = 0; tick < 8; ++tick) {
            QMetaObject::invokeMethod(&farm.alertor, "timerEvent");
            shown += farm.alertor.tray().shownIcon();
        }
        QCOMPARE(shown.count(calm), 6);
        QCOMPARE(shown.count(QStringLiteral(":/icons/itemError")), 2);
        farm.alertor.actAckEvents();
        for (int tick = 0; tick < 4; ++tick) {
            QMetaObject::invokeMethod(&farm.alertor, "timerEvent");
            QCOMPARE(farm.alertor.tray().shownIcon(), calm);
        }
        farm.peer.dropLink();
        QTRY_COMPARE(farm.alertor.tray().shownIcon(), QStringLiteral(":/icons/unconnectedIcon"));
    }

    void quittingAsks()
    {
        Farm farm;
        const auto quitAnswering = [&farm](QMessageBox::StandardButton answer) {
            QTimer::singleShot(0, &farm.alertor, [answer] {
                QTRY_VERIFY(QApplication::activeModalWidget());
                auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                QCOMPARE(box->text(), QStringLiteral("Are you sure you want to close the Alertor?"));
                QTest::mouseClick(box->button(answer), Qt::LeftButton);
            });
            farm.alertor.onQuit();
        };
        QStringList steps;
        QTimer::singleShot(0, &farm.alertor, [&] {
            quitAnswering(QMessageBox::No);
            QTimer::singleShot(0, &farm.alertor, [&] {
                steps += QStringLiteral("still running");
                quitAnswering(QMessageBox::Yes);
            });
        });
        QCOMPARE(QCoreApplication::exec(), 0); // left by the quit alone
        QCOMPARE(steps, QStringList{QStringLiteral("still running")});
    }

    void preferencesReconnectWhereTheLinkChanged()
    {
        Farm farm;
        QTRY_VERIFY(farm.up());
        const auto editAndAccept = [&farm](const char *field, const char *text) {
            QTimer::singleShot(0, &farm.alertor, [=] {
                QTRY_VERIFY(QApplication::activeModalWidget());
                QWidget *dialog = QApplication::activeModalWidget();
                auto *edit = dialog->findChild<QLineEdit *>(QLatin1String(field));
                QVERIFY(edit);
                edit->selectAll();
                QTest::keyClicks(edit, QLatin1String(text));
                QTest::keyClick(dialog, Qt::Key_Return);
            });
            farm.menu("trayMenu")->actions().at(7)->trigger();
        };
        editAndAccept("errorSoundPath", "/sounds/error.wav");
        QCOMPARE(farm.alertor.settings().errorSound, QStringLiteral("/sounds/error.wav"));
        editAndAccept("authenticationPassword", "secret");
        QTRY_COMPARE(farm.peer.connections(), 2);
        QTRY_COMPARE(farm.peer.received().size(), 2);
        QCOMPARE(decodeLogin(farm.peer.received()[1].payload)->password, QStringLiteral("secret"));
        QCOMPARE(loadSettings(), farm.alertor.settings());
        QSettings().clear();
    }

    void resultsOpenOutsideOrSayWhyNot()
    {
        QTemporaryDir folder;
        const QString viewer = folder.filePath(QStringLiteral("viewer"));
        const QString opened = viewer + QStringLiteral(".opened");
        QFile script(viewer);
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nprintf '%s|%s' \"$#\" \"$1\" > \"$0.new\" && mv \"$0.new\" \"$0.opened\"\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        QSettings().setValue(QStringLiteral("imageViewer/imageViewer"), viewer);
        Farm farm;
        QSettings().clear();
        QTRY_VERIFY(farm.up());
        farm.show();
        TClientLib::TJob job = farm::job();
        job.attributeSetString("frames_mask", "/no where/$(touch x)/a.####.exr");
        job.setFrameRanges({{5, 9, 1}});
        farm.send(farm::notification(1, &job));
        QTRY_COMPARE(farm.alertor.events().size(), 1);
        farm.click(0);
        farm.alertor.actOpenFrameExternally();
        QTRY_VERIFY(QFile::exists(opened));
        QFile arguments(opened);
        QVERIFY(arguments.open(QIODevice::ReadOnly));
        QCOMPARE(arguments.readAll(), "1|/no where/$(touch x)/a.0005.exr");
        QVERIFY(arguments.remove());
        QVERIFY(ResultOpener::startExternalViewer(viewer, QStringLiteral("--exec.####.exr")));
        QTRY_VERIFY(QFile::exists(opened));
        QVERIFY(arguments.open(QIODevice::ReadOnly));
        QCOMPARE(arguments.readAll(), "1|./--exec.####.exr");

        const auto saidBy = [&farm](void (Alertor::*act)()) {
            QString said;
            QTimer::singleShot(0, &farm.alertor, [&said] {
                QTRY_VERIFY(QApplication::activeModalWidget());
                QWidget *box = QApplication::activeModalWidget();
                for (const QLabel *label : box->findChildren<QLabel *>())
                    said += label->text();
                QTest::keyClick(box->focusWidget(), Qt::Key_Return);
            });
            (farm.alertor.*act)();
            return said;
        };
        QVERIFY(
            saidBy(&Alertor::actOpenFrame)
                .contains(QStringLiteral("OpenGL not supported by your GPU! Image viewer cannot be used!")));
        QCOMPARE(saidBy(&Alertor::actOpenOutput),
                 QStringLiteral("Cannot open output folder /no where/$(touch x)"));
    }

    void framesOpenInAViewerEach()
    {
        TAppState::instance() = m_openGl;
        const auto restore = qScopeGuard([] { TAppState::instance() = {}; });
        QTemporaryDir folder;
        TClientLib::TJob job = farm::job();
        job.attributeSetString("frames_mask", folder.filePath(QStringLiteral("a.####.exr")).toStdString());
        job.setFrameRanges({{5, 9, 1}});
        TClientLib::TJob still = farm::job();
        still.setPacketType(2);
        still.setTasksMask(2);
        still.attributeSetString("final_filename",
                                 folder.filePath(QStringLiteral("still.exr")).toStdString());
        TClientLib::TChunk chunk = farm::chunk();
        chunk.setFrames(5, 6, 1);
        QSettings().setValue(QStringLiteral("imageViewer/launchImageViewer"), true);
        Farm farm;
        QSettings().clear();
        QTRY_VERIFY(farm.up());
        farm.show();
        const auto viewers = [&farm] { return farm.alertor.findChildren<ImageViewer *>(); };

        farm.send(farm::notification(1, &job));
        farm.send(farm::notification(2, &job, &chunk));
        QTRY_COMPARE(farm.alertor.events().size(), 2);
        QVERIFY(viewers().isEmpty());
        farm.list()->selectAll();
        farm.alertor.actOpenFrame();
        QCOMPARE(viewers().size(), 2);
        QCOMPARE(viewers()[0]->sequence().frames, (std::set<long>{5, 6, 7, 8, 9}));
        QCOMPARE(viewers()[0]->marking().chunks().size(), 1U);
        QCOMPARE(viewers()[1]->sequence().frames, (std::set<long>{5, 6}));
        qDeleteAll(viewers());

        for (int i = 0; i < 25; ++i)
            farm.send(farm::notification(1, &still));
        QTRY_COMPARE(farm.alertor.events().size(), 27);
        QTRY_COMPARE(viewers().size(), 20); // and no more by themselves
        QVERIFY(QString::fromStdString(viewers().last()->sequence().framesPath)
                    .endsWith(QStringLiteral("still.exr")));
        farm.alertor.openImageViewer();
        QVERIFY(viewers().last()->sequence().framesPath.empty());
    }

    void theWindowIsManagedAndTakesKeys()
    {
        Farm farm;
        farm.show();
        farm.alertor.activateWindow();
        QTRY_VERIFY(farm.alertor.isActiveWindow());
        QVERIFY(farm.alertor.frameGeometry().height() > farm.alertor.height()); // the window manager's frame
    }

private:
    // What there is; the tests run without, but for the one of the viewer.
    const TAppState m_openGl = std::exchange(TAppState::instance(), {});
};

int main(int argc, char *argv[])
{
    chooseGlPath();
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(product::kOrganisation);
    QCoreApplication::setApplicationName(product::kApplicationName);
    QApplication::setQuitOnLastWindowClosed(false);
    TestAlertor test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_alertor.moc"

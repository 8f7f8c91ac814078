#include "alertorfarm.h"
#include "capturedoutput.h"
#include "modals.h"

#include <notify/events/notifyevent.h>

#include <QtCore/QSettings>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

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

QList<quint64> shownIds(const EventsView *list)
{
    QList<quint64> ids;
    for (int row = 0; row < list->model()->rowCount(); ++row)
        ids += list->model()->index(row, 0).data(Qt::UserRole).toULongLong();
    return ids;
}

void clickTitle(const EventsView *list, int column)
{
    const QHeaderView *header = list->header();
    const QPoint at(header->sectionViewportPosition(column) + 10, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
}

} // namespace

class TestAlertor final : public QObject {
    Q_OBJECT

public:
    static void initMain() { Farm::prepare(); }

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
        QVERIFY(farm.alertor.sendMessage(700, "accepted", 0));
        QTest::mouseClick(farm.alertor.findChild<QPushButton *>(u"connectNow"_s), Qt::LeftButton);
        QTRY_COMPARE(farm.peer.received().size(), 3); // two log-ins, and what was accepted between them
        QTRY_VERIFY(farm.text("linkState").startsWith(u"Connected to 127.0.0.1:"_s));
        farm.peer.send(refusal);
        QTRY_VERIFY(QApplication::activeModalWidget());
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        whenModalOpens([](QWidget *modal) { QTest::keyClick(modal, Qt::Key_Return); });
        farm.alertor.configure();
        QTRY_COMPARE(farm.peer.received().size(), 4);
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
        QVERIFY(!farm.alertor.sendMessage(700, QByteArray(2'000'000, 'x'), 0));
        QVERIFY(!farm.text("linkHistory").contains(u"does not read"_s)); // nothing was lost, and it does
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

    void whatCameMeanwhileStandsOutUntilTheListHides()
    {
        Farm farm;
        farm.sendJobs({4096, 1024});
        farm.alertor.restore();
        QTRY_VERIFY(farm.alertor.isActiveWindow());
        farm.sendJobs({4096});
        const auto told = [&farm](int row) {
            const QModelIndex index = farm.list()->model()->index(row, EventsModel::Acknowledged);
            return index.data(Qt::AccessibleTextRole).toString();
        };
        auto *errors = farm.alertor.findChild<QToolButton *>(u"pending_itemError"_s);
        QTRY_COMPARE(errors->text(), u"2"_s);
        QCOMPARE(errors->accessibleName(), u"Pending errors: 2"_s);
        QVERIFY(!farm.alertor.findChild<QToolButton *>(u"pending_itemWarning"_s)->isVisible());
        QCOMPARE(QStringList({told(0), told(2)}), QStringList({u"Acknowledged just now"_s, u"Pending"_s}));

        QTest::mouseClick(errors, Qt::LeftButton);
        QCOMPARE(shownIds(farm.list()), QList<quint64>({1, 3}));
        farm.sendJobs({1024, 4096});
        QCOMPARE(shownIds(farm.list()), QList<quint64>({1, 3, 5}));
        farm.click(1);
        farm.menu("listMenu")->actions().first()->trigger();
        QCOMPARE(shownIds(farm.list()), QList<quint64>({1, 3, 5})); // what is dealt with stays in sight
        QVERIFY(farm.alertor.events().find(3)->acknowledged);
        farm.list()->selectAll();
        QTest::keyClick(farm.list(), Qt::Key_Delete);
        QCOMPARE(shownIds(farm.list()), QList<quint64>({2, 4})); // not a list that looks empty
        QVERIFY(!errors->isVisible());

        farm.alertor.close();
        QCOMPARE(QStringList({told(0), told(1)}), QStringList({u"Acknowledged"_s, u"Pending"_s}));
    }

    void titlesSortAndTheColumnsAreRemembered()
    {
        QVariant columns;
        QVariant sorting;
        {
            Farm farm;
            farm.show();
            farm.sendJobs({1024, 4096, 2048});
            clickTitle(farm.list(), EventsModel::Type);
            QCOMPARE(shownIds(farm.list()), QList<quint64>({2, 3, 1}));
            farm.click(1);
            farm.sendJobs({4096});
            QCOMPARE(shownIds(farm.list()), QList<quint64>({2, 4, 3, 1}));
            QCOMPARE(farm.list()->selectedIds(), QList<quint64>{3});
            clickTitle(farm.list(), EventsModel::Type);
            QCOMPARE(shownIds(farm.list()), QList<quint64>({1, 3, 2, 4}));
            QCOMPARE(farm.list()->selectedIds(), QList<quint64>{3});
            QTest::keyClick(farm.list(), Qt::Key_Delete);
            QCOMPARE(shownIds(farm.list()), QList<quint64>({1, 2, 4}));
            QCOMPARE(farm.list()->currentIndex().row(), 1); // the row behind the one that went
            clickTitle(farm.list(), EventsModel::Type);
            QCOMPARE(shownIds(farm.list()), QList<quint64>({1, 2, 4})); // as they came
            clickTitle(farm.list(), EventsModel::Job);
            QMenu *menu = farm.menu("columnsMenu");
            menu->popup({0, 0});
            menu->actions().at(EventsModel::Chunk)->trigger();
            menu->close();
            farm.list()->header()->resizeSection(EventsModel::User, 123);
            farm.alertor.close();
            columns = QSettings().value(u"eventsWindow/columns"_s);
            sorting = QSettings().value(u"eventsWindow/sort"_s);
        }
        Farm again;
        QSettings().setValue(u"eventsWindow/columns"_s,
                             columns.toStringList() + QStringList{u"-type=9999"_s, u"x"_s});
        QSettings().setValue(u"eventsWindow/sort"_s, sorting);
        again.show();
        const QHeaderView *header = again.list()->header();
        QVERIFY(header->isSectionHidden(EventsModel::Chunk) && !header->isSectionHidden(EventsModel::Type));
        QCOMPARE(header->sectionSize(EventsModel::User), 123);
        QCOMPARE(header->sortIndicatorSection(), int(EventsModel::Job));
        QSettings().clear();
    }

    void theListIsUsedByKeysAlone()
    {
        Farm farm;
        farm.show();
        farm.alertor.activateWindow();
        QTRY_VERIFY(farm.alertor.isActiveWindow());
        farm.sendJobs({1024, 1024, 1024});
        farm.click(0);
        QCursor::setPos(0, 0);
        QTest::keyClick(farm.list(), Qt::Key_End);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, {0, 0});
        QApplication::sendEvent(farm.list(), &event);
        const QPoint menuAt = farm.list()->viewport()->mapFromGlobal(farm.menu("listMenu")->pos());
        QCOMPARE(farm.list()->indexAt(menuAt).row(), 2);
        QTest::keyClick(farm.menu("listMenu"), Qt::Key_Escape);
        QTimer::singleShot(0, &farm.alertor, [&farm] {
            QTest::keyClick(farm.menu("windowMenu"), Qt::Key_S);
            farm.menu("windowMenu")->close();
        });
        QTest::keyClick(&farm.alertor, Qt::Key_F10);
        QVERIFY(farm.menu("trayMenu")->actions().at(3)->isChecked()); // Silent
    }

    void theWindowFitsTheScreenAndItsPlaceInTheStack()
    {
        Farm farm(u"eventsWindow/keepAbove"_s, false);
        QCOMPARE(int(farm.alertor.windowFlags() & 0x40400), 0x400);
        QSettings().setValue(u"eventsWindow/rect"_s, QRect(-700, -900, 3000, 2000));
        farm.show();
        QTRY_VERIFY(farm.alertor.frameGeometry() != farm.alertor.geometry());
        QTRY_VERIFY(farm.alertor.screen()->availableGeometry().contains(farm.alertor.frameGeometry()));
        QSettings().clear();
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
        {
            CommandLineOverrides overrides;
            overrides.server = u"nobody.invalid"_s;
            Alertor searching;
            searching.setCommandLineOverrides(overrides);
            searching.loadSettings();
            searching.checkLocalConnection();
            QCOMPARE(searching.tray().shownIcon(), u":/icons/connectingIcon"_s);
        }
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
};

QTEST_MAIN(TestAlertor)
#include "tst_alertor.moc"

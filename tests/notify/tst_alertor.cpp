#include "alertorfarm.h"
#include "capturedoutput.h"
#include "modals.h"

#include <QtCore/QSettings>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

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

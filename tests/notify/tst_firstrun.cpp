#include "alertorfarm.h"
#include "modals.h"
#include "table.h"

#include <notify/firstrun.h>
#include <notify/setup.h>

#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

namespace {

void type(const QWidget &window, const QString &field, const QString &text)
{
    auto *edit = window.findChild<QLineEdit *>(field);
    QVERIFY(edit);
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

/// Null while it is not on the screen.
FirstRun *setupOf(const Alertor &alertor)
{
    auto *window = alertor.findChild<FirstRun *>();
    return window && window->isVisible() ? window : nullptr;
}

} // namespace

class TestFirstRun final : public QObject {
    Q_OBJECT

public:
    static void initMain() { Farm::prepare(); }

private Q_SLOTS:
    void cleanup() { QSettings().clear(); }

    void tellsHowFarTheTestCame_data()
    {
        const QByteArray refusal = encodeMessage(MessageHeader::Plain, CMD_LOGIN_DENIED, {});
        addTable<QString, QByteArray, QString>(
            {"address", "answer", "words"},
            {{"accepts", u"127.0.0.1"_s, ""_ba,
              u"Connected to 127.0.0.1:%1 and logged in as ann: it did not refuse"_s},
             {"refuses", u"127.0.0.1"_s, refusal,
              u"Connected to 127.0.0.1:%1, but it refused the log-in of ann."_s},
             {"is a web server", u"127.0.0.1"_s, "HTTP/1.1 400 Bad Request\r\n"_ba,
              u"What answers at 127.0.0.1:%1 is no Dispatcher."_s},
             {"hangs up", u"127.0.0.1"_s, "hang up"_ba, u"Connected to 127.0.0.1:%1, but it hung up"_s},
             {"nobody there", u"127.0.0.1"_s, "nobody"_ba, u"Nobody listens at 127.0.0.1:%1."_s},
             {"no such name", u"farm 01"_s, ""_ba, u"The name farm 01 is not known."_s}});
    }
    void tellsHowFarTheTestCame()
    {
        QFETCH(QString, address);
        QFETCH(QByteArray, answer);
        QFETCH(QString, words);
        LoopbackPeer peer;
        const quint16 port = peer.port();
        peer.listen(answer != "nobody");
        FirstRun window{LinkSettings()};
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        type(window, u"setupAddress"_s, address);
        type(window, u"setupPort"_s, QString::number(port));
        type(window, u"setupUser"_s, u"ann"_s);
        type(window, u"setupPassword"_s, u"secret"_s);
        QTest::keyClick(window.findChild<QPushButton *>(u"testButton"_s), Qt::Key_Return);
        if (answer != "nobody" && address != u"farm 01"_s) {
            QTRY_COMPARE(peer.received().size(), 1);
            QCOMPARE(decodeLogin(peer.received()[0].payload)->password, u"secret"_s);
            answer == "hang up" ? peer.dropLink() : peer.send(answer);
        }
        const auto *result = window.findChild<QLabel *>(u"testResult"_s);
        QTRY_VERIFY2(result->text().startsWith(words.arg(port)), qPrintable(result->text()));
        QTRY_VERIFY(!peer.link() || peer.link()->state() == QAbstractSocket::UnconnectedState);
        QVERIFY(window.isVisible());
    }

    void connectTakesOver()
    {
        LoopbackPeer peer;
        Alertor alertor;
        alertor.loadSettings();
        Setup::offer(alertor);
        FirstRun *window = setupOf(alertor);
        QVERIFY(window && QTest::qWaitForWindowActive(window));
        type(*window, u"setupPort"_s, u"0"_s);
        QTest::keyClick(window->focusWidget(), Qt::Key_Return);
        QVERIFY(window->isVisible() && window->focusWidget()->objectName() == u"setupPort"_s);
        type(*window, u"setupPort"_s, QString::number(peer.port()));
        type(*window, u"setupUser"_s, u"ann"_s);
        QCOMPARE(peer.connections(), 0);
        QTest::keyClick(window->focusWidget(), Qt::Key_Return);
        QTRY_COMPARE(peer.received().size(), 1);
        QCOMPARE(decodeLogin(peer.received()[0].payload)->user, u"ann"_s);
        QCOMPARE(loadSettings().authenticationUser, u"ann"_s);
        QVERIFY(alertor.isConfigured() && !setupOf(alertor));

        // A test beside the link leaves that alone.
        whenModalOpens([](QWidget *about) {
            QVERIFY(about->inherits("QMessageBox"));
            QTest::keyClick(about, Qt::Key_S, Qt::AltModifier);
        });
        Setup::openAbout(alertor);
        window = setupOf(alertor);
        QVERIFY(window && QTest::qWaitForWindowActive(window));
        const QTcpSocket *link = peer.link();
        QTest::keyClick(window, Qt::Key_T, Qt::AltModifier);
        QTRY_COMPARE(peer.connections(), 2);
        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_COMPARE(peer.link()->state(), QAbstractSocket::UnconnectedState);
        QCOMPARE(link->state(), QAbstractSocket::ConnectedState);
    }

    void laterPutsItOff()
    {
        {
            Alertor alertor;
            alertor.loadSettings();
            Setup::offer(alertor);
            FirstRun *window = setupOf(alertor);
            QVERIFY(window && QTest::qWaitForWindowActive(window));
            QTest::keyClick(window, Qt::Key_Escape);
            QVERIFY(!setupOf(alertor));
        }
        Alertor next;
        next.loadSettings();
        QVERIFY(!next.isConfigured());
        Setup::offer(next);
        QVERIFY(!setupOf(next));
    }

    void theCommandLineConfigures()
    {
        Farm farm;
        Setup::offer(farm.alertor);
        QVERIFY(!setupOf(farm.alertor));
    }
};

QTEST_MAIN(TestFirstRun)
#include "tst_firstrun.moc"

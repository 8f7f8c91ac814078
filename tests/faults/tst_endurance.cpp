#include "farmpackets.h"
#include "loopbackpeer.h"

#include <notify/alertor.h>
#include <ui/product.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtCore/QRegularExpression>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

#include <unistd.h>

namespace {

constexpr int kPatience = 120'000; // milliseconds
constexpr int kBursts = 10;
#ifdef __SANITIZE_ADDRESS__
constexpr double kMostGrowth = 7; // the sanitizer keeps what was freed for a while
#else
constexpr double kMostGrowth = 1.1;
#endif

/// How often, how many: a value for the suite, and one for scripts/faults.sh.
int amount(int brief, int full)
{
    return qEnvironmentVariableIsSet("TARROW_ENDURANCE") ? full : brief;
}

qsizetype openFiles()
{
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::System | QDir::Files | QDir::NoDotAndDotDot)
        .size();
}

double residentMegabytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    const QByteArray pages = file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').at(1) : QByteArray();
    return pages.toDouble() * double(sysconf(_SC_PAGESIZE)) / 1e6;
}

/// A demo farm in a process of its own that sends a burst and ends.
class BurstingFarm final {
public:
    BurstingFarm(quint16 port, int events)
    {
        m_process.start(QStringLiteral(TARROW_DEMOFARM),
                        {QStringLiteral("--once"), QStringLiteral("--port"), QString::number(port),
                         QStringLiteral("--burst"), QString::number(events)});
        while (m_process.state() != QProcess::NotRunning && !m_output.contains("listening on ")
               && m_process.waitForReadyRead())
            m_output += m_process.readAll();
    }
    quint16 port() const
    {
        static const QRegularExpression line(QStringLiteral("listening on (\\d+)"));
        return line.match(QString::fromLatin1(m_output)).captured(1).toUShort();
    }
    bool hasEnded() const { return m_process.state() == QProcess::NotRunning; }

private:
    QProcess m_process;
    QByteArray m_output;
};

void setPort(Alertor &alertor, quint16 port)
{
    CommandLineOverrides overrides;
    overrides.port = port;
    alertor.setCommandLineOverrides(overrides);
    alertor.loadSettings();
}

bool isConnected(const Alertor &alertor)
{
    return alertor.tray().toolTip() == QStringLiteral("Tarrow Alertor");
}

/// Asks for a connection, as the window's timer does, until the peer has received the log-in.
void logIn(Alertor &alertor, const LoopbackPeer &peer)
{
    QTRY_COMPARE((alertor.checkLocalConnection(), peer.received().size()), 1);
}

} // namespace

class EnduranceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(product::kOrganisation);
        QCoreApplication::setApplicationName(product::kApplicationName);
    }

    /// The Dispatcher dies in the middle of a frame, is not there for one attempt, and comes back, again and again.
    void dispatcherRestarts()
    {
        auto peer = std::make_unique<LoopbackPeer>();
        const quint16 port = peer->port();
        Alertor alertor;
        setPort(alertor, port);
        const QByteArray event = farm::frame(farm::notification(JobStarted));
        const int restarts = amount(20, 1000);
        qsizetype files = 0;
        for (int restart = 1; restart <= restarts; ++restart) {
            logIn(alertor, *peer);
            peer->send(event + event + event.chopped(1 + restart % (event.size() - 1)));
            QTRY_COMPARE(alertor.events().size(), 2 * restart);
            peer.reset();
            QTRY_VERIFY(!isConnected(alertor));
            alertor.checkLocalConnection();
            peer = std::make_unique<LoopbackPeer>(port);
            QVERIFY(peer->listening());
            if (restart == 5)
                files = openFiles();
        }
        QCOMPARE(openFiles(), files);
        std::printf("%d restarts, %d events, %d open files\n", restarts, int(alertor.events().size()),
                    int(files));
    }

    void megabytesOfGarbage()
    {
        auto peer = std::make_unique<LoopbackPeer>();
        const quint16 port = peer->port();
        Alertor alertor;
        setPort(alertor, port);
        const int rounds = amount(5, 200);
        for (int round = 1; round <= rounds; ++round) {
            logIn(alertor, *peer);
            const QPointer<QTcpSocket> link = peer->link();
            std::vector<quint32> garbage(1 << 18);
            QRandomGenerator(quint32(round)).fillRange(garbage.data(), qsizetype(garbage.size()));
            peer->send({reinterpret_cast<const char *>(garbage.data()), 1 << 20});
            // The client hangs up on what it cannot believe, or waits for the rest of a long frame.
            QTRY_VERIFY(link->bytesToWrite() == 0 || link->state() != QAbstractSocket::ConnectedState);
            peer.reset();
            QTRY_VERIFY(!isConnected(alertor));
            peer = std::make_unique<LoopbackPeer>(port);
        }
        logIn(alertor, *peer);
        const auto before = alertor.events().size();
        peer->send(farm::frame(farm::notification(JobStarted)));
        QTRY_COMPARE(alertor.events().size(), before + 1);
    }

    /// Bursts on a window that is shown and hidden in turn; what they took is given back once they are acknowledged and removed.
    void eventsComeAndGo()
    {
        const int perBurst = amount(5'000, 100'000);
        Alertor alertor;
        quint16 port = 0;
        double start = 0;
        double most = 0;
        for (int burst = 0; burst <= kBursts; ++burst) {
            // The first, small one brings up what every later one finds.
            const int events = burst == 0 ? perBurst / 100 : perBurst;
            BurstingFarm farm(port, events);
            port = farm.port();
            QVERIFY(port != 0);
            setPort(alertor, port);
            alertor.setVisible(burst % 2 == 0);
            alertor.checkLocalConnection();
            QTRY_COMPARE_WITH_TIMEOUT(alertor.events().size(), events, kPatience);
            QTRY_VERIFY_WITH_TIMEOUT(farm.hasEnded(), kPatience);
            QTRY_VERIFY(!isConnected(alertor));
            most = std::max(most, residentMegabytes());
            alertor.actAckEvents();
            alertor.actRemoveAll();
            QCOMPARE(alertor.events().size(), 0);
            QCoreApplication::processEvents();
            if (burst == 0)
                start = residentMegabytes();
            std::printf("%d events: %.1f MB resident, %.1f MB once they are removed\n", events, most,
                        residentMegabytes());
        }
        const double end = residentMegabytes();
        QVERIFY2(end <= kMostGrowth * start,
                 qPrintable(QStringLiteral("%1 MB after %2 MB").arg(end).arg(start)));
    }
};

QTEST_MAIN(EnduranceTest)
#include "tst_endurance.moc"

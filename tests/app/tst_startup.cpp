#include <app/commandline.h>
#include <app/qtsingleapplication.h>
#include <app/splash.h>
#include <ui/glprobe.h>
#include <ui/look.h>
#include <ui/product.h>
#include <ui/tappstate.h>

#include <capturedoutput.h>

#include <QtCore/QStandardPaths>
#include <QtGui/QSurfaceFormat>
#include <QtNetwork/QLocalSocket>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>

#include <array>
#include <vector>

namespace {

constexpr QFile::Permissions kOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup
    | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;

QString instanceFile(const char *suffix)
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)
        + QStringLiteral("/tarrow-alertor.") + QLatin1String(suffix);
}

CommandLine parsed(const QByteArray &arguments)
{
    QList<QByteArray> words = ("program " + arguments).split(' ');
    std::vector<char *> pointers;
    for (QByteArray &word : words)
        pointers.push_back(word.data());
    return CommandLine::parse(pointers);
}

/// What was given on the command line, in one line.
QString summary(const CommandLine &line)
{
    const CommandLineOverrides &given = line.overrides;
    QString text;
    for (const auto &[name, value] :
         {std::pair("server", given.server), {"user", given.user}, {"pass", given.password}}) {
        if (value)
            text += u" %1=%2"_qs.arg(QLatin1String(name), *value);
    }
    if (given.port)
        text += u" port=%1"_qs.arg(*given.port);
    if (!line.language.isEmpty())
        text += u" language="_qs + line.language;
    for (const auto &[name, isGiven] :
         {std::pair(u" gl2"_qs, line.forceGl2), {u" help"_qs, line.help}, {u" version"_qs, line.version}})
        text += isGiven ? name : QString();
    return text.mid(1);
}

} // namespace

class StartUpTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void optionsAreRead()
    {
        const std::pair<const char *, const char *> lines[] = {
            {"x y", ""},
            {"x -server h -user ü -pass p -port 7 -forcegl2", "server=h user=ü pass=p port=7 gl2"},
            {"-user a -port", "user=a"},
            {"-user a -user b", "user=b"},
            {"-Server h --user u -portx 1 -forceGL2 -help", ""},
            {"-pass  -user u", "user=u pass="}, // an empty value is one
            {"-pass -user -port 5", "user=-port pass=-user port=5"},
            {"-port x7", "port=0"},
            {"-port 98x3", "port=98"},
            {"-port 75000", "port=75000"},
            {"-language de --language fr_CA", "language=fr_CA"},
            {"-language de", "language=de"},
            {"-port 1 --help", "port=1 help"},
            {"--version", "version"},
            {"-pass --version -user --help", "user=--help pass=--version"},
        };
        for (const auto &[arguments, given] : lines)
            QCOMPARE(summary(parsed(arguments)), QString::fromUtf8(given));
    }

    void fontsThatFailAreNamed()
    {
        // This program carries no resources: every font fails.
        CapturedOutput errors(2);
        Look::installFonts();
        const QByteArray text = errors.take();
        QVERIFY2(text.startsWith("Failed to install font resource Lato-Bla.ttf\n"), text);
        QCOMPARE(text.count('\n'), 10);
    }

    void splashTellsTheBuild()
    {
        const Splash splash;
        const QString wanted =
            u"%1 - Release Build %2 %3"_qs.arg(product::kVersion, product::kBuildNumber, product::kBuildDate);
        QCOMPARE(splash.findChild<QLabel *>()->text(), wanted);
    }

    void disabledTextsHaveNoShadow()
    {
        const QColor active = QApplication::palette().color(QPalette::Active, QPalette::Light);
        CapturedOutput errors(2);
        const Look look(*qApp);
        QCOMPARE(QApplication::palette().color(QPalette::Disabled, QPalette::Light), QColor(0, 0, 0, 0));
        QCOMPARE(QApplication::palette().color(QPalette::Active, QPalette::Light), active);
    }

    void aMessageEndsWithAZero()
    {
        QSignalSpy messages(qApp, SIGNAL(messageReceived(QString)));
        for (const QByteArray &piece : {QByteArray("wakeup\0x\0", 9), QByteArray(100000, 'x')}) {
            QLocalSocket socket;
            socket.connectToServer(instanceFile("socket"));
            QVERIFY(socket.waitForConnected());
            socket.write(piece);
            QTRY_COMPARE(socket.state(), QLocalSocket::UnconnectedState);
        }
        QCOMPARE(messages.size(), 1);
        QCOMPARE(messages[0][0].toString(), u"wakeup"_qs);
    }

    void silentSendersAreNoObstacle()
    {
        QSignalSpy messages(qApp, SIGNAL(messageReceived(QString)));
        std::array<QLocalSocket, 40> silent;
        for (QLocalSocket &socket : silent) {
            socket.connectToServer(instanceFile("socket"));
            QTRY_COMPARE(socket.state(), QLocalSocket::ConnectedState);
        }
        QVERIFY(static_cast<QtSingleApplication *>(qApp)->sendMessage(QStringLiteral("wakeup"), 1000));
        QTRY_COMPARE(messages.size(), 1);
        for (const QLocalSocket &socket : silent) // they are shown out in the end
            QTRY_COMPARE_WITH_TIMEOUT(socket.state(), QLocalSocket::UnconnectedState, 15000);
    }

    void othersAreKeptOut()
    {
        for (const char *suffix : {"socket", "lock"}) {
            const QFileInfo file(instanceFile(suffix));
            // The socket's own mode does not count everywhere: the folder's does.
            QVERIFY2(file.exists(), suffix);
            QVERIFY2(!(QFileInfo(file.path()).permissions() & kOthers), suffix);
        }
        QVERIFY(!(QFileInfo(instanceFile("socket")).permissions() & kOthers));
    }
};

int main(int argc, char *argv[])
{
    QtSingleApplication application(argc, argv);
    StartUpTest test;
    return application.isRunning() ? 1 : QTest::qExec(&test, argc, argv);
}

#include "tst_startup.moc"

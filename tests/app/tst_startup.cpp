#include <capturedoutput.h>
#include <commandline.h>
#include <glprobe.h>
#include <look.h>
#include <qtsingleapplication.h>
#include <tappstate.h>

#include <QtCore/QDir>
#include <QtCore/QPointer>
#include <QtCore/QStandardPaths>
#include <QtGui/QOpenGLContext>
#include <QtGui/QSurfaceFormat>
#include <QtGui/QWindow>
#include <QtNetwork/QLocalSocket>
#include <QtOpenGLWidgets/QOpenGLWidget>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>
#include <vector>

namespace {

constexpr QFile::Permissions kOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup
    | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;

QString instanceFile(const char *suffix)
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)
        + QStringLiteral("/tarrow-alertor.") + QLatin1String(suffix);
}

CommandLine parsed(QByteArray arguments)
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
    QStringList given;
    const auto add = [&given](const char *name, const std::optional<QString> &value) {
        if (value)
            given += QLatin1String(name) + QLatin1Char('=') + *value;
    };
    add("server", line.overrides.server);
    add("user", line.overrides.user);
    add("pass", line.overrides.password);
    if (line.overrides.port)
        given += QStringLiteral("port=%1").arg(*line.overrides.port);
    if (!line.language.isEmpty())
        given += QStringLiteral("language=") + line.language;
    if (line.forceGl2)
        given += QStringLiteral("gl2");
    if (line.help)
        given += QStringLiteral("help");
    if (line.version)
        given += QStringLiteral("version");
    return given.join(QLatin1Char(' '));
}

} // namespace

class StartUpTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void optionsAreRead_data()
    {
        QTest::addColumn<QByteArray>("arguments");
        QTest::addColumn<QString>("given");
        const auto row = [](const char *name, const char *arguments, const char *given) {
            QTest::newRow(name) << QByteArray(arguments) << QString::fromUtf8(given);
        };
        row("nothing", "x y", "");
        row("all", "x -server h -user ü -pass p -port 7 -forcegl2", "server=h user=ü pass=p port=7 gl2");
        row("a value is wanted", "-user a -port", "user=a");
        row("the last counts", "-user a -user b", "user=b");
        row("exact and case-sensitive", "-Server h --user u -portx 1 -forceGL2 -help", "");
        row("an empty value is one", "-pass  -user u", "user=u pass=");
        row("a value may look like an option", "-pass -user -port 5", "user=-port pass=-user port=5");
        row("port: no number", "-port x7", "port=0");
        row("port: digits lead", "-port 98x3", "port=98");
        row("port: kept as it is", "-port 75000", "port=75000");
        row("language", "--language de -language fr_CA", "language=fr_CA");
        row("help", "-port 1 --help", "port=1 help");
        row("version", "--version", "version");
    }
    void optionsAreRead()
    {
        QFETCH(QByteArray, arguments);
        QTEST(summary(parsed(arguments)), "given");
    }

    void fontsThatFailAreNamedInOrder()
    {
        // This program carries no resources: every font fails.
        CapturedOutput errors(2);
        Look::installFonts();
        QByteArray expected;
        for (const char *name :
             {"Bla", "BlaIta", "Bol", "BolIta", "Hai", "HaiIta", "Lig", "LigIta", "Reg", "RegIta"})
            expected += QByteArray("Failed to install font resource Lato-") + name + ".ttf\n";
        QCOMPARE(errors.take(), expected);
    }

    void disabledTextsHaveNoShadow()
    {
        const QColor active = QApplication::palette().color(QPalette::Active, QPalette::Light);
        Look::installPalette();
        QCOMPARE(QApplication::palette().color(QPalette::Disabled, QPalette::Light), QColor(0, 0, 0, 0));
        QCOMPARE(QApplication::palette().color(QPalette::Active, QPalette::Light), active);
    }

    void openGlIsProbed_data()
    {
        QTest::addColumn<bool>("forceGl2");
        QTest::newRow("3.2") << false;
        QTest::newRow("2.1") << true;
    }
    void openGlIsProbed()
    {
        QFETCH(bool, forceGl2);
        TAppState state;
        state.forceGl2 = forceGl2;
        probeOpenGl(state);
        QVERIFY(state.openGlUsable && state.gl21Supported);
        QCOMPARE(state.gl32Supported, !forceGl2);
        const QSurfaceFormat format = QSurfaceFormat::defaultFormat();
        QCOMPARE(format.version(), forceGl2 ? qMakePair(2, 1) : qMakePair(3, 2));
        QCOMPARE(format.profile(),
                 forceGl2 ? QSurfaceFormat::CompatibilityProfile : QSurfaceFormat::CoreProfile);
        QCOMPARE(format.swapBehavior(), QSurfaceFormat::DoubleBuffer);
    }

    void texturesOutliveTheirWindow()
    {
        TAppState state;
        probeOpenGl(state);
        QVERIFY(QOpenGLContext::globalShareContext());
        QWidget window;
        auto *picture = new QOpenGLWidget(&window);
        window.show();
        QTRY_VERIFY(picture->isValid());
        const QPointer<QOpenGLContext> context = picture->context();
        QVERIFY(QOpenGLContext::areSharing(picture->context(), QOpenGLContext::globalShareContext()));
        picture->setParent(nullptr);
        picture->showFullScreen();
        QTRY_VERIFY(picture->window()->windowHandle()->isExposed());
        QVERIFY(context);
        QCOMPARE(picture->context(), context.data());
        delete picture;
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

    void aMessageEndsWithAZero_data()
    {
        QTest::addColumn<QList<QByteArray>>("pieces");
        QTest::addColumn<QStringList>("messages");
        const auto sized = [](int size) { return QByteArray(size, 'x'); };
        const auto text = [](int size) { return QString(size, QLatin1Char('x')); };
        using Pieces = QList<QByteArray>;
        QTest::newRow("whole") << Pieces{QByteArray("wakeup\0", 7)} << QStringList{QStringLiteral("wakeup")};
        QTest::newRow("in pieces") << Pieces{"wake", "up", QByteArray(1, '\0')}
                                   << QStringList{QStringLiteral("wakeup")};
        QTest::newRow("one a visit") << Pieces{QByteArray("a\0b\0", 4)} << QStringList{QStringLiteral("a")};
        QTest::newRow("longest") << Pieces{sized(4095) + '\0'} << QStringList{text(4095)};
        QTest::newRow("too long") << Pieces{sized(4096) + '\0'} << QStringList();
        QTest::newRow("never ends") << Pieces{sized(100000)} << QStringList();
        QTest::newRow("not UTF-8") << Pieces{QByteArray("\xff\0", 2)} << QStringList{QString(QChar(0xfffd))};
    }
    void aMessageEndsWithAZero()
    {
        QFETCH(QList<QByteArray>, pieces);
        QSignalSpy messages(qApp, SIGNAL(messageReceived(QString)));
        QLocalSocket socket;
        socket.connectToServer(instanceFile("socket"));
        QVERIFY(socket.waitForConnected());
        for (const QByteArray &piece : pieces) {
            socket.write(piece);
            QTRY_COMPARE(socket.bytesToWrite(), 0);
        }
        QTRY_COMPARE(socket.state(), QLocalSocket::UnconnectedState);
        QStringList received;
        for (const QList<QVariant> &message : messages)
            received += message.first().toString();
        QTEST(received, "messages");
    }

    void silentSendersAreNoObstacle()
    {
        QSignalSpy messages(qApp, SIGNAL(messageReceived(QString)));
        std::vector<std::unique_ptr<QLocalSocket>> silent;
        for (int i = 0; i < 40; ++i) {
            silent.push_back(std::make_unique<QLocalSocket>());
            silent.back()->connectToServer(instanceFile("socket"));
            QTRY_COMPARE(silent.back()->state(), QLocalSocket::ConnectedState);
        }
        auto *application = static_cast<QtSingleApplication *>(qApp);
        QVERIFY(application->sendMessage(QStringLiteral("wakeup"), 1000));
        QTRY_COMPARE(messages.size(), 1);
        // They are shown out in the end: nothing piles up.
        for (const auto &socket : silent)
            QTRY_COMPARE_WITH_TIMEOUT(socket->state(), QLocalSocket::UnconnectedState, 15000);
    }
};

int main(int argc, char *argv[])
{
    QtSingleApplication application(argc, argv);
    StartUpTest test;
    return application.isRunning() ? 1 : QTest::qExec(&test, argc, argv);
}

#include "tst_startup.moc"

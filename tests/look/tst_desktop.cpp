#include <ui/look.h>
#include <ui/theme.h>

#include <QtCore/QProcess>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusVariant>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

namespace {

using Answer = QMap<QString, QVariantMap>;

constexpr auto kPath = "/org/freedesktop/portal/desktop";
constexpr auto kInterface = "org.freedesktop.portal.Settings";

} // namespace

/// The desktop's settings portal.
class Portal final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    QVariantMap settings;

public Q_SLOTS:
    Answer ReadAll(const QStringList &)
    {
        ++asked;
        return {{QStringLiteral("org.freedesktop.appearance"), settings}};
    }

public:
    int asked = 0;
};

class DesktopTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qDBusRegisterMetaType<Answer>();
        m_bus.start(QStringLiteral("dbus-daemon"),
                    {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                     QStringLiteral("--print-address")});
        QVERIFY(m_bus.waitForReadyRead());
        const QString address = QString::fromLocal8Bit(m_bus.readLine().trimmed());
        qputenv("DBUS_SESSION_BUS_ADDRESS", address.toLocal8Bit());
        m_desktop = std::make_unique<QDBusConnection>(
            QDBusConnection::connectToBus(address, QStringLiteral("the desktop")));
        QVERIFY(m_desktop->registerObject(QLatin1String(kPath), &m_portal, QDBusConnection::ExportAllSlots));
        QVERIFY(m_desktop->registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }
    void cleanupTestCase()
    {
        m_bus.kill();
        m_bus.waitForFinished();
    }

    /// What the portal says is followed, first and later, by windows that are open.
    void thePortalIsFollowed()
    {
        m_portal.settings = {{QStringLiteral("color-scheme"), 1U},
                             {QStringLiteral("accent-color"), QString()}};
        QLineEdit field;
        Look look(*qApp);
        field.show();
        const auto shown = [&field] { return field.grab().toImage().pixelColor(field.rect().center()); };
        QVERIFY(shown().lightness() > 200);
        look.askDesktop();
        QTRY_VERIFY(shown().lightness() < 60);
        say(QStringLiteral("contrast"), 1U);
        QTRY_COMPARE(shown(), QColor(Qt::black));
        say(QStringLiteral("color-scheme"), 2U);
        QTRY_COMPARE(shown(), QColor(Qt::white));
        say(QStringLiteral("contrast"), QStringLiteral("no number"));
        say(QStringLiteral("color-scheme"), 1U);
        QTRY_COMPARE(shown(), QApplication::palette().color(QPalette::Base));
        QTRY_VERIFY(shown().lightness() > 10 && shown().lightness() < 60);
        QCOMPARE(m_portal.asked, 1);
    }

private:
    void say(const QString &key, const QVariant &value)
    {
        QDBusMessage told = QDBusMessage::createSignal(QLatin1String(kPath), QLatin1String(kInterface),
                                                       QStringLiteral("SettingChanged"));
        told << QStringLiteral("org.freedesktop.appearance") << key
             << QVariant::fromValue(QDBusVariant(value));
        QVERIFY(m_desktop->send(told));
    }

    QProcess m_bus;
    std::unique_ptr<QDBusConnection> m_desktop;
    Portal m_portal;
};

QTEST_MAIN(DesktopTest)
#include "tst_desktop.moc"

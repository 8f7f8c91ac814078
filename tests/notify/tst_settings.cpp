#include <notify/settings/settings.h>
#include <notify/settings/settingscipher.h>

#include <table.h>

#include <QtCore/QDir>
#include <QtCore/QLoggingCategory>
#include <QtCore/QRegularExpression>
#include <QtCore/QScopeGuard>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <csignal>
#include <memory>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

constexpr quint64 kKey = 0x5b17e93c2d40a68fULL;
constexpr quint8 kRandomByte = 0xA7;

SettingsCipher cipher(quint64 key = kKey)
{
    SettingsCipher cipher;
    cipher.setKey(key);
    cipher.setRandomByte([] { return kRandomByte; });
    return cipher;
}

QString farm()
{
    return u"farm-"_s.repeated(40);
}

QString base64(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toBase64());
}

} // namespace

class TestSettings final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(u"Loomwright"_s);
        QCoreApplication::setApplicationName(u"Tarrow\\9\\Alertor"_s);
    }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder->path());
        QTest::failOnWarning(QRegularExpression(u"."_s));
    }

    void cleanup() { m_folder.reset(); }

    void enciphersKnownAnswers()
    {
        const std::tuple<QString, quint64, QString> known[] = {
            {u""_s, kKey, u"AwIojs4="_s},
            {u"pässwörd €🔑"_s, kKey, u"AwIoQmo3yIXhyTFUov2lbJlAYzXqU/4="_s},
            {u"secret"_s, 0, u"AwKnuarZvN+tyLw="_s},
        };
        for (const auto &[text, key, cipherText] : known) {
            QCOMPARE(cipher(key).encipher(text), cipherText);
            QCOMPARE(cipher(key).decipher(cipherText), text);
        }
    }

    void deciphersKnownAnswers_data()
    {
        addTable<QString, QString>(
            {"cipherText", "text"},
            {{"no digest", u"AwCeS24gbuKB"_s, u"secret"_s},
             {"no digest, empty", u"AwCP"_s, {}},
             {"SHA-1", u"AwSt7keQt/30Yve5tu4YWwsfqmoVPfVvHSXYGy8="_s, u"secret"_s},
             {"checksum and SHA-1", u"Awba4wjAFQYK8mMIUpfkeKVUnHUPREerSGCKT301fQ=="_s, u"secret"_s},
             {"compressed", u"AwHLbS0A9GWouHz2fIT1B+q1OivTtnM="_s, farm()},
             {"compressed, checksum", u"AwPTx1d6Rq9wUwbr4OEXK3ExROamPLgZ9w=="_s, farm()},
             {"announces 4 GiB", u"AwOO0ug6+e8HJHH88pKAIxlDzGLz3Gc="_s, u"secret"_s},
             {"announces too little", u"AwOON2pHe5KAo/Z7dRUHpJ7ES+V0W+A="_s, {}},
             {"announces nothing", u"AwOO7mJPc5o="_s, {}},
             {"holds no stream", u"AwOO+pO+gmt6Urh9TwdP"_s, {}}});
    }

    void deciphersKnownAnswers()
    {
        QFETCH(const QString, cipherText);
        QFETCH(const QString, text);
        QCOMPARE(cipher().decipher(cipherText), text);
    }

    void damagedCipherTextReadsAsEmpty()
    {
        // With a checksum, with SHA-1, compressed
        for (const char *text : {"AwIokMOdxE4rFe4=", "AwSt7keQt/30Yve5tu4YWwsfqmoVPfVvHSXYGy8=",
                                 "AwPTx1d6Rq9wUwbr4OEXK3ExROamPLgZ9w=="}) {
            const QByteArray good = QByteArray::fromBase64(text);
            QVERIFY(!cipher().decipher(base64(good)).isEmpty());
            QCOMPARE(cipher(kKey + 1).decipher(base64(good)), QString());
            for (qsizetype at = 0; at < good.size(); ++at) {
                QCOMPARE(cipher().decipher(base64(good.first(at))), QString());
                for (int flip = 1; flip < 256; ++flip) {
                    QByteArray bad = good;
                    bad[at] = char(bad[at] ^ flip);
                    const QString read = cipher().decipher(base64(bad));
                    // The digest does not cover the flags: other flags may make another text of the same bytes.
                    if (at != 1)
                        QCOMPARE(read, QString());
                }
            }
        }
    }

    void readsAndWritesEveryKey()
    {
        const std::tuple<const char *, const char *, const char *> keys[] = {
            {"network/dispatcherAddress", "127.0.0.1", "färm.example"},
            {"network/authenticationUser", "admin", ""},
            {"network/dispatcherPort", "9883", "0"},
            {"network/skipDirectoryAuthentication", "false", "true"},
            {"behaviours/filterServiceActivities,filterJobStart,filterJobCompletedWithErrors,"
             "filterJobCompletedWithWarnings,filterJobCompletedWithSuccess,filterChunkStart,"
             "filterChunkCompletedWithErrors,filterChunkCompletedWithWarnings,"
             "filterChunkCompletedWithSuccess,"
             "showBubble,autoAckOnRaise",
             "true", "false"},
            {"behaviours/playErrorSound,playWarningSound,playSuccessSound,playStartSound,playServiceSound",
             "false", "true"},
            {"behaviours/errorSound,warningSound,successSound,startSound,serviceSound", "",
             "/sounds, old/\"ping\".wav"},
            {"eventsWindow/keepAbove", "true", "false"},
            {"imageViewer/imageViewerMaxGPUCache", "1000000000", "18446744073709551615"},
            {"imageViewer/imageViewerMaxRAMCache", "2000000000", "0"},
            {"imageViewer/imageViewerExrImportGamma", "2.2", "1.8"},
            {"imageViewer/imageViewerDefaultImportGamma", "1", "0.45454547"},
            {"imageViewer/imageViewerMode", "0", "1"},
            {"imageViewer/imageViewer", "", "C:\\viewer.exe"},
            {"imageViewer/launchImageViewer", "false", "true"},
            {"viewer/showIncompleteFrames,readAhead", "true", "false"},
        };
        QVERIFY(saveSettings(Settings()));
        QCOMPARE(QSettings().allKeys().size(), 36);
        for (const auto &[names, byDefault, changed] : keys) {
            const QStringList group = QString::fromLatin1(names).split(u'/');
            for (const QString &name : group[1].split(u',')) {
                const QString key = group[0] + u'/' + name;
                const auto holds = [&key](const char *expected) {
                    const QVariant value = QSettings().value(key);
                    return key.endsWith(u"Gamma") ? value.toFloat() == QByteArray(expected).toFloat()
                                                  : value.toString() == QString::fromUtf8(expected);
                };
                QVERIFY2(holds(byDefault), qPrintable(key));
                QSettings().setValue(key, QString::fromUtf8(changed));
                const Settings settings = loadSettings();
                QVERIFY2(settings != Settings(), qPrintable(key));
                QCOMPARE(loadImageViewerSettings(), group[0].endsWith(u"iewer") ? settings : Settings());
                QSettings().remove(key);
                QVERIFY(saveSettings(settings));
                QVERIFY2(holds(changed), qPrintable(key));
                QVERIFY(saveSettings(Settings()));
            }
        }
    }

    void storesThePasswordEnciphered()
    {
        const QString key = u"network/authenticationPassword"_s;
        Settings settings;
        settings.authenticationPassword = u"hunter2"_s;
        QVERIFY(saveSettings(settings) && !readFile().contains("hunter2"));
        QCOMPARE(cipher().decipher(QSettings().value(key).toString()), u"hunter2"_s);
        QCOMPARE(loadSettings(), settings);

        QSettings().setValue(key, cipher(kKey + 1).encipher(u"hunter2"_s));
        QCOMPARE(loadSettings().authenticationPassword, QString());
    }

    void keepsTheFileToItsOwner()
    {
        const auto access = [] {
            return QFile::permissions(QSettings().fileName()) & QFile::Permissions(0x7077);
        };
        constexpr QFile::Permissions kOwner = QFile::ReadOwner | QFile::WriteOwner;
        QVERIFY(saveSettings(Settings()));
        QCOMPARE(access(), kOwner);
        // As an older version left it.
        QVERIFY(QFile::setPermissions(QSettings().fileName(), kOwner | QFile::ReadGroup | QFile::ReadOther));
        QVERIFY(saveSettings(Settings()));
        QCOMPARE(access(), kOwner);
    }

    void damagedFileKeepsWhatIsReadable()
    {
        writeFile("stray line\n[network]\nauthenticationUser=bob\ndispatcherPort=98x3\nother=7\n"
                  "[behaviours]\nerrorSound=/a, b.wav\nshowBubble=maybe\nfilterJobStart=false\n"
                  "warningSound=@Rect(1 2 3 4)\n[imageViewer]\nimageViewerMaxGPUCache=-1\n"
                  "imageViewerMaxRAMCache=5\nimageViewerExrImportGamma=nan\n"
                  "imageViewerDefaultImportGamma=1,8\n[else\nwhere=1\n");
        QTest::ignoreMessage(
            QtWarningMsg,
            QRegularExpression(
                u"parts of the file, network/dispatcherPort, behaviours/showBubble, "
                "behaviours/errorSound, behaviours/warningSound, "
                "imageViewer/imageViewerMaxGPUCache, imageViewer/imageViewerExrImportGamma"_s));
        Settings expected;
        expected.authenticationUser = u"bob"_s;
        expected.filterJobStart = false;
        expected.imageViewerMaxRAMCache = 5;
        expected.imageViewerDefaultImportGamma = 1.8F; // an editor's comma
        QCOMPARE(loadSettings(), expected);

        QVERIFY(saveSettings(expected));
        QCOMPARE(loadSettings(), expected);
        QCOMPARE(QSettings().value(u"network/other"_s).toInt(), 7);
        QCOMPARE(QSettings().value(u"else/where"_s).toInt(), 1);
    }

    void failedWriteKeepsTheOldFile()
    {
        // The size is more than the lock file takes and less than all the keys take.
        constexpr rlim_t kFull = 512;
        for (const QByteArray &old :
             {QByteArray("[network]\nauthenticationUser=bob\n"), QByteArray("stray line\n")}) {
            init();
            writeFile(old);
            std::signal(SIGXFSZ, SIG_IGN);
            rlimit unlimited{};
            QCOMPARE(getrlimit(RLIMIT_FSIZE, &unlimited), 0);
            const auto restore = qScopeGuard([&unlimited] { setrlimit(RLIMIT_FSIZE, &unlimited); });
            const rlimit full{kFull, unlimited.rlim_max};
            QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot save the settings"_s));
            QVERIFY(!saveSettings(Settings()));
            QCOMPARE(readFile(), old);
        }
    }

    void whatIsNoOrdinaryFile()
    {
        QVERIFY(QDir().mkpath(QFileInfo(QSettings().fileName()).path()));
        QVERIFY(QFile::link(u"/proc/version"_s, QSettings().fileName()));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot save the settings"_s));
        QVERIFY(!saveSettings(Settings()));
    }

    void addressesMayNameTheirPort()
    {
        const std::tuple<const char *, const char *, int> rows[] = {
            {" farm01 ", "farm01", 9464},    {"farm01:77", "farm01", 77},  {"[::1]", "::1", 9464},
            {"[fe80::1]:80", "fe80::1", 80}, {"fe80::1", "fe80::1", 9464}, {"farm01:99999", "farm01", 9464},
        };
        for (const auto &[typed, host, port] : rows) {
            LinkSettings link;
            link.address = QString::fromLatin1(typed);
            link.port = 75'000;
            QCOMPARE(link.host(), QString::fromLatin1(host));
            QCOMPARE(link.tcpPort(), port);
        }
    }

    void aDamagedTimeOfSilenceIsTheDefault()
    {
        for (const auto &[stored, seconds] : {std::pair("0", 600), {"-5", 600}, {"x", 600}, {"90", 90}}) {
            QSettings().setValue(QStringLiteral("network/heartbeat_resolution"), QString::fromLatin1(stored));
            QCOMPARE(loadHeartbeatResolution(), seconds);
        }
    }

    void commandLineReplacesWhatItGives()
    {
        Settings settings;
        settings.authenticationPassword = u"stored"_s;
        Settings expected = settings;
        expected.dispatcherPort = 0;
        expected.authenticationUser.clear();
        CommandLineOverrides overrides;
        overrides.port = 0;
        overrides.user = QString();
        overrides.applyTo(settings);
        QCOMPARE(settings, expected);

        settings.skipDirectoryAuthentication = true;
        overrides = {u"farm"_s, u"me"_s, u""_s, 1};
        overrides.applyTo(settings);
        QCOMPARE(settings.link(), (LinkSettings{u"farm"_s, 1, u"me"_s, u""_s, true}));
    }

private:
    void writeFile(const QByteArray &content)
    {
        const QFileInfo where(QSettings().fileName());
        QVERIFY(QDir().mkpath(where.path()));
        QFile file(where.filePath());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }

    QByteArray readFile()
    {
        QFile file(QSettings().fileName());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"

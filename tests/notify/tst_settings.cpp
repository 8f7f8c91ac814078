#include <settings.h>
#include <settingscipher.h>

#include <inflate.h>

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

/// A text under the key 0 that carries no digest: what follows the flags is a running XOR over `plain`.
QString compressedUnderKeyZero(const QByteArray &plain)
{
    QByteArray bytes("\x03\x01\x00", 3);
    char previous = 0;
    for (const char byte : plain)
        bytes += previous = char(previous ^ byte);
    return base64(bytes);
}

} // namespace

class TestSettings final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_folder.reset(); }

    void enciphersKnownAnswers_data();
    void enciphersKnownAnswers();
    void deciphersKnownAnswers_data();
    void deciphersKnownAnswers();
    void compressesWhereThatIsShorter();
    void damagedCipherTextReadsAsEmpty_data();
    void damagedCipherTextReadsAsEmpty();
    void refusesWhatIsNoCipherText_data();
    void refusesWhatIsNoCipherText();
    void inflatesNoBombs();
    void drawsTheRandomByteAnew();

    void readsAndWritesEveryKey_data();
    void readsAndWritesEveryKey();
    void storesThePasswordEnciphered();
    void keepsTheFileToItsOwner();
    void damagedFileKeepsWhatIsReadable();
    void failedWriteKeepsTheOldFile();
    void folderInPlaceOfTheFile();
    void linkToWhatCannotBeWritten();
    void commandLineReplacesWhatItGives();

private:
    void writeFile(const QByteArray &content);
    QByteArray readFile();

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestSettings::initTestCase()
{
    QCoreApplication::setOrganizationName(u"Loomwright"_s);
    QCoreApplication::setApplicationName(u"Tarrow\\9\\Alertor"_s);
}

void TestSettings::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder->path());
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void TestSettings::writeFile(const QByteArray &content)
{
    const QFileInfo where(QSettings().fileName());
    QVERIFY(QDir().mkpath(where.path()));
    QFile file(where.filePath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray TestSettings::readFile()
{
    QFile file(QSettings().fileName());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestSettings::enciphersKnownAnswers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint64>("key");
    QTest::addColumn<QString>("cipherText");

    QTest::newRow("empty") << u""_s << kKey << u"AwIojs4="_s;
    QTest::newRow("plain") << u"secret"_s << kKey << u"AwIokMOdxE4rFe4="_s;
    QTest::newRow("non-ASCII") << u"pässwörd €🔑"_s << kKey << u"AwIoQmo3yIXhyTFUov2lbJlAYzXqU/4="_s;
    QTest::newRow("key 0") << u"secret"_s << quint64(0) << u"AwKnuarZvN+tyLw="_s;
}

void TestSettings::enciphersKnownAnswers()
{
    QFETCH(const QString, text);
    QFETCH(const quint64, key);
    QFETCH(const QString, cipherText);
    QCOMPARE(cipher(key).encipher(text), cipherText);
    QCOMPARE(cipher(key).decipher(cipherText), text);
}

void TestSettings::deciphersKnownAnswers_data()
{
    QTest::addColumn<QString>("cipherText");
    QTest::addColumn<QString>("text");

    QTest::newRow("no digest") << u"AwCeS24gbuKB"_s << u"secret"_s;
    QTest::newRow("no digest, empty") << u"AwCP"_s << QString();
    QTest::newRow("SHA-1") << u"AwSt7keQt/30Yve5tu4YWwsfqmoVPfVvHSXYGy8="_s << u"secret"_s;
    QTest::newRow("checksum and SHA-1") << u"Awba4wjAFQYK8mMIUpfkeKVUnHUPREerSGCKT301fQ=="_s << u"secret"_s;
    QTest::newRow("compressed") << u"AwHLbS0A9GWouHz2fIT1B+q1OivTtnM="_s << farm();
    QTest::newRow("compressed, checksum") << u"AwPTx1d6Rq9wUwbr4OEXK3ExROamPLgZ9w=="_s << farm();
    QTest::newRow("compressed, SHA-1")
        << u"AwW8ODSRnL/TxglEoFqv9eLgBYTt4rFYTxRTjRdxBsMekFLvVXxAHrGi1A=="_s << farm();
    QTest::newRow("announces 4 GiB") << u"AwOO0ug6+e8HJHH88pKAIxlDzGLz3Gc="_s << u"secret"_s;
    QTest::newRow("announces too little") << u"AwOON2pHe5KAo/Z7dRUHpJ7ES+V0W+A="_s << QString();
    QTest::newRow("announces nothing") << u"AwOO7mJPc5o="_s << QString();
    QTest::newRow("holds no stream") << u"AwOO+pO+gmt6Urh9TwdP"_s << QString();
}

void TestSettings::deciphersKnownAnswers()
{
    QFETCH(const QString, cipherText);
    QFETCH(const QString, text);
    QCOMPARE(cipher().decipher(cipherText), text);
}

void TestSettings::compressesWhereThatIsShorter()
{
    const QString cipherText = cipher().encipher(farm());
    QCOMPARE(QByteArray::fromBase64(cipherText.toLatin1())[1], '\x03');
    QVERIFY(cipherText.size() < farm().size());
    QCOMPARE(cipher().decipher(cipherText), farm());

    // The reader would refuse to inflate a text of this size.
    const QString huge(kMaxInflatedSize + 1, u'x');
    QVERIFY(cipher().decipher(cipher().encipher(huge)) == huge);
}

void TestSettings::damagedCipherTextReadsAsEmpty_data()
{
    QTest::addColumn<QByteArray>("good");
    QTest::newRow("checksum") << QByteArray::fromBase64("AwIokMOdxE4rFe4=");
    QTest::newRow("SHA-1") << QByteArray::fromBase64("AwSt7keQt/30Yve5tu4YWwsfqmoVPfVvHSXYGy8=");
    QTest::newRow("compressed") << QByteArray::fromBase64("AwPTx1d6Rq9wUwbr4OEXK3ExROamPLgZ9w==");
}

void TestSettings::damagedCipherTextReadsAsEmpty()
{
    QFETCH(const QByteArray, good);
    QVERIFY(!cipher().decipher(base64(good)).isEmpty());
    QCOMPARE(cipher(kKey + 1).decipher(base64(good)), QString());
    for (qsizetype cut = 0; cut < good.size(); ++cut)
        QCOMPARE(cipher().decipher(base64(good.first(cut))), QString());
    for (qsizetype at = 0; at < good.size(); ++at) {
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

void TestSettings::refusesWhatIsNoCipherText_data()
{
    QTest::addColumn<QString>("cipherText");
    QTest::newRow("empty") << QString();
    QTest::newRow("no Base64") << u"\u20ac%&/"_s;
    QTest::newRow("in clear") << u"secret"_s;
    QTest::newRow("other version") << u"AgIokMOdxE4rFe4="_s;
    QTest::newRow("header alone") << u"AwI="_s;
}

void TestSettings::refusesWhatIsNoCipherText()
{
    QFETCH(const QString, cipherText);
    QLoggingCategory::setFilterRules(u"tarrow.notify.debug=true"_s);
    const auto quiet = qScopeGuard([] { QLoggingCategory::setFilterRules(QString()); });
    QTest::ignoreMessage(QtDebugMsg, "Invalid version or not a cyphertext.");
    QCOMPARE(cipher().decipher(cipherText), QString());
}

void TestSettings::inflatesNoBombs()
{
    const QByteArray full(kMaxInflatedSize, 'x');
    QCOMPARE(cipher(0).decipher(compressedUnderKeyZero(qCompress(full))).size(), full.size());
    QCOMPARE(cipher(0).decipher(compressedUnderKeyZero(qCompress(full + 'x'))), QString());
}

void TestSettings::drawsTheRandomByteAnew()
{
    const SettingsCipher drawing;
    QSet<QString> cipherTexts;
    for (int i = 0; i < 64; ++i)
        cipherTexts += drawing.encipher(u"secret"_s);
    QVERIFY(cipherTexts.size() > 16);
}

void TestSettings::readsAndWritesEveryKey_data()
{
    QTest::addColumn<QString>("byDefault");
    QTest::addColumn<QString>("changed");

    const auto row = [](const char *key, const char *byDefault, const char *changed) {
        QTest::newRow(key) << QString::fromLatin1(byDefault) << QString::fromUtf8(changed);
    };
    row("network/dispatcherAddress", "127.0.0.1", "färm.example");
    row("network/authenticationUser", "admin", "");
    row("network/dispatcherPort", "9883", "0");
    row("network/skipDirectoryAuthentication", "false", "true");
    for (const char *key :
         {"filterServiceActivities", "filterJobStart", "filterJobCompletedWithErrors",
          "filterJobCompletedWithWarnings", "filterJobCompletedWithSuccess", "filterChunkStart",
          "filterChunkCompletedWithErrors", "filterChunkCompletedWithWarnings",
          "filterChunkCompletedWithSuccess", "showBubble", "autoAckOnRaise"})
        row(QByteArray("behaviours/").append(key), "true", "false");
    for (const char *key :
         {"playErrorSound", "playWarningSound", "playSuccessSound", "playStartSound", "playServiceSound"})
        row(QByteArray("behaviours/").append(key), "false", "true");
    for (const char *key : {"errorSound", "warningSound", "successSound", "startSound", "serviceSound"})
        row(QByteArray("behaviours/").append(key), "", "/sounds, old/\"ping\".wav");
    row("imageViewer/imageViewerMaxGPUCache", "1000000000", "18446744073709551615");
    row("imageViewer/imageViewerMaxRAMCache", "2000000000", "0");
    row("imageViewer/imageViewerExrImportGamma", "2.2", "1.8");
    row("imageViewer/imageViewerDefaultImportGamma", "1", "0.45454547");
    row("imageViewer/imageViewerMode", "0", "1");
    row("imageViewer/imageViewer", "", "C:\\viewer.exe");
    row("imageViewer/launchImageViewer", "false", "true");
}

void TestSettings::readsAndWritesEveryKey()
{
    QFETCH(const QString, byDefault);
    QFETCH(const QString, changed);
    const QString key = QString::fromLatin1(QTest::currentDataTag());
    const auto stored = [&key] {
        const QVariant value = QSettings().value(key);
        return key.endsWith(u"Gamma") ? QString::number(value.toFloat(), 'g', 8) : value.toString();
    };
    QVERIFY(saveSettings(loadSettings()));
    QCOMPARE(QSettings().allKeys().size(), 33);
    QCOMPARE(stored(), key.endsWith(u"Gamma") ? QString::number(byDefault.toFloat(), 'g', 8) : byDefault);

    QSettings().setValue(key, changed);
    const Settings settings = loadSettings();
    QVERIFY(settings != Settings());
    QSettings().remove(key);
    QVERIFY(saveSettings(settings));
    QCOMPARE(stored(), key.endsWith(u"Gamma") ? QString::number(changed.toFloat(), 'g', 8) : changed);
}

void TestSettings::storesThePasswordEnciphered()
{
    const QString key = u"network/authenticationPassword"_s;
    Settings settings;
    settings.authenticationPassword = u"hunter2"_s;
    QVERIFY(saveSettings(settings));
    QVERIFY(!readFile().contains("hunter2"));
    QCOMPARE(cipher().decipher(QSettings().value(key).toString()), u"hunter2"_s);
    QCOMPARE(loadSettings(), settings);

    QSettings().setValue(key, cipher(kKey + 1).encipher(u"hunter2"_s));
    QCOMPARE(loadSettings().authenticationPassword, QString());
}

void TestSettings::keepsTheFileToItsOwner()
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

void TestSettings::damagedFileKeepsWhatIsReadable()
{
    writeFile("stray line\n[network]\nauthenticationUser=bob\ndispatcherPort=98x3\nother=7\n"
              "[behaviours]\nerrorSound=/a, b.wav\nshowBubble=maybe\nfilterJobStart=false\n"
              "warningSound=@Rect(1 2 3 4)\n[imageViewer]\nimageViewerMaxGPUCache=-1\n"
              "imageViewerMaxRAMCache=5\nimageViewerExrImportGamma=nan\n[else\nwhere=1\n");
    QTest::ignoreMessage(
        QtWarningMsg,
        QRegularExpression(u"parts of the file, network/dispatcherPort, behaviours/showBubble, "
                           "behaviours/errorSound, behaviours/warningSound, "
                           "imageViewer/imageViewerMaxGPUCache, imageViewer/imageViewerExrImportGamma"_s));
    Settings expected;
    expected.authenticationUser = u"bob"_s;
    expected.filterJobStart = false;
    expected.imageViewerMaxRAMCache = 5;
    QCOMPARE(loadSettings(), expected);

    QVERIFY(saveSettings(expected));
    QCOMPARE(loadSettings(), expected);
    QCOMPARE(QSettings().value(u"network/other"_s).toInt(), 7);
    QCOMPARE(QSettings().value(u"else/where"_s).toInt(), 1);
}

void TestSettings::failedWriteKeepsTheOldFile()
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
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"the settings cannot be saved"_s));
        QVERIFY(!saveSettings(Settings()));
        QCOMPARE(readFile(), old);
    }
}

void TestSettings::folderInPlaceOfTheFile()
{
    QVERIFY(QDir().mkpath(QSettings().fileName()));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"cannot read parts of the file"_s));
    QCOMPARE(loadSettings(), Settings());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"the settings cannot be saved"_s));
    QVERIFY(!saveSettings(Settings()));
}

void TestSettings::linkToWhatCannotBeWritten()
{
    writeFile({});
    QVERIFY(QFile::remove(QSettings().fileName()));
    QVERIFY(QFile::link(u"/proc/version"_s, QSettings().fileName()));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"the settings cannot be saved"_s));
    QVERIFY(!saveSettings(Settings()));
}

void TestSettings::commandLineReplacesWhatItGives()
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

    overrides = {u"farm"_s, u"me"_s, u""_s, 1};
    overrides.applyTo(settings);
    QCOMPARE(settings.link(), (LinkSettings{u"farm"_s, 1, u"me"_s, u""_s, false}));
}

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"

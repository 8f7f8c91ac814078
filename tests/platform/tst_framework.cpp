#include "filesystem.h"
#include "stringhelper.h"
#include "tframework.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <filesystem>
#include <limits>
#include <set>

using namespace TFramework;

namespace {

QByteArray bytes(const std::string &text)
{
    return QByteArray::fromStdString(text);
}

QByteArray joined(const std::vector<std::string> &values)
{
    QByteArrayList list;
    for (const std::string &value : values)
        list.append('<' + bytes(value) + '>');
    return list.join();
}

std::multiset<std::string> listed(const std::string &folder)
{
    std::multiset<std::string> names;
    std::string name;
    TDirectoryEnumeration *enumeration = TFileSystem::EnumDirFirstFile(folder, name);
    for (bool more = enumeration; more; more = TFileSystem::EnumDirNextFile(enumeration, name))
        names.insert(name);
    // Past the end it stays at the end.
    if (TFileSystem::EnumDirNextFile(enumeration, name))
        names.insert("entry behind the last");
    TFileSystem::EnumDirClose(enumeration);
    return names;
}

} // namespace

class FrameworkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sequenceMask_data();
    void sequenceMask();
    void fileFromMask_data();
    void fileFromMask();
    void paths_data();
    void paths();
    void foldersAndFiles();
    void unreadableFolders();
    void base64_data();
    void base64();
    void lists();
    void replace();
    void library();
    void settingsFolders();
};

void FrameworkTest::sequenceMask_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("mask");
    QTest::addColumn<int>("frame");

    const auto row = [](const char *path, const char *mask, int frame = 0) {
        QTest::newRow(path) << QByteArray(path) << QByteArray(mask) << frame;
    };
    row("/a/v2/shot.0007.exr", "/a/v2/shot.####.exr", 7);
    row("/a/shot_v02.0101.exr", "/a/shot_v02.####.exr", 101);
    row("/a/shot.0007.exr.gz", "/a/shot.####.exr.gz", 7);
    row("shot010", "shot###", 10);
    row("file7.exr", "file#.exr", 7);
    row("0007.exr", "####.exr", 7);
    row(".0007", ".####", 7);
    row("/a/clip_12.mp4", "/a/clip_##.mp4", 12);
    row("/a/clip.r3d", "");
    row("/a/v2/clip.j2k", "");
    row("shot.0007", "");
    row("/v2/still.exr", "");
    row("/a/0007/", "");
    row("", "");
    // Signs
    row("a.-0012.exr", "a.####.exr", -12);
    row("a_-1.exr", "a_#.exr", -1);
    row("-0012.exr", "####.exr", -12);
    row("/a/-5", "/a/#", -5);
    row("shot-0012.exr", "shot-####.exr", 12);
    row("a.--0012.exr", "a.--####.exr", 12);
    row("a.-0000.exr", "");
    // Limits of the number and of the field
    row("a.2147483647.exr", "a.##########.exr", 2147483647);
    row("a.2147483648.exr", "");
    row("a.-2147483648.exr", "a.##########.exr", std::numeric_limits<int>::min());
    row("a.-2147483649.exr", "");
    row("a.99999999999999999999999.exr", "");
    row("a.00000000000000000000000000000007.exr", "a.################################.exr", 7);
    row("a.000000000000000000000000000000007.exr", "");
    // Names that could be taken for another mask
    row("shot_v02.####.exr", "");
    row("a1_@@.exr", "");
    row("a1_%04d.exr", "");
    row("take7b.exr", "");
    row("0007_logo@2x.exr", "");
    row("/a#b/v%04d/x_07.exr", "/a#b/v%04d/x_##.exr", 7);
    row("bad\xff\xc3_07.exr", "bad\xff\xc3_##.exr", 7);
}

void FrameworkTest::sequenceMask()
{
    QFETCH(const QByteArray, path);
    QFETCH(const QByteArray, mask);
    QFETCH(const int, frame);

    std::int32_t found = -7;
    QCOMPARE(bytes(TFileSystem::GetSequenceMask(path.toStdString(), true, found)), mask);
    QCOMPARE(found, frame);
    QCOMPARE(bytes(TFileSystem::GetSequenceMask(path.toStdString(), false, found)),
             mask.mid(mask.lastIndexOf('/') + 1));
    QCOMPARE(found, frame);
    if (!mask.isEmpty())
        QCOMPARE(bytes(TFileSystem::GetFileFromMask(mask.toStdString(), frame)), path);
}

void FrameworkTest::fileFromMask_data()
{
    QTest::addColumn<QByteArray>("mask");
    QTest::addColumn<qint64>("frame");
    QTest::addColumn<QByteArray>("path");

    const auto row = [](const char *mask, qint64 frame, const char *path) {
        QTest::addRow("%s %lld", mask, frame) << QByteArray(mask) << frame << QByteArray(path);
    };
    constexpr auto kLowest = std::numeric_limits<qint64>::min();
    row("/a/v2/b.####.exr", 7, "/a/v2/b.0007.exr");
    row("b.@@@.exr", 7, "b.007.exr");
    row("b.%04d.exr", 7, "b.0007.exr");
    row("b.%010d.exr", 7, "b.0000000007.exr");
    row("b.####.exr", -12, "b.-0012.exr");
    row("b.%04d.exr", -12, "b.-0012.exr");
    row("b.##.exr", 12345, "b.12345.exr");
    row("b.##.exr", kLowest, "b.-9223372036854775808.exr");
    row("b.####", 0, "b.0000");
    row("b.#", 10, "b.10");
    row("b#.exr", 3, "b3.exr");
    row("b.##.####.exr", 7, "b.##.0007.exr");
    row("b.####_%02d.exr", 7, "b.####_07.exr");
    row("b.%04d.@@x", 7, "b.%04d.07x");
    row("%%04d.exr", 7, "%0007.exr");
    // No masks
    for (const char *path :
         {"", "/a/b.exr", "/a/####/", "/a/%04d/b.exr", "b.%d.exr", "100%done.exr", "b.%4d.exr", "b.%0d.exr",
          "b.%000d.exr", "b.%04x.exr", "b.%04", "b%", "logo@2x.png", "take#3.exr", "b.%033d.exr",
          "b.####.%09999d.exr", "b.%099999999999999999999d.exr", "b.#################################.exr"})
        row(path, 1, "");
}

void FrameworkTest::fileFromMask()
{
    QFETCH(const QByteArray, mask);
    QFETCH(const qint64, frame);
    QFETCH(const QByteArray, path);
    QCOMPARE(bytes(TFileSystem::GetFileFromMask(mask.toStdString(), frame)), path);
}

void FrameworkTest::paths_data()
{
    QTest::addColumn<QByteArray>("folder");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("folderAgain");

    const auto row = [](const char *folder, const char *name, const char *path, const char *folderAgain) {
        QTest::addRow("%s + %s", folder, name)
            << QByteArray(folder) << QByteArray(name) << QByteArray(path) << QByteArray(folderAgain);
    };
    row("/a", "b", "/a/b", "/a");
    row("/a//", "//b", "/a/b", "/a");
    row("/", "b", "/b", "/");
    row("", "b", "b", "");
    row("/a/", "", "/a/", "/a");
    row("a", "/", "a/", "a");
    row("", "", "", "");
    row("/\xff", "\xc3.exr", "/\xff/\xc3.exr", "/\xff");
}

void FrameworkTest::paths()
{
    QFETCH(const QByteArray, folder);
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, path);
    QFETCH(const QByteArray, folderAgain);
    QCOMPARE(bytes(TFileSystem::JoinPath(folder.toStdString(), name.toStdString())), path);
    QCOMPARE(bytes(TFileSystem::GetFilePath(path.toStdString())), folderAgain);
}

void FrameworkTest::foldersAndFiles()
{
    const QTemporaryDir home;
    const std::string folder = TFileSystem::JoinPath(home.path().toStdString(), "a/b");
    QVERIFY(!TFileSystem::MakeDirectory(folder, false));
    QVERIFY(TFileSystem::MakeDirectory(folder + '/', true));
    QVERIFY(TFileSystem::MakeDirectory(folder, true));
    QVERIFY(TFileSystem::MakeDirectory(folder + "/sub", false));
    QVERIFY(listed(folder + "/sub").empty());

    const std::string odd = "bad\xff.py"; // a name that is no UTF-8 keeps its bytes
    const std::string file = folder + '/' + odd;
    QVERIFY(!TFileSystem::CheckFile(file));
    QFile written(QFile::decodeName(QByteArray::fromStdString(folder + "/x.py")));
    QVERIFY(written.open(QIODevice::WriteOnly));
    std::error_code error;
    std::filesystem::create_symlink("x.py", file, error);
    std::filesystem::create_symlink("nowhere", folder + "/dangling", error);
    QVERIFY(!error);

    QVERIFY(TFileSystem::CheckFile(folder + "/x.py"));
    QVERIFY(TFileSystem::CheckFile(file));
    QVERIFY(!TFileSystem::CheckFile(folder + "/dangling"));
    QVERIFY(!TFileSystem::CheckFile(folder + "/sub"));
    QVERIFY(!TFileSystem::CheckFile(folder + "/x.py" + std::string("\0.exr", 5)));
    QVERIFY(!TFileSystem::MakeDirectory(folder + "/x.py", true));
    QVERIFY(!TFileSystem::MakeDirectory(folder + "/x.py/sub", true));
    QCOMPARE(listed(folder), (std::multiset<std::string>{"dangling", "sub", "x.py", odd}));
    QVERIFY(std::filesystem::remove(file)); // QTemporaryDir cannot name it
}

void FrameworkTest::unreadableFolders()
{
    const QTemporaryDir home;
    const std::string folder = home.path().toStdString();
    QVERIFY(listed("/proc/self/exe").empty());
    for (const std::string &path :
         {std::string(), folder + "/none/deeper", folder + std::string("\0", 1), std::string(5000, 'x')}) {
        QVERIFY(listed(path).empty());
        QVERIFY(!TFileSystem::CheckFile(path));
        QVERIFY(!TFileSystem::MakeDirectory(path, false));
    }
}

void FrameworkTest::base64_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("plain");
    QTest::newRow("line breaks") << QByteArray("Zm9v\r\nYm Fy\n") << QByteArray("foobar");
    QTest::newRow("no padding") << QByteArray("Zm9vYg") << QByteArray("foob");
    QTest::newRow("ends at =") << QByteArray("Zm8=Zm9v") << QByteArray("fo");
    QTest::newRow("lone character") << QByteArray("Zm9vY") << QByteArray("foo");
    QTest::newRow("foreign bytes") << QByteArray("\xff\x80Zm_-9v", 8) << QByteArray("foo");
    QTest::newRow("only =") << QByteArray("====") << QByteArray();
}

void FrameworkTest::base64()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QByteArray, plain);
    QCOMPARE(bytes(TStringHelper::FromBase64(text.toStdString())), plain);

    QByteArray all;
    for (int i = 0; i < 256; ++i) {
        const std::string encoded = TStringHelper::ToBase64(all.toStdString());
        QCOMPARE(bytes(encoded), all.toBase64());
        QCOMPARE(bytes(TStringHelper::FromBase64(encoded)), all);
        all.prepend(static_cast<char>(i));
    }
}

void FrameworkTest::lists()
{
    QCOMPARE(joined(TStringHelper::TokenizeString("", "\n")), "<>");
    QCOMPARE(joined(TStringHelper::TokenizeString("\na\n\n", "\n")), "<><a><><>");
    QCOMPARE(joined(TStringHelper::TokenizeString("a--b---c", "--")), "<a><b><-c>");
    QCOMPARE(joined(TStringHelper::TokenizeString("ab", "")), "<ab>");
    QCOMPARE(joined(TStringHelper::DecodeFramesMask(" /a b/c.#.exr ;; \t;d.##.exr;")),
             "</a b/c.#.exr><d.##.exr>");
    QCOMPARE(joined(TStringHelper::DecodeFramesMask("")), "");
}

void FrameworkTest::replace()
{
    QCOMPARE(bytes(TStringHelper::Replace("a.py.py.bak", ".py", "")), "a.bak");
    QCOMPARE(bytes(TStringHelper::Replace("aaa", "aa", "aab")), "aaba");
    QCOMPARE(bytes(TStringHelper::Replace("abc", "", "x")), "abc");
}

void FrameworkTest::library()
{
    const QTemporaryDir home;
    const QString real = QFileInfo(home.path()).canonicalFilePath();
    QVERIFY(QDir(real).mkdir(QStringLiteral("bin")));
    QVERIFY(QFile::link(real + QStringLiteral("/bin"), real + QStringLiteral("/link")));

    QVERIFY(GetModuleBasePath().empty());
    QVERIFY(InitializeLibrary((real.toStdString() + "/link/program").c_str()));
    QVERIFY(!InitializeLibrary("/elsewhere/program"));
    QCOMPARE(bytes(GetModuleBasePath()), real.toUtf8() + "/bin");

    int context = 0;
    SetLibraryContext("Alertor", &context);
    SetLibraryContext(nullptr, &context);
    QCOMPARE(GetLibraryContext("Alertor"), &context);
    QCOMPARE(GetLibraryContext("Other"), nullptr);
    QCOMPARE(GetLibraryContext(nullptr), nullptr);
    SetLibraryContext("Alertor", nullptr);
    QCOMPARE(GetLibraryContext("Alertor"), nullptr);

    SetLibraryContext("Alertor", &context);
    ShutdownLibrary();
    QCOMPARE(GetLibraryContext("Alertor"), nullptr);
    QVERIFY(GetModuleBasePath().empty());

    // Found on the search path, or without a name: the running program's own folder.
    const auto self = std::filesystem::canonical("/proc/self/exe").parent_path().string();
    for (const char *argv0 : {"program", "", static_cast<const char *>(nullptr)}) {
        QVERIFY(InitializeLibrary(argv0));
        QCOMPARE(bytes(GetModuleBasePath()), bytes(self));
        ShutdownLibrary();
    }
    QCOMPARE(bytes(GetHostName()), QSysInfo::machineHostName().toUtf8());
}

void FrameworkTest::settingsFolders()
{
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", "/home/somebody//");
    QCOMPARE(bytes(TFileSystem::GetAppSettingsFolder(true)), "/home/somebody");
    qputenv("HOME", "/");
    QCOMPARE(bytes(TFileSystem::GetAppSettingsFolder(true)), "/");
    // Without a usable variable the system's list of users tells.
    for (const char *unusable : {"", "relative"}) {
        qputenv("HOME", unusable);
        QVERIFY(TFileSystem::GetAppSettingsFolder(true).starts_with('/'));
    }
    qputenv("HOME", home);
    QCOMPARE(bytes(TFileSystem::GetAppSettingsFolder(false)), "/etc");
}

QTEST_APPLESS_MAIN(FrameworkTest)
#include "tst_framework.moc"

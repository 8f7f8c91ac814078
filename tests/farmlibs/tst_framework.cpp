#include <framework/filesystem.h>
#include <framework/stringhelper.h>
#include <framework/tframework.h>
#include <helpers/directorylisting.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <filesystem>
#include <limits>

using namespace TFramework;
using Names = std::vector<std::string>;

namespace {

QByteArray bytes(const std::string &text)
{
    return QByteArray::fromStdString(text);
}

} // namespace

class FrameworkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sequenceMask()
    {
        const std::tuple<std::string, const char *, int> paths[] = {
            {"/a/v2/shot_v02.0101.exr", "/a/v2/shot_v02.####.exr", 101},
            {"/a/shot.0007.exr.gz", "/a/shot.####.exr.gz", 7},
            {"shot010", "shot###", 10},
            {"0007.exr", "####.exr", 7},
            {".0007", ".####", 7},
            {"/a/clip_12.mp4", "/a/clip_##.mp4", 12},
            // Signs
            {"a.-0012.exr", "a.####.exr", -12},
            {"/a/-5", "/a/#", -5},
            {"shot-0012.exr", "shot-####.exr", 12},
            {"a.--0012.exr", "a.--####.exr", 12},
            // Limits of the number and of the field
            {"a.2147483647.exr", "a.##########.exr", 2147483647},
            {"a.-2147483648.exr", "a.##########.exr", std::numeric_limits<int>::min()},
            {"a.00000000000000000000000000000007.exr", "a.################################.exr", 7},
            // Beside another mask's characters or other bytes
            {"/a#b/v%04d/x_07.exr", "/a#b/v%04d/x_##.exr", 7},
            {"bad\xff\xc3_07.exr", "bad\xff\xc3_##.exr", 7},
        };
        for (const auto &[path, mask, frame] : paths) {
            std::int32_t found = -7;
            QCOMPARE(bytes(TFileSystem::GetSequenceMask(path, true, found)), QByteArray(mask));
            QCOMPARE(found, frame);
            const std::string name = std::filesystem::path(mask).filename();
            QCOMPARE(bytes(TFileSystem::GetSequenceMask(path, false, found)), bytes(name));
            QCOMPARE(bytes(TFileSystem::GetFileFromMask(mask, frame)), bytes(path));
        }
        for (const char *path :
             {"/a/clip.r3d", "/a/v2/clip.j2k", "shot.0007", "/v2/still.exr", "/a/0007/", "", "a.-0000.exr",
              "a.2147483648.exr", "a.-2147483649.exr", "a.99999999999999999999999.exr",
              "a.000000000000000000000000000000007.exr", "shot_v02.####.exr", "a1_@@.exr", "a1_%04d.exr",
              "take7b.exr", "0007_logo@2x.exr"}) {
            std::int32_t found = -7;
            QVERIFY2(TFileSystem::GetSequenceMask(path, true, found).empty() && found == 0, path);
        }
    }

    void fileFromMask()
    {
        const std::tuple<const char *, qint64, const char *> masks[] = {
            {"/a/v2/b.####.exr", 7, "/a/v2/b.0007.exr"},
            {"b.@@@.exr", 7, "b.007.exr"},
            {"b.%010d.exr", 7, "b.0000000007.exr"},
            {"b.####.exr", -12, "b.-0012.exr"},
            {"b.%04d.exr", -12, "b.-0012.exr"},
            {"b.##.exr", 12345, "b.12345.exr"},
            {"b.##.exr", std::numeric_limits<qint64>::min(), "b.-9223372036854775808.exr"},
            {"b.####", 0, "b.0000"},
            {"b#.exr", 3, "b3.exr"},
            {"b.##.####.exr", 7, "b.##.0007.exr"},
            {"b.####_%02d.exr", 7, "b.####_07.exr"},
            {"b.%04d.@@x", 7, "b.%04d.07x"},
            {"%%04d.exr", 7, "%0007.exr"},
        };
        for (const auto &[mask, frame, path] : masks)
            QCOMPARE(bytes(TFileSystem::GetFileFromMask(mask, frame)), QByteArray(path));
        for (const char *other : {"", "/a/b.exr", "/a/####/", "/a/%04d/b.exr", "b.%d.exr", "100%done.exr",
                                  "b.%4d.exr", "b.%0d.exr", "b.%000d.exr", "b.%04x.exr", "b.%04", "b%",
                                  "logo@2x.png", "take#3.exr", "b.%033d.exr", "b.####.%09999d.exr",
                                  "b.%099999999999999999999d.exr", "b.#################################.exr"})
            QVERIFY2(TFileSystem::GetFileFromMask(other, 1).empty(), other);
    }

    void foldersAndFiles()
    {
        const QTemporaryDir home;
        const std::string folder = TFileSystem::JoinPath(home.path().toStdString(), "a/b");
        QVERIFY(!TFileSystem::MakeDirectory(folder, false));
        QVERIFY(TFileSystem::MakeDirectory(folder + '/', true) && TFileSystem::MakeDirectory(folder, true));
        QVERIFY(TFileSystem::MakeDirectory(folder + "/sub", false)
                && FarmHelpers::listDirectory(folder + "/sub").empty());

        const std::string odd = "bad\xff.py"; // a name that is no UTF-8 keeps its bytes
        const std::string file = folder + '/' + odd;
        QVERIFY(!TFileSystem::CheckFile(file));
        QFile written(QFile::decodeName(QByteArray::fromStdString(folder + "/x.py")));
        QVERIFY(written.open(QIODevice::WriteOnly));
        std::filesystem::create_symlink("x.py", file);
        std::filesystem::create_symlink("nowhere", folder + "/dangling");

        QVERIFY(TFileSystem::CheckFile(folder + "/x.py") && TFileSystem::CheckFile(file));
        for (const std::string &none :
             {std::string("/dangling"), std::string("/sub"), std::string("/x.py\0.exr", 10)})
            QVERIFY2(!TFileSystem::CheckFile(folder + none), none.c_str());
        QVERIFY(!TFileSystem::MakeDirectory(folder + "/x.py/sub", true));
        QCOMPARE(FarmHelpers::listDirectory(folder), (Names{odd, "dangling", "sub", "x.py"}));
        QVERIFY(std::filesystem::remove(file)); // QTemporaryDir cannot name it
        QCOMPARE(TFileSystem::GetFilePath("/a/" + std::string(5000, 'x')), ""); // no system has it
    }

    void library()
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
        QVERIFY(!GetLibraryContext("Other") && !GetLibraryContext(nullptr));
        SetLibraryContext("Alertor", nullptr);
        QVERIFY(!GetLibraryContext("Alertor"));

        ShutdownLibrary();
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

    void settingsFolders()
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
};

QTEST_APPLESS_MAIN(FrameworkTest)
#include "tst_framework.moc"

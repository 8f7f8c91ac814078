#include "capturedoutput.h"
#include "table.h"
#include "templatefolder.h"

#include <template_engine/tmanager.h>

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <optional>

#include <sys/stat.h>

using TTemplateEngine::THookFailure;
using TTemplateEngine::TManager;
using TTemplateEngine::TTemplate;

namespace {

/// A template's source: the hook with the given body, under the ID 12.
QByteArray hook(const QByteArray &body)
{
    return "import alertor\nTEMPLATE_ID = 12\ndef onCustomDispatcherMessageToAlertor(message):\n    "
        + QByteArray(body).replace("\n", "\n    ") + "\n";
}

/// An engine with a templates folder, for one test.
class Engine final {
    Q_DISABLE_COPY_MOVE(Engine)

public:
    Engine()
    {
        TManager::initializePythonPath(1, "alertor");
        manager = TManager::getUniqueClass(1);
    }
    ~Engine() { TManager::destroyUniqueClass(); }

    QString path(const QString &name) const { return folder.filePath(name); }

    bool load(const QString &fileName)
    {
        TTemplateEngine::TTemplatesDirectories directories;
        manager->normalizeTemplatesDirectories(folder.path().toStdString(), directories);
        const std::string name = QFileInfo(fileName).completeBaseName().toStdString();
        const bool loaded = manager->loadTemplateFromFile(folder.path().toStdString(),
                                                          path(fileName).toStdString(), name, directories);
        manager->fillInternalHashesMap();
        return loaded;
    }
    bool load(const QString &fileName, const QByteArray &source)
    {
        writeFile(path(fileName), source);
        return load(fileName);
    }

    /// The exception's text when the hook raised, nothing when it did not.
    std::optional<QByteArray> call(std::int32_t id, const char *message = "") const
    {
        TTemplate *called = manager->getTemplate(id);
        if (!called)
            return "no such template";
        std::optional<QByteArray> raised;
        manager->acquirePython();
        try {
            called->onCustomDispatcherMessageToAlertor(message);
        } catch (const THookFailure &) {
            raised = QByteArray::fromStdString(manager->getPyExceptionStr());
        }
        manager->releasePython();
        TTemplate::Release(called);
        return raised;
    }

    QTemporaryDir folder;
    TManager *manager = nullptr;
};

} // namespace

class TestTemplateEngine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void foreignPythonAround() // first: Python keeps the paths of its first start for the whole process
    {
        QTemporaryDir foreign;
        writeFile(foreign.filePath(u"bin/python3"_qs), "#!/bin/sh\n");
        QFile::setPermissions(foreign.filePath(u"bin/python3"_qs), QFile::ReadOwner | QFile::ExeOwner);
        writeFile(foreign.filePath(u"lib/python3.11/os.py"_qs), "raise SystemExit");
        writeFile(foreign.filePath(u"modules/json.py"_qs), "raise SystemExit");
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(foreign.filePath(u"bin"_qs)) + ':' + path);
        qputenv("LC_ALL", "C");
        qputenv("PYTHONHOME", QFile::encodeName(foreign.path()));
        qputenv("PYTHONPATH", QFile::encodeName(foreign.filePath(u"modules"_qs)));
        {
            Engine engine;
            RecordedLink link;
            QVERIFY(engine.load(
                u"x.py"_qs,
                hook("import json, os, site, sys\n"
                     "alertor.send(1, (os.__file__ + json.__file__).encode())\n"
                     "alertor.send(1, f'{site.ENABLE_USER_SITE} {sys.stdout.encoding}'.encode())")));
            QCOMPARE(engine.call(12), std::nullopt);
            QCOMPARE(link.messages.size(), 2);
            QVERIFY(!link.messages[0].payload.contains(foreign.path().toUtf8()));
            QCOMPARE(link.messages[1].payload, QByteArray("False utf-8"));
        }
        qputenv("PATH", path);
        qputenv("LC_ALL", "C.UTF-8");
        qunsetenv("PYTHONHOME");
        qunsetenv("PYTHONPATH");
    }

    void refusedSources_data()
    {
        addTable<QByteArray, QByteArray>(
            {"source", "report"},
            {{"syntax error", "x = 1\ndef (:\n", "SyntaxError: invalid syntax (bad.py, line 2)"},
             {"nested too deeply", QByteArray(200000, '('), "Error"},
             {"raises", "\n\n1 / 0\n", "ZeroDivisionError: division by zero, at line 3"},
             {"exit", "import sys\nsys.exit(3)", "SystemExit: 3, at line 2"},
             {"no exception text", "class E(Exception):\n  def __str__(self): raise self\nraise E",
              "cannot be shown"},
             {"ID too large", "TEMPLATE_ID = 2**31", "TEMPLATE_ID must be a 32-bit integer"},
             {"name is no text", "TEMPLATE_NAME = 12", "TEMPLATE_NAME must be a text"},
             {"name is no UTF-8", "TEMPLATE_NAME = '\\ud800'", "UnicodeEncodeError"}});
    }

    void refusedSources()
    {
        QFETCH(QByteArray, source);
        QFETCH(QByteArray, report);
        Engine engine;
        CapturedOutput errors(STDERR_FILENO);
        QVERIFY(!engine.load(u"bad.py"_qs, source));
        const QByteArray line = errors.take();
        QVERIFY2(
            line.startsWith("Failed to load template bad from " + engine.path(u"bad.py"_qs).toUtf8() + ": "),
            line);
        QVERIFY2(line.contains(report) && line.indexOf('\n') == line.size() - 1, line);
        QVERIFY(engine.load(u"good.py"_qs, hook("pass")) && !engine.call(12));
        QCOMPARE(errors.take(), QByteArray());
    }

    void refusedFiles()
    {
        Engine engine;
        CapturedOutput errors(STDERR_FILENO);
        QVERIFY(QDir(engine.folder.path()).mkdir(u"my"_qs));
        QCOMPARE(mkfifo(QFile::encodeName(engine.path(u"pipe.py"_qs)).constData(), 0600), 0);
        QFile archive(engine.path(u"archive.zip"_qs));
        QVERIFY(archive.open(QIODevice::WriteOnly) && archive.resize(16 * 1024 * 1024 + 1));

        for (const char *name : {"my", "pipe.py", "archive.zip", "missing.py"}) {
            QVERIFY(!engine.load(QString::fromLatin1(name)));
            QCOMPARE(errors.take().count('\n'), 1);
        }
        // None of them was worth an interpreter.
        QVERIFY(!pythonRuns() && engine.load(u"empty.py"_qs, QByteArray()) && pythonRuns());
    }

    void idsAndNames()
    {
        Engine engine;
        CapturedOutput errors(STDERR_FILENO);
        QVERIFY(engine.load(u"nameless.py"_qs, "TEMPLATE_ID = 2147483647"));
        QVERIFY(engine.load(u"named.py"_qs, "TEMPLATE_ID = -2147483648\nTEMPLATE_NAME = 'Übung'"));
        QVERIFY(engine.load(u"zero.py"_qs, "TEMPLATE_ID = 0"));
        QVERIFY(engine.load(u"none.py"_qs, "TEMPLATE_NAME = 'never called'"));
        QCOMPARE(errors.take(), QByteArray());
        QVERIFY(engine.load(u"second.py"_qs, "TEMPLATE_ID = 0"));
        QCOMPARE(errors.take(),
                 QByteArray("Template second is never called: template zero has the same ID 0\n"));

        for (const auto &[id, name] :
             {std::pair(2147483647, "nameless"), {-2147483647 - 1, "Übung"}, {0, "zero"}}) {
            TTemplate *found = engine.manager->getTemplate(id);
            QVERIFY2(found && found->getID() == id && found->getName() == std::string(name), name);
            TTemplate::Release(found);
        }
        QVERIFY(!engine.manager->getTemplate(1));
    }

    void importFolders()
    {
        Engine engine;
        RecordedLink link;
        // In each folder a module of its own, and one that the folder before has as well.
        const char *folders[] = {"", "hosts/alertor/", "modules/", "packages-linux/", "packages/"};
        for (int i = 0; i < 5; ++i) {
            const QString module = QString::fromLatin1(folders[i]) + u"%1%2.py"_qs;
            const QByteArray value = "value = b'" + QByteArray::number(i) + "'";
            writeFile(engine.path(module.arg(u"own"_qs).arg(i)), value);
            writeFile(engine.path(module.arg(u"shared"_qs).arg(i)), value);
            writeFile(engine.path(module.arg(u"shared"_qs).arg(i - 1)), value);
        }
        QVERIFY(engine.load(u"json.py"_qs, "raise_nothing = True")); // must not stand in for the library's
        QVERIFY(engine.load(u"x.py"_qs, R"(
from __future__ import annotations
import alertor, ctypes, dataclasses, json, own0, own1, own2, own3, own4, shared0, shared1, shared2, shared3
TEMPLATE_ID = 12
@dataclasses.dataclass
class Record:
    text: str = json.dumps(1)
def onCustomDispatcherMessageToAlertor(message):
    alertor.send(1, own0.value + own1.value + own2.value + own3.value + own4.value)
    alertor.send(1, shared0.value + shared1.value + shared2.value + shared3.value + Record().text.encode())
)"));
        QCOMPARE(engine.call(12), std::nullopt);
        QCOMPARE(link.payloads(), (QList<QByteArray>{"01234", "01231"}));
        for (const char *folder : folders)
            QVERIFY(!QFile::exists(engine.path(QString::fromLatin1(folder) + u"__pycache__"_qs)));
    }

    void hooks_data()
    {
        const QByteArray id = "TEMPLATE_ID = 12\n";
        addTable<QByteArray, QByteArray>(
            {"source", "report"},
            {{"missing", id, ""},
             {"raises", hook("raise ValueError('one\\ntwo')"), "ValueError: one\ntwo"},
             {"place", hook("\n\nundefined"), "x.py\", line 6, in onCustom"},
             {"exit", hook("raise SystemExit(1)"), "SystemExit: 1"},
             {"endless recursion", hook("onCustomDispatcherMessageToAlertor(message)"), "RecursionError"},
             {"broken look-up", id + "def __getattr__(name):\n  if name[:2] == 'on': raise OSError",
              "OSError"},
             {"no text", hook("class E(Exception):\n  def __str__(self): raise self\nraise E"),
              "E: <exception str()"},
             {"text that is no UTF-8", hook("raise ValueError('\\udcff')"), "ValueError: \\udcff"},
             {"wrong payload", hook("alertor.send(1, 'text')"), "TypeError: send()"},
             {"wrong parameter", hook("alertor.send(1, b'', 2**32)"), "TypeError: send()"},
             {"send in a thread",
              hook("import concurrent.futures\nwith concurrent.futures.ThreadPoolExecutor() as pool:\n"
                   "    pool.submit(alertor.send, 1, b'').result()"),
              "RuntimeError: send()"}});
    }

    void hooks()
    {
        QFETCH(QByteArray, source);
        QFETCH(QByteArray, report);
        Engine engine;
        RecordedLink link;
        QVERIFY(engine.load(u"x.py"_qs, source));
        QVERIFY(engine.load(u"next.py"_qs, hook("alertor.send(1, message)") + "TEMPLATE_ID = 13"));
        for (int round = 0; round < 2; ++round) {
            const std::optional<QByteArray> raised = engine.call(12);
            QCOMPARE(raised.has_value(), !report.isEmpty());
            QVERIFY2(!raised || (raised->contains(report) && !raised->endsWith('\n')), raised.value_or(""));
            QCOMPARE(engine.call(13, "next"), std::nullopt);
        }
        QCOMPARE(link.payloads(), (QList<QByteArray>{"next", "next"}));
    }

    void sending()
    {
        Engine engine;
        QVERIFY(engine.load(
            u"x.py"_qs,
            hook("return alertor.send(4294967295, message) == (message != b'lost') or undefined")));
        QCOMPARE(engine.call(12, "lost"), std::nullopt); // no link
        RecordedLink link;
        QCOMPARE(engine.call(12, "one"), std::nullopt);
        link.accepts = false;
        QCOMPARE(engine.call(12, "lost"), std::nullopt);
        QVERIFY(engine.load(u"y.py"_qs,
                            hook("alertor.send(command=7, payload=b'a\\0b', param=4294967295)")
                                + "TEMPLATE_ID = 13"));
        QCOMPARE(engine.call(13), std::nullopt);
        const QList<RecordedLink::Message> expected{
            {4294967295U, "one", 0}, {4294967295U, "lost", 0}, {7, QByteArray("a\0b", 3), 4294967295U}};
        QVERIFY(link.messages == expected);
    }

    void lostStandardOutput()
    {
        Engine engine;
        RecordedLink link;
        QVERIFY(engine.load(u"x.py"_qs,
                            hook("import sys\nprint(message)\nprint(message, file=sys.stderr, flush=True)\n"
                                 "alertor.send(1, message)")));
        CapturedOutput output(STDOUT_FILENO);
        CapturedOutput errors(STDERR_FILENO);
        QCOMPARE(engine.call(12, "shown"), std::nullopt);
        QCOMPARE(output.take() + errors.take(), QByteArray("b'shown'\nb'shown'\n"));
        // The terminal goes away while the program runs.
        int ends[2];
        QCOMPARE(pipe(ends), 0);
        close(ends[0]);
        dup2(ends[1], STDOUT_FILENO);
        dup2(ends[1], STDERR_FILENO);
        close(ends[1]);
        QCOMPARE(engine.call(12, "reader gone"), std::nullopt);
        QCOMPARE(link.payloads(), (QList<QByteArray>{"shown", "reader gone"}));
    }

    void lockIsFreeBetweenCalls()
    {
        Engine engine;
        const QString mark = engine.path(u"mark"_qs);
        QVERIFY(engine.load(
            u"x.py"_qs,
            hook("import threading\n"
                 "leave = threading.Event()\n"
                 "threading.Thread(target=lambda: leave.wait() and open(message, 'w').close()).start()\n"
                 "leave.set()")));
        QCOMPARE(engine.call(12, mark.toUtf8().constData()), std::nullopt);
        QTRY_VERIFY(QFile::exists(mark));
    }
};

QTEST_APPLESS_MAIN(TestTemplateEngine)
#include "tst_template_engine.moc"

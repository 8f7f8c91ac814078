#include "capturedoutput.h"
#include "templatefolder.h"

#include <app/templates.h>

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <memory>
#include <optional>

namespace {

/// Source of a template that sends the messages it gets under its own name.
QByteArray recorder(const QByteArray &name, const QByteArray &id)
{
    return "import alertor\nTEMPLATE_ID = " + id
        + "\ndef onCustomDispatcherMessageToAlertor(message):\n    alertor.send(1, b'" + name
        + ":' + message)\n";
}

} // namespace

/// Each test has a home folder, a program's folder and the send entry of its own.
class TestTemplates : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
        m_home = qgetenv("HOME");
        qputenv("HOME", QFile::encodeName(m_folder->filePath(u"home"_qs)));
        QVERIFY(QDir(m_folder->path()).mkpath(u"home"_qs));
        QVERIFY(TFramework::InitializeLibrary(m_folder->filePath(u"program/tarrow"_qs).toUtf8().constData()));
        m_link.emplace();
    }

    void cleanup()
    {
        m_link.reset();
        TFramework::ShutdownLibrary();
        qputenv("HOME", m_home);
        m_folder.reset();
    }

    void choosesFolder()
    {
        const auto loaded = [this](const QByteArray &message) {
            Templates templates;
            QStringList texts = load(templates);
            templates.invokeCustomMessage(0, message);
            return texts;
        };
        writeFile(m_folder->filePath(u"program/templates/p.py"_qs), recorder("program", "0"));
        QCOMPARE(loaded("empty home"), QStringList{u"Loading template p.py..."_qs});
        QVERIFY(QFileInfo(userFile(QString())).isDir());
        // One entry of any kind is enough to make it the user's folder.
        writeFile(userFile(u"notes.txt"_qs), "mine");
        QCOMPARE(loaded("no template"), QStringList());
        writeFile(userFile(u"u.py"_qs), recorder("user", "0"));
        QCOMPARE(loaded("own"), QStringList{u"Loading template u.py..."_qs});
        QCOMPARE(m_link->payloads(), (QList<QByteArray>{"program:empty home", "user:own"}));
    }

    void testsFileNames()
    {
        for (const char *file : {"a.pyp", "a.py.b.py", "notes.cpp", "x.py", "y", "X.PY", "x.py.bak", "x.pyc"})
            writeFile(userFile(QLatin1String(file)), "raise OSError");
        CapturedOutput errors(STDERR_FILENO);
        Templates templates;
        load(templates);
        QByteArrayList names;
        for (const QByteArray &line : errors.take().trimmed().split('\n'))
            names += line.split(' ').at(4);
        QCOMPARE(names.join(' '), "a.b ap notes.cpp x y"); // as they were loaded
    }

    void startsAndEndsPythonOnce()
    {
        CapturedOutput errors(STDERR_FILENO);
        QCOMPARE(load(*std::make_unique<Templates>()), QStringList());
        QVERIFY(!pythonRuns()); // for nothing
        writeFile(userFile(u"x.py"_qs),
                  "import atexit\n" + recorder("x", "0") + "atexit.register(alertor.send, 1, b'end')\n");
        Templates templates;
        load(templates);
        templates.shutdown();
        QVERIFY(!pythonRuns());
        templates.invokeCustomMessage(0, "late");
        templates.shutdown();
        QCOMPARE(m_link->payloads(), QList<QByteArray>{"end"});
        QCOMPARE(errors.take(), QByteArray());
    }

    void invokesByID()
    {
        writeFile(userFile(u"z.py"_qs), recorder("global", "0"));
        writeFile(userFile(u"j.py"_qs), recorder("job", "12"));
        writeFile(userFile(u"n.py"_qs), recorder("negative", "-3"));
        Templates templates;
        load(templates);
        for (const int id : {0, 12, 13, -3})
            templates.invokeCustomMessage(id, QByteArray::number(id));
        QCOMPARE(m_link->payloads(),
                 (QList<QByteArray>{"global:0", "global:12", "job:12", "global:13", "global:-3"}));
    }

    void reportsFailures()
    {
        writeFile(userFile(u"global.py"_qs), recorder("global", "0") + "    raise ValueError('g')\n");
        writeFile(userFile(u"job.py"_qs),
                  "TEMPLATE_NAME = 'Job kind'\n" + recorder("job", "12")
                      + "    import sys; message == b'bad' and sys.exit('j')\n");
        Templates templates;
        load(templates);
        CapturedOutput errors(STDERR_FILENO);
        templates.invokeCustomMessage(12, "bad");
        const QByteArray text = errors.take();
        const QByteArray hook = "Failed to invoke onCustomDispatcherMessageToAlertor() on ";
        const qsizetype job = text.indexOf(hook + "template Job kind (ID 12):Traceback");
        QVERIFY2(text.startsWith(hook + "global template (ID 0): Traceback"), text);
        QVERIFY2(job > 0 && text.first(job).endsWith("\nValueError: g\n"), text);
        QVERIFY2(text.endsWith("\nSystemExit: j\n"), text);

        templates.invokeCustomMessage(12, "good");
        QVERIFY(!errors.take().contains("ID 12"));
        QCOMPARE(m_link->payloads(), (QList<QByteArray>{"global:bad", "job:bad", "global:good", "job:good"}));
    }

private:
    QString userFile(const QString &name) const
    {
        return m_folder->filePath(u"home/.Tarrow9/templates/"_qs + name);
    }
    QStringList load(Templates &templates) const
    {
        QStringList texts;
        templates.loadTemplates([&texts](const QString &text) { texts.append(text); });
        return texts;
    }

    std::optional<QTemporaryDir> m_folder;
    std::optional<RecordedLink> m_link;
    QByteArray m_home;
};

QTEST_GUILESS_MAIN(TestTemplates)
#include "tst_templates.moc"

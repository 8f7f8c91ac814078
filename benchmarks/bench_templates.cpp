// What the engine adds to a custom message, against calling the same empty hook from a bare pybind11 loop.

#include "ratio.h"

#include <app/templates.h>
#include <framework/tframework.h>

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>
#include <pybind11/embed.h>

#include <optional>

namespace py = pybind11;

namespace {

constexpr int kMessages = 10000;
constexpr int kRounds = 21;
constexpr double kPromise = 3.0;
constexpr char kEmptyHook[] = "TEMPLATE_ID = 0\ndef onCustomDispatcherMessageToAlertor(message):\n    pass\n";

const QByteArray &message()
{
    static const QByteArray text("frame 1001 of shot_010 is ready");
    return text;
}

void callThroughEngine(Templates &templates)
{
    for (int i = 0; i < kMessages; ++i)
        templates.invokeCustomMessage(0, message());
}

void callBare(const py::object &hook)
{
    for (int i = 0; i < kMessages; ++i)
        hook(py::bytes(message().constData()));
}

py::object bareHook()
{
    py::dict scope;
    py::exec(kEmptyHook, scope);
    return scope["onCustomDispatcherMessageToAlertor"];
}

/// The engine with one empty global template in a home folder of its own.
class EmptyTemplate final {
public:
    EmptyTemplate()
    {
        const QString folder = m_home.filePath(QStringLiteral(".Tarrow9/templates"));
        QFile file(folder + QStringLiteral("/empty.py"));
        if (!QDir().mkpath(folder) || !file.open(QIODevice::WriteOnly) || file.write(kEmptyHook) < 0)
            qFatal("cannot write the template");
        file.close();
        qputenv("HOME", QFile::encodeName(m_home.path()));
        TFramework::InitializeLibrary("bench_templates");
        templates.emplace();
        templates->loadTemplates({});
    }
    ~EmptyTemplate()
    {
        templates.reset();
        TFramework::ShutdownLibrary();
    }
    Q_DISABLE_COPY_MOVE(EmptyTemplate)

    std::optional<Templates> templates;

private:
    QTemporaryDir m_home;
};

} // namespace

int main(int argc, char **argv)
{
    EmptyTemplate program;
    benchmark::RegisterBenchmark("messagesThroughEngine", [&program](benchmark::State &state) {
        for (auto _ : state)
            callThroughEngine(*program.templates);
        state.SetItemsProcessed(state.iterations() * kMessages);
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("messagesFromBareLoop", [](benchmark::State &state) {
        const py::gil_scoped_acquire lock;
        const py::object hook = bareHook();
        for (auto _ : state)
            callBare(hook);
        state.SetItemsProcessed(state.iterations() * kMessages);
    })->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    printRatio(
        "templates: ms for 10,000 messages, to a bare loop",
        [&program] { return threadMilliseconds([&program] { callThroughEngine(*program.templates); }); },
        [] {
            const py::gil_scoped_acquire lock;
            const py::object hook = bareHook();
            return threadMilliseconds([&hook] { callBare(hook); });
        },
        kPromise, kRounds);
    return 0;
}

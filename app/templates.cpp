#include "templates.h"

#include <framework/filesystem.h>
#include <framework/stringhelper.h>
#include <framework/tframework.h>
#include <helpers/directorylisting.h>
#include <template_engine/tmanager.h>

#include <cstdio>
#include <memory>
#include <utility>
#include <vector>

using TFramework::TFileSystem;
using TTemplateEngine::TManager;
using TTemplateEngine::TTemplate;

namespace {

constexpr int kEngineInterface = 1;
constexpr std::int32_t kGlobalTemplate = 0;

using TemplatePointer = std::unique_ptr<TTemplate, decltype(&TTemplate::Release)>;

/// Holds the Python lock while a Python template is called.
class PythonLock final {
public:
    PythonLock(TManager &manager, bool needed)
        : m_manager(needed ? &manager : nullptr)
    {
        if (m_manager)
            m_manager->acquirePython();
    }
    ~PythonLock()
    {
        if (m_manager)
            m_manager->releasePython();
    }
    Q_DISABLE_COPY_MOVE(PythonLock)

private:
    TManager *m_manager;
};

/// Loose on purpose: any name ending in a full stop, "p" or "y" is tried, and the loader refuses what is no template.
bool mayBeTemplate(const std::string &fileName)
{
    const auto last = fileName.find_last_of(".py");
    return last != std::string::npos && last + 1 == fileName.size();
}

std::string failureText(const TTemplate &failed, const std::string &exception)
{
    std::string text = "Failed to invoke onCustomDispatcherMessageToAlertor() on ";
    if (failed.getID() == kGlobalTemplate)
        text += "global template (ID 0): ";
    else
        text += "template " + failed.getName() + " (ID " + std::to_string(failed.getID()) + "):";
    return text + exception + "\n";
}

} // namespace

Templates::Templates()
{
    if (TManager::initializePythonPath(kEngineInterface, "alertor"))
        m_manager = TManager::getUniqueClass(kEngineInterface);
}

Templates::~Templates()
{
    shutdown();
}

void Templates::loadTemplates(const Progress &progress)
{
    if (!m_manager)
        return;
    const std::string settings = TFileSystem::JoinPath(TFileSystem::GetAppSettingsFolder(true), ".Tarrow9");
    std::string folder = TFileSystem::JoinPath(settings, "templates");
    TFileSystem::MakeDirectory(folder, true);
    // By name, so that templates are loaded in the same order everywhere.
    std::vector<std::string> names = FarmHelpers::listDirectory(folder);
    if (names.empty()) {
        folder = TFileSystem::JoinPath(TFramework::GetModuleBasePath(), "templates");
        names = FarmHelpers::listDirectory(folder);
    }

    TTemplateEngine::TTemplatesDirectories directories;
    m_manager->normalizeTemplatesDirectories(folder, directories);
    for (const std::string &name : names) {
        if (!mayBeTemplate(name))
            continue;
        if (progress)
            progress(tr("Loading template %1...").arg(QString::fromStdString(name)));
        m_manager->loadTemplateFromFile(folder, TFileSystem::JoinPath(folder, name),
                                        TFramework::TStringHelper::Replace(name, ".py", ""), directories);
    }
    m_manager->fillInternalHashesMap();
}

void Templates::invokeCustomMessage(int templateId, const QByteArray &message)
{
    // A byte array may be made of somebody's raw data, without a terminating zero.
    const std::string terminated = message.toStdString();
    invokeHook(kGlobalTemplate, terminated);
    if (templateId > kGlobalTemplate)
        invokeHook(templateId, terminated);
}

void Templates::invokeHook(std::int32_t templateId, const std::string &message)
{
    const TemplatePointer called(m_manager ? m_manager->getTemplate(templateId) : nullptr,
                                 &TTemplate::Release);
    if (!called)
        return;
    const bool python = called->isPythonTemplate();
    const PythonLock lock(*m_manager, python);
    try {
        called->onCustomDispatcherMessageToAlertor(message.c_str());
    } catch (const std::exception &) {
        if (python)
            std::fputs(failureText(*called, m_manager->getPyExceptionStr()).c_str(), stderr);
    }
}

void Templates::shutdown()
{
    if (std::exchange(m_manager, nullptr))
        TManager::destroyUniqueClass();
}

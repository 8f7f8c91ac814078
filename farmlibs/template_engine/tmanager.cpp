#include "tmanager.h"

#include "python.h"

#include <framework/filesystem.h>
#include <framework/tframework.h>
#include <system/machine.h>
#include <system/module.h>

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace TTemplateEngine {

namespace {

constexpr int kInterfaceVersion = 1;
constexpr std::uintmax_t kMaximumSourceBytes = 16ULL * 1024 * 1024;

std::string s_hostName;
// No static destructor may end the interpreter: destroyUniqueClass() does.
TManager *s_uniqueClass = nullptr;

/// Why a directory entry is not even read: opening a pipe would wait for ever, an archive may be huge. Empty when fit.
std::string unfitFile(const std::string &path)
{
    std::error_code error;
    const auto file = std::filesystem::path(std::u8string(path.begin(), path.end()));
    if (!std::filesystem::is_regular_file(file, error))
        return "not a regular file";
    const std::uintmax_t size = std::filesystem::file_size(file, error);
    if (error)
        return error.message();
    return size > kMaximumSourceBytes ? "larger than 16 MiB" : std::string();
}

const TFramework::TSendEntry *sendEntry()
{
    return static_cast<const TFramework::TSendEntry *>(TFramework::GetLibraryContext("Alertor"));
}

/// Python lies in a module: a program without templates starts without it. Its library's functions are there for the
/// compiled modules that a template imports, which do not name the library.
Python *startModule(const std::string &hostName, std::string &problem)
{
    const Module::Function start =
        Module::function("tarrowpython", "tarrowStartPython", Module::Symbols::Shared);
    if (!start) {
        problem = "Python cannot be started: the module tarrowpython cannot be loaded";
        return nullptr;
    }
    return reinterpret_cast<StartPython *>(start)({hostName, &sendEntry}, problem);
}

} // namespace

TManager::TManager(std::string hostName)
    : m_hostName(std::move(hostName))
{ }

TManager::~TManager()
{
    if (!m_python)
        return;
    m_python->lock();
    // A template still in somebody's hands stays: what it holds of Python must go.
    for (const auto &loaded : m_loaded)
        loaded->m_script->forget();
    m_python->unlock();
}

bool TManager::initializePythonPath(int version, const char *hostName)
{
    if (version != kInterfaceVersion || !hostName)
        return false;
    s_hostName = hostName;
    return true;
}

TManager *TManager::getUniqueClass(int version)
{
    if (version != kInterfaceVersion)
        return nullptr;
    if (!s_uniqueClass)
        s_uniqueClass = new TManager(s_hostName);
    return s_uniqueClass;
}

void TManager::destroyUniqueClass()
{
    delete s_uniqueClass;
    s_uniqueClass = nullptr;
}

TTemplate *TManager::getTemplate(std::int32_t id) const
{
    const auto found = m_byId.find(id);
    if (found == m_byId.end())
        return nullptr;
    ++found->second->m_references;
    return found->second;
}

void TManager::normalizeTemplatesDirectories(const std::string &folder,
                                             TTemplatesDirectories &directories) const
{
    using TFramework::TFileSystem;
    directories.host = TFileSystem::JoinPath(TFileSystem::JoinPath(folder, "hosts"), m_hostName);
    directories.modules = TFileSystem::JoinPath(folder, "modules");
    directories.platformPackages = TFileSystem::JoinPath(folder, "packages-" + Machine::platformName());
    directories.packages = TFileSystem::JoinPath(folder, "packages");
}

bool TManager::startPython(std::string &problem)
{
    // A start that failed is not tried again: what it left behind is not known.
    if (!m_python && m_startProblem.empty())
        m_python.reset(startModule(m_hostName, m_startProblem));
    problem = m_startProblem;
    return m_python != nullptr;
}

bool TManager::loadTemplateFromFile(const std::string &folder, const std::string &fullPath,
                                    const std::string &name, const TTemplatesDirectories &directories)
{
    std::string problem = unfitFile(fullPath);
    if (problem.empty() && startPython(problem)) {
        const std::vector<std::string> importable{folder, directories.host, directories.modules,
                                                  directories.platformPackages, directories.packages};
        m_python->lock();
        if (auto module = m_python->load(name, fullPath, importable, problem))
            m_loaded.emplace_back(new TTemplate(std::move(module)), &TTemplate::Release);
        m_python->unlock();
    }
    if (!problem.empty())
        std::fprintf(stderr, "Failed to load template %s from %s: %s\n", name.c_str(), fullPath.c_str(),
                     problem.c_str());
    return problem.empty();
}

void TManager::fillInternalHashesMap()
{
    m_byId.clear();
    for (const auto &loaded : m_loaded) {
        if (!loaded->m_script->id)
            continue;
        const auto [entry, added] = m_byId.emplace(loaded->getID(), loaded.get());
        if (!added)
            std::fprintf(stderr, "Template %s is never called: template %s has the same ID %d\n",
                         loaded->getName().c_str(), entry->second->getName().c_str(), loaded->getID());
    }
}

void TManager::acquirePython()
{
    if (m_python)
        m_python->lock();
}

void TManager::releasePython()
{
    if (m_python)
        m_python->unlock();
}

std::string TManager::getPyExceptionStr()
{
    return m_python ? m_python->takeException() : std::string();
}

} // namespace TTemplateEngine

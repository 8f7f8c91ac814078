#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>

namespace TTemplateEngine {

class TemplateScript;

/// Thrown by a hook that raised. The Python exception stays pending until TManager::getPyExceptionStr() takes it or
/// TManager::releasePython() drops it.
class THookFailure final : public std::exception {
public:
    const char *what() const noexcept override { return "a template's hook raised an exception"; }
};

/// Calls the hooks of a loaded template, handed out by TManager::getTemplate() and given back with Release() after each
/// use. One that outlives the manager keeps its name and ID, and its hooks do nothing.
class TTemplate final {
public:
    TTemplate(const TTemplate &) = delete;
    TTemplate &operator=(const TTemplate &) = delete;

    /// Gives a template back, with or without the Python lock; null is allowed.
    static void Release(TTemplate *instance) noexcept;

    /// Tells whether its hooks need the Python lock, see TManager::acquirePython().
    bool isPythonTemplate() const noexcept { return true; }
    const std::string &getName() const noexcept;
    std::int32_t getID() const noexcept;

    /// Hands over the bytes up to the terminating zero. A template without the hook is no error.
    /// Throws THookFailure when the hook raises. Needs the Python lock.
    void onCustomDispatcherMessageToAlertor(const char *message);

private:
    friend class TManager;
    explicit TTemplate(std::unique_ptr<TemplateScript> script);
    ~TTemplate();

    std::unique_ptr<TemplateScript> m_script;
    int m_references = 1;
};

} // namespace TTemplateEngine

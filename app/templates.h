#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QString>

#include <cstdint>
#include <functional>
#include <string>

namespace TTemplateEngine {
class TManager;
}

/// The farm's templates in this program: loads them once and hands them the Dispatcher's custom messages.
/// A failing template is reported on standard error and never reaches the user or the caller.
/// Lives from TFramework::InitializeLibrary() to TFramework::ShutdownLibrary().
class Templates final {
    Q_DECLARE_TR_FUNCTIONS(Templates)
    Q_DISABLE_COPY_MOVE(Templates)

public:
    /// Receives the text to show while a template is loaded.
    using Progress = std::function<void(const QString &text)>;

    Templates();
    ~Templates();

    /// Loads the user's templates, or those beside the program when the user has none.
    void loadTemplates(const Progress &progress);
    /// Calls the custom-message hook of the global template, then that of the given one when its ID is above 0.
    /// The templates see the message up to its first zero byte.
    void invokeCustomMessage(int templateId, const QByteArray &message);
    /// Ends the template engine; later messages are dropped. May be called again.
    void shutdown();

private:
    void invokeHook(std::int32_t templateId, const std::string &message);

    TTemplateEngine::TManager *m_manager = nullptr;
};

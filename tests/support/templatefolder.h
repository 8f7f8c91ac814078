#pragma once

#include <framework/sendentry.h>
#include <framework/tframework.h>

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QList>
#include <QtCore/QString>

#include <dlfcn.h>

/// Writes a file and the folders above it.
inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly)
        || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// Python lies in a module that the first template loads, with its symbols for the compiled modules that templates import.
inline bool pythonRuns()
{
    void *const isInitialized = dlsym(RTLD_DEFAULT, "Py_IsInitialized");
    return isInitialized && reinterpret_cast<int (*)()>(isInitialized)() != 0;
}

/// Stands for the program's link: keeps what templates send.
class RecordedLink final {
    Q_DISABLE_COPY_MOVE(RecordedLink)

public:
    struct Message {
        quint32 command;
        QByteArray payload;
        quint32 param;
        bool operator==(const Message &) const = default;
    };

    RecordedLink() { TFramework::SetLibraryContext("Alertor", &m_entry); }
    ~RecordedLink() { TFramework::SetLibraryContext("Alertor", nullptr); }

    QList<QByteArray> payloads() const
    {
        QList<QByteArray> result;
        for (const Message &message : messages)
            result.append(message.payload);
        return result;
    }

    QList<Message> messages;
    bool accepts = true;

private:
    static bool send(void *owner, std::uint32_t command, const char *payload, std::size_t size,
                     std::uint32_t param)
    {
        auto *link = static_cast<RecordedLink *>(owner);
        link->messages.append({command, QByteArray(payload, qsizetype(size)), param});
        return link->accepts;
    }

    TFramework::TSendEntry m_entry{this, &RecordedLink::send};
};

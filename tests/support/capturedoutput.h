#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QTemporaryFile>

#include <unistd.h>

/// Catches what this process writes to a standard stream, from the construction to the destruction.
class CapturedOutput final {
    Q_DISABLE_COPY_MOVE(CapturedOutput)

public:
    explicit CapturedOutput(int descriptor)
        : m_descriptor(descriptor)
        , m_original(dup(descriptor))
    {
        if (m_original < 0 || !m_file.open() || dup2(m_file.handle(), descriptor) < 0)
            qFatal("cannot capture the standard stream %d", descriptor);
    }
    ~CapturedOutput()
    {
        dup2(m_original, m_descriptor);
        close(m_original);
    }

    /// Everything written since the last call.
    QByteArray take()
    {
        // Opened anew: the caught descriptor shares its position with m_file.
        QFile file(m_file.fileName());
        if (!file.open(QIODevice::ReadOnly) || !file.seek(m_taken))
            qFatal("cannot read what was captured");
        const QByteArray text = file.readAll();
        m_taken += text.size();
        return text;
    }

private:
    int m_descriptor;
    int m_original;
    qint64 m_taken = 0;
    QTemporaryFile m_file;
};
